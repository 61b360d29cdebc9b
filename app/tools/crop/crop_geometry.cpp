// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/crop/crop_geometry.h"

#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

QSizeF Limited(QSizeF size, const QSizeF& room, double shape) {
    const double least =
        shape > 0.0 ? std::max(leastCropSide, leastCropSide * shape) : leastCropSide;
    const double most = shape > 0.0 ? std::min(room.width(), room.height() * shape) : room.width();
    const double width = std::min(std::max(size.width(), least), most);
    const double height = shape > 0.0 ? width / shape
                                      : std::clamp(size.height(), leastCropSide,
                                                   std::max(room.height(), leastCropSide));
    return {width, height};
}

// The rectangle of that size whose middle is as near to the point as the frame lets it.
QRectF Around(QPointF middle, const QSizeF& size) {
    return {std::clamp(middle.x() - size.width() / 2.0, 0.0, std::max(1.0 - size.width(), 0.0)),
            std::clamp(middle.y() - size.height() / 2.0, 0.0, std::max(1.0 - size.height(), 0.0)),
            size.width(), size.height()};
}

// Along one axis: which end stays, or both or none do.
double Start(bool low, bool high, double from, double to, double length) {
    if (low != high) {
        return low ? to - length : from;
    }
    return std::clamp((from + to - length) / 2.0, 0.0, std::max(1.0 - length, 0.0));
}

}  // namespace

QRectF DraggedCrop(const QRectF& crop, const CropGrip& grip, QPointF by, double shape) {
    if (grip.IsAll()) {
        return Around(crop.center() + by, crop.size());
    }
    const double across = grip.left ? -by.x() : grip.right ? by.x() : 0.0;
    const double down = grip.top ? -by.y() : grip.bottom ? by.y() : 0.0;
    QSizeF wanted(crop.width() + across, crop.height() + down);
    const QSizeF room(grip.left    ? crop.right()
                      : grip.right ? 1.0 - crop.left()
                                   : 1.0,
                      grip.top      ? crop.bottom()
                      : grip.bottom ? 1.0 - crop.top()
                                    : 1.0);
    if (shape > 0.0) {  // the side that moved farther leads
        const bool upright = !grip.left && !grip.right;
        const bool both = (grip.left || grip.right) && (grip.top || grip.bottom);
        const bool taller = both && wanted.height() * shape > wanted.width();
        wanted.setWidth(upright || taller ? wanted.height() * shape : wanted.width());
    }
    const QSizeF size = Limited(wanted, room, shape);
    return {Start(grip.left, grip.right, crop.left(), crop.right(), size.width()),
            Start(grip.top, grip.bottom, crop.top(), crop.bottom(), size.height()), size.width(),
            size.height()};
}

QRectF ShapedCrop(const QRectF& crop, double shape) {
    return shape > 0.0 ? Around(crop.center(), Limited(crop.size(), crop.size(), shape)) : crop;
}

QRectF GrownCrop(const QRectF& crop, double by, double shape) {
    const double kept = shape > 0.0 ? shape : crop.width() / crop.height();
    const QSizeF wanted(crop.width() + by, crop.height() + by / kept);
    return Around(crop.center(), Limited(wanted, {1.0, 1.0}, kept));
}

}  // namespace varnel
