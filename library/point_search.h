// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The other way through a mapping that only knows one: where on the result a point of the photo is.
// Throws nothing but std::bad_alloc by the constructor.
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "remap/analysis/inverse_mapping.h"

namespace varnel {

class PointSearch {
  public:
    using Mapping = std::function<std::optional<SourcePosition>(const SourcePosition&)>;

    // The mapping has to outlive this; size is the result's.
    PointSearch(Mapping mapping, PixelSize size);

    // The point of the result, to a thousandth of a photo's pixel, no farther than half a pixel
    // beyond its border. Nothing where there is none.
    std::optional<SourcePosition> Find(const SourcePosition& onPhoto) const;

  private:
    struct Node {
        SourcePosition point;  // of the result
        SourcePosition photo;
    };
    std::optional<SourcePosition> Follow(SourcePosition point, const SourcePosition& target) const;

    Mapping mapping_;
    PixelSize size_;
    std::vector<Node> nodes_;  // a net over the result
};

}  // namespace varnel
