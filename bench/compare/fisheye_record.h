// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "state/records/image_record.h"

namespace varnel::bench {

// What the command line of bench/compare/tools.sh gives varnel-convert.
inline ImageRecord FisheyeRecord() {
    ImageRecord record;
    record.Landscape = true;
    record.SensorWidth = 36.0F;
    record.SensorHeight = 24.0F;
    record.LensMapScale = 30.0F;
    record.LensMapFactor = 0.5F;
    record.OutputAOV = 90.0F;
    record.EffectRectilinear = 100.0F;
    return record;
}

}  // namespace varnel::bench
