// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/face_places.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnel {

namespace {

double Radians(double degrees) {
    return degrees * std::numbers::pi / 180.0;
}

}  // namespace

QPointF PictureEllipse::Within(QPointF point) const {
    const double c = std::cos(Radians(angle));
    const double s = std::sin(Radians(angle));
    const double right = point.x() - middle.x();
    const double up = middle.y() - point.y();
    return {c * right + s * up, c * up - s * right};
}

QPointF PictureEllipse::PointAt(QPointF within) const {
    const double c = std::cos(Radians(angle));
    const double s = std::sin(Radians(angle));
    return {middle.x() + c * within.x() - s * within.y(),
            middle.y() - s * within.x() - c * within.y()};
}

double PictureEllipse::LevelAt(QPointF point) const {
    const QPointF within = Within(point);
    return std::hypot(within.x() / std::max(halfWidth, 1e-9),
                      within.y() / std::max(halfHeight, 1e-9));
}

QRectF FrameOnResult(const OutputFrame& frame) {
    const PixelSize whole = frame.Whole();
    const int above = whole.height - frame.corner.y - frame.size.height;
    return QRectF(-frame.corner.x, -above, whole.width, whole.height);
}

PictureEllipse OnResult(const FaceEllipse& face, const QRectF& frame) {
    return {{frame.left() + face.x * frame.width(), frame.top() + face.y * frame.height()},
            face.width * frame.width() / 2.0,
            face.height * frame.height() / 2.0,
            face.angle};
}

FaceEllipse OnFrame(const PictureEllipse& ellipse, const QRectF& frame) {
    return {(ellipse.middle.x() - frame.left()) / frame.width(),
            (ellipse.middle.y() - frame.top()) / frame.height(),
            2.0 * ellipse.halfWidth / frame.width(), 2.0 * ellipse.halfHeight / frame.height(),
            ellipse.angle};
}

}  // namespace varnel
