// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where on the photo any point of the converted picture comes from: also between its pixels and
// beyond its border, as a hand points at it. Positions as in remap/analysis/inverse_mapping.h.
#pragma once

#include "remap/analysis/inverse_mapping.h"

namespace varnel {

class PointMapping {
  public:
    // For the result as it is saved; the size is the photo's. The record's own Projection is not
    // looked at. Throws as the conversion does.
    PointMapping(Projection projection, const ImageRecord& image, PixelSize size);

    // The position that is read for a point of the result, also one off the photo; at the middles
    // of pixels that of InverseMapping. Nothing where there is none. Throws nothing.
    std::optional<SourcePosition> At(const SourcePosition& point) const;
    // The optical axis, around which a roll of the camera turns positions.
    const SourcePosition& Axis() const { return axis_; }

    // From columns or rows to the map's own positions.
    struct Lines {
        double first = 0.0;  // of line 0
        double step = 1.0;   // 1 or -1
    };

  private:
    SourcePosition centre_;
    SourcePosition axis_;
    std::unique_ptr<ProjectionMap> map_;
    std::optional<Lines> across_, up_;  // nothing when none of them shows anything
};

}  // namespace varnel
