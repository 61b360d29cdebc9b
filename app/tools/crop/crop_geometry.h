// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A crop that is moved, widened and given a shape. Rectangles are in shares of the frame from 0 to
// 1, from its top left corner with y down; a shape is a width by a height in those shares, 0 for
// any. Results lie within the frame and are never smaller than leastCropSide. Throws nothing.
#pragma once

#include <QPointF>
#include <QRectF>

namespace varnel {

inline constexpr double leastCropSide = 0.01;
inline constexpr QRectF wholeFrame(0.0, 0.0, 1.0, 1.0);

// What of a crop a hand holds: some sides, or all of it.
struct CropGrip {
    bool left = false, top = false, right = false, bottom = false;

    bool IsAll() const { return left && top && right && bottom; }
    bool operator==(const CropGrip&) const = default;
};
inline constexpr CropGrip wholeCrop{true, true, true, true};

// The crop that was there when it was taken hold of, after the hand moved by that much.
QRectF DraggedCrop(const QRectF& crop, const CropGrip& grip, QPointF by, double shape);
// The largest of that shape that fits into the crop, about its middle.
QRectF ShapedCrop(const QRectF& crop, double shape);
// About its middle, wider by that share of the frame.
QRectF GrownCrop(const QRectF& crop, double by, double shape);

}  // namespace varnel
