// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the overlays about the conversion's geometry draw, worked out once for each setting, and the
// texts that go with it.
#pragma once

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QString>

#include "remap/analysis/projection_metrics.h"

namespace varnel {

struct FrameStudy {
    // Throws as ResultPlaces.
    FrameStudy(Projection projection, const ImageRecord& image, PixelSize size);
    FrameStudy(const FrameStudy&) = delete;
    FrameStudy& operator=(const FrameStudy&) = delete;

    ResultPlaces places;
    ResultGrid grid;
    std::vector<SourceCurve> border;
    KeptArea kept;
    std::optional<QPainterPath> loss;  // in points of overlays; nothing without a KeptOutline
};

// The part of a picture that is in sight, for what is written over it.
QRectF VisiblePart(const QPainter& painter, const QRectF& picture);

// Between places, whose rows count from the bottom, and the points of overlays.
QPointF PointOf(const SourcePlace& place, PixelSize size);
SourcePlace PlaceAtPoint(const QPointF& point, PixelSize size);

// What is lost, a pixel for each of the cells, top row first.
QImage LossImage(const KeptArea& kept);
inline constexpr QColor lossShade(0, 0, 0, 150);
// Blue where the photo is shrunk, orange where it is stretched, stronger the more.
QImage MagnificationImage(const MagnificationMap& map);
QColor ColourOf(Magnified magnified);

// "keeps 63 % of the circle"
QString KeptText(double share);
// The four numbers in one line.
QString NumbersText(const ResultNumbers& numbers);

}  // namespace varnel
