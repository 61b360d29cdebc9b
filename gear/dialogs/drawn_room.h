// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A plain room of tiles as a gear would take it. Throws std::bad_alloc only.
#pragma once

#include "remap/image/bitmap.h"
#include "state/records/gear_record.h"

namespace varnel {

// The gear's camera and lens without adjustments; as large as fits into the box in the shape of the
// sensor. Black where the lens shows nothing, and all over for a gear that lacks numbers.
BitmapHandle DrawnRoom(const GearRecord& gear, PixelSize box);

}  // namespace varnel
