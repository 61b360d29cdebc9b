// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The smooth halves of the radial maps, see SmoothNodes. Positions (x, y) are loop positions in
// pixels of the result, y upward; offsets are in pixels of the photo and no numbers where the map
// is not smooth. The constructors throw std::bad_alloc, the rest nothing.
#pragma once

#include <cmath>
#include <limits>

#include "remap/projection/maps/equidistance_map.h"
#include "remap/projection/maps/radial_table.h"
#include "remap/projection/maps/rectilinear_map.h"

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

// The turned and shifted view. The map has to outlive it.
class RotatedRectilinearNodes {
  public:
    explicit RotatedRectilinearNodes(const RotatedRectilinearMap& map)
        : map_(map), plain_(map.Radius()) {}
    SourceOffset At(double x, double y) const {
        if (NearSpike(x, y)) {
            constexpr double none = std::numeric_limits<double>::quiet_NaN();
            return {none, none};
        }
        const Ray ray = map_.TurnedRay(x, y);
        return plain_.FromTurned(ray.x, ray.y, ray.z / map_.Focal());
    }

  private:
    // With the eye close to the output plane (an angle of view near 180 degrees) all directions but
    // those along the plane crowd around one pixel: a spike that nodes would step over.
    bool NearSpike(double x, double y) const {
        constexpr double reach = 3.0 * largestNodeStep;
        return map_.Focal() < largestNodeStep &&
               std::fabs(x + static_cast<double>(map_.ShiftX())) < reach &&
               std::fabs(y + static_cast<double>(map_.ShiftY())) < reach;
    }

    const RotatedRectilinearMap& map_;
    RectilinearNodes plain_;
};

class EquidistanceNodes {
  public:
    // The distances from the centre that are asked for, in pixels; nearest < farthest.
    EquidistanceNodes(const EquidistanceMap& map, double nearest, double farthest);
    SourceOffset At(double x, double y) const {
        const double scale = table_.At(x * x + y * y);
        return {x * scale, y * scale};
    }

  private:
    RadialTable table_;  // source radius / output radius, over the square of the latter
};

}  // namespace varnel
