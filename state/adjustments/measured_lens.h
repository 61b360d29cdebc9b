// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Between a record and the measuring of its lens on its photo. Throws std::bad_alloc only.
#pragma once

#include <optional>

#include "remap/analysis/straighten/lens_view.h"
#include "state/records/image_record.h"

namespace varnel {

// What a record says of its lens as it draws on the record's picture.
struct KnownLens {
    LensView view;
    // On the sensor; nothing for a curve in radii of the circle, which says nothing of millimetres.
    std::optional<double> pixelsPerMillimetre;
};

// Nothing when the record's numbers make no lens or its picture's size is not known.
std::optional<KnownLens> KnownLensOf(const ImageRecord& image);

// Puts a lens in the place of the record's as an adjustment of that photo alone. The axis is where
// the lens says, if it says so for such pictures. The angle of view of the output follows unless it
// was moved by hand; the gear is called by its camera and the lens.
void PutLens(const LensReference& lens, ImageRecord& image);

// The lens for photos that are shown turned by the one orientation, as it is for those of the
// other: its axis turns with the picture.
LensReference TurnedLens(const LensReference& lens, int from, int to);

}  // namespace varnel
