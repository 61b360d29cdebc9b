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

struct OverlayGeometry {
    // The net has about so many columns. Throws as InverseMapping; all else here throws nothing.
    OverlayGeometry(Projection projection, const ImageRecord& image, PixelSize size,
                    int columns = 128);
    OverlayGeometry(const OverlayGeometry&) = delete;
    OverlayGeometry& operator=(const OverlayGeometry&) = delete;

    InverseMapping places;
    MappingMesh grid;
    std::vector<SourceCurve> border;
    SourceCoverage kept;
    std::optional<QPainterPath> loss;  // in points of overlays; nothing without a CoverageOutline
};

// The part of a picture that is in sight, for what is written over it.
QRectF VisiblePart(const QPainter& painter, const QRectF& picture);

// Writes a text on a dark ground, below the corner and to the right of it, or to its left.
void PaintLabel(QPainter& painter, const QPointF& corner, const QString& text,
                bool toTheLeft = false);

// Between positions on the photo, whose rows count from the bottom row, and the points of overlays,
// from the top left corner with y down. The size is the photo's, in pixels; the same for the
// result.
QPointF PointOf(const SourcePosition& place, PixelSize size);
SourcePosition PlaceAtPoint(const QPointF& point, PixelSize size);

// What is lost, a pixel for each of the cells, top row first.
QImage LossImage(const SourceCoverage& kept);
inline constexpr QColor lossShade(0, 0, 0, 150);
// Blue where the photo is shrunk, orange where it is stretched, stronger the more. A pixel for each
// of the cells, top row first.
QImage MagnificationImage(const MagnificationMap& map);
QColor ColourOf(Magnified magnified);

// "keeps 63 % of the circle", for a share from 0 to 1.
QString KeptText(double share);
// The four numbers in one line.
QString NumbersText(const ProjectionMetrics& numbers);

}  // namespace varnel
