// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Image records for tests.
#pragma once

#include "state/records/image_record.h"

namespace varnel::testing {

// A landscape photo of a 16 mm equisolid lens (circle radius 11.4 mm) on a 36 x 24 mm sensor.
inline ImageRecord FisheyeRecord() {
    ImageRecord record;
    record.Landscape = true;
    record.SensorWidth = 36.0F;
    record.SensorHeight = 24.0F;
    record.LensBrand = QStringLiteral("Olympus");
    record.LensModel = QStringLiteral("Zuiko ED 8mm f/3.5");
    record.ImageCircleRadius = 11.4F;
    record.LensMapScale = 16.0F;
    record.LensMapFactor = 0.5F;
    record.Ratio = 125.0F;
    record.InputAOV = 180.0F;
    record.OutputAOV = 90.0F;
    record.EffectVarnel = 100.0F;
    record.EffectRectilinear = 100.0F;
    return record;
}

// The same lens's photo of that name.
inline ImageRecord FisheyePhoto(const QString& folder, const QString& name,
                                Projection projection = Projection::Varnel) {
    ImageRecord record = FisheyeRecord();
    record.Folder = folder;
    record.FileName = name;
    record.Projection = static_cast<std::int16_t>(projection);
    return record;
}

}  // namespace varnel::testing
