// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From a horizon traced on the photo as shot to the record's tilt and roll, as its projection shows
// a horizon. LevelHorizon throws nothing, OffsetOf as ImageCentre.
#pragma once

#include <span>

#include "remap/projection/geometry.h"
#include "state/records/image_record.h"

namespace varnel {

// Pixels from the top left corner of the full picture, y down; the first pixel's middle is at 0.5.
struct PicturePoint {
    double x = 0.0;
    double y = 0.0;
};

// The offset from the circle's centre, as the projections count it.
SourceOffset OffsetOf(const PicturePoint& point, PixelSize source, const ImageRecord& image);

enum class LevelError {
    None,
    NoLens,       // the record's numbers make no lens
    TooShort,     // to determine a direction
    NotStraight,  // no horizon is bent like this through this lens
    OutOfReach    // beyond a slider's range
};

struct Levelling {
    LevelError error = LevelError::None;
    double rotateX = 0.0;  // degrees, as the record holds them
    double rotateZ = 0.0;
    double beyondX = 0.0;  // degrees past the slider's end, signed; 0 within
    double beyondZ = 0.0;
    bool unpanned = false;  // the pan has to go, too
};

Levelling LevelHorizon(const ImageRecord& image, PixelSize source,
                       std::span<const PicturePoint> traced);

}  // namespace varnel
