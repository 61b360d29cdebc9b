// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The smooth halves of the radial maps: what the nodes of the engine's runs are worked out with.
// Each agrees with its exact map to about a millionth of a pixel, or gives no number.
#pragma once

#include "remap/engine/radial_table.h"
#include "remap/equidistance_map.h"
#include "remap/rectilinear_map.h"

namespace varnel {

// The plain straight-line view. No arctangent is needed: the radius over the sine of the ray's
// angle is smooth in its cosine.
class RectilinearNodes {
  public:
    explicit RectilinearNodes(const RectilinearRadius& radius);
    SourceOffset At(double x, double y) const { return FromTurned(x, y, 1.0); }
    // depth is the ray's part along the axis, in units of the focal length.
    SourceOffset FromTurned(double x, double y, double depth) const {
        const double square = depth * depth + tanStep_ * tanStep_ * (x * x + y * y);
        const double inverse = 1.0 / std::sqrt(square);
        const double scale = table_.At(std::fabs(depth) * inverse) * tanStep_ * inverse;
        return {x * scale, y * scale};
    }

  private:
    double tanStep_;
    RadialTable table_;  // source radius / sine of the angle, over its cosine
};

// The turned and shifted view.
class RotatedRectilinearNodes {
  public:
    explicit RotatedRectilinearNodes(const RotatedRectilinearMap& map)
        : map_(map), plain_(map.Radius()) {}
    SourceOffset At(double x, double y) const {
        const Ray ray = map_.TurnedRay(x, y);
        return plain_.FromTurned(ray.x, ray.y, ray.z / map_.Focal());
    }

  private:
    const RotatedRectilinearMap& map_;
    RectilinearNodes plain_;
};

class EquidistanceNodes {
  public:
    // farthest: the largest distance from the centre that is asked for, in pixels.
    EquidistanceNodes(const EquidistanceMap& map, double farthest);
    SourceOffset At(double x, double y) const {
        const double scale = table_.At(x * x + y * y);
        return {x * scale, y * scale};
    }

  private:
    RadialTable table_;  // source radius / output radius, over the square of the latter
};

}  // namespace varnel
