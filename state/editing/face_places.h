// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Faces of a record as they lie on its result, to be seen and moved by hand. Points are in pixels
// of the result from its top left corner, y down. Throws nothing.
#pragma once

#include <QPointF>
#include <QRectF>

#include "remap/projection/frames.h"
#include "state/records/face_ellipse.h"

namespace varnel {

struct PictureEllipse {
    QPointF middle;
    double halfWidth = 0.0;
    double halfHeight = 0.0;
    double angle = 0.0;  // counter-clockwise, degrees

    // 0 in the middle, 1 on the border, from there on as many times as far away.
    double LevelAt(QPointF point) const;
    // In its own axes, pixels: across to the right and up, before it was turned.
    QPointF Within(QPointF point) const;
    QPointF PointAt(QPointF within) const;
};

// The frame before the crop on its result.
QRectF FrameOnResult(const OutputFrame& frame);

PictureEllipse OnResult(const FaceEllipse& face, const QRectF& frame);
FaceEllipse OnFrame(const PictureEllipse& ellipse, const QRectF& frame);

}  // namespace varnel
