// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Varnel projection: every row of the image circle is stretched sideways to the circle's full
// width and stays at its own height.
#pragma once

#include "remap/projection/straight_rows.h"

namespace varnel {

class VarnelMap : public StraightRows {
  public:
    // Throws as MeasureCircle.
    explicit VarnelMap(const CircleView& view) : StraightRows(view) {}
    // Half the circle's chord. Negative at the very edge, whose row is mirrored.
    double ChordAt(double height) const override;
};

static_assert(PixelMap<VarnelMap>);

}  // namespace varnel
