// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Parts of the straight view that keep their shape. Inside of an ellipse the view is stereographic
// around the ellipse's middle, so conformal; around it, it eases to the straight view, which it is
// from a margin on. The view stays one to one. Points are on the plane of the straight view, in
// units of its distance from the eye (tangents of angles), y upward. Throws std::bad_alloc only.
#pragma once

#include <optional>
#include <span>
#include <vector>

#include "remap/projection/geometry.h"

namespace varnel {

struct PlanePoint {
    double x = 0.0;
    double y = 0.0;
};

struct PlaneEllipse {
    PlanePoint middle;
    double halfWidth = 0.0;
    double halfHeight = 0.0;
    double cosine = 1.0, sine = 0.0;  // of its turn, counter-clockwise

    // 0 in the middle, 1 on the border, from there on as many times as far away.
    double LevelAt(const PlanePoint& point) const;
    // At a level, in the direction of an angle of the ellipse itself (radians).
    PlanePoint PointAt(double level, double direction) const;
};

// Up to how many times their size both ellipses can grow until they meet; below 1 they overlap.
double RoomBetween(const PlaneEllipse& one, const PlaneEllipse& other);

class FaceWarp {
  public:
    // margin (above 1) is the level from which on the view is straight. Inside, areas are as large
    // as those of the straight view at the middle, or larger where that would fold the view.
    // Nothing for an ellipse without width or height or for which no size avoids a fold.
    static std::optional<FaceWarp> Of(const PlaneEllipse& ellipse, double margin);

    // Where on the straight view the point's ray is; not a number for one that is not in front.
    PlanePoint At(const PlanePoint& point) const;
    const PlaneEllipse& Ellipse() const { return ellipse_; }
    double Margin() const { return margin_; }
    // The ratio of the areas around a point to those that they come from.
    double StretchAt(const PlanePoint& point) const;

  private:
    FaceWarp(const PlaneEllipse& ellipse, double margin);
    double ShareAt(double level) const;
    bool Folds() const;

    PlaneEllipse ellipse_;
    double margin_;
    double perLogarithm_;  // of a level, to the share of the margin
    double scale_;         // of the stereographic view: plane units for each radian in its middle
    Ray across_, up_, forward_;  // its axes
};

// Several, whose margins give way to one another where ellipses are close together. Those that
// overlap are drawn one after the other, still one to one.
class FaceWarps {
  public:
    FaceWarps() = default;
    explicit FaceWarps(std::span<const PlaneEllipse> ellipses);

    bool Empty() const { return warps_.empty(); }
    const std::vector<FaceWarp>& Each() const { return warps_; }
    PlanePoint At(PlanePoint point) const {
        for (const FaceWarp& warp : warps_) {
            point = warp.At(point);
        }
        return point;
    }
    // Whether nodes that far apart, in plane units, could step over what changes near a point.
    bool IsFine(const PlanePoint& point, double step) const;

  private:
    std::vector<FaceWarp> warps_;
};

}  // namespace varnel
