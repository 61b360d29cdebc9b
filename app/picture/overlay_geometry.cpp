// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/overlay_geometry.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

constexpr QColor shrunkBlue(40, 120, 255);
constexpr QColor stretchedOrange(255, 140, 0);

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(OverlayGeometry)
};

QString Fixed(double number, int decimals) {
    return QLocale::c().toString(number, 'f', decimals);
}

std::optional<QPainterPath> LossPath(const InverseMapping& places,
                                     const std::optional<SourceCurve>& outline) {
    if (!outline) {
        return std::nullopt;
    }
    const PixelSize size = places.SourceSize();
    QPainterPath photo;
    photo.addRect(0.0, 0.0, size.width, size.height);
    if (const auto& circle = places.Circle()) {
        QPainterPath whole;
        whole.addEllipse(PointOf(circle->centre, size), circle->radius, circle->radius);
        photo = photo.intersected(whole);
    }
    QPolygonF kept;
    for (const SourcePosition& place : *outline) {
        kept.append(PointOf(place, size));
    }
    QPainterPath inside;
    inside.addPolygon(kept);
    return photo.subtracted(inside);
}

}  // namespace

OverlayGeometry::OverlayGeometry(Projection projection, const ImageRecord& image, PixelSize size,
                                 int columns)
    : places(projection, image, size),
      grid(places, columns),
      border(BorderCurves(places)),
      kept(MeasureCoverage(grid)),
      loss(LossPath(places, CoverageOutline(places, kept))) {}

QRectF VisiblePart(const QPainter& painter, const QRectF& picture) {
    const QRectF seen = picture & QRectF(painter.viewport());
    return painter.hasClipping() ? seen & painter.clipBoundingRect() : seen;
}

void PaintLabel(QPainter& painter, const QPointF& corner, const QString& text, bool toTheLeft) {
    constexpr double away = 8.0;  // logical pixels
    QRectF place = QRectF(painter.fontMetrics().boundingRect(text)).adjusted(-6.0, -3.0, 6.0, 3.0);
    place.moveTopLeft(corner + QPointF(toTheLeft ? -place.width() - away : away, away));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 170));
    painter.drawRoundedRect(place, 4.0, 4.0);
    painter.setPen(Qt::white);
    painter.drawText(place, Qt::AlignCenter, text);
}

QPointF PointOf(const SourcePosition& place, PixelSize size) {
    return {place.x + 0.5, size.height - 0.5 - place.y};
}

SourcePosition PlaceAtPoint(const QPointF& point, PixelSize size) {
    return {point.x() - 0.5, size.height - 0.5 - point.y()};
}

QImage LossImage(const SourceCoverage& kept) {
    QImage image(kept.columns, kept.rows, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int row = 0; row < kept.rows; ++row) {
        for (int column = 0; column < kept.columns; ++column) {
            if (kept.Lost(column, row)) {
                image.setPixelColor(column, kept.rows - 1 - row, lossShade);
            }
        }
    }
    return image;
}

QColor ColourOf(Magnified magnified) {
    switch (magnified) {
        case Magnified::Shrunk:
            return shrunkBlue;
        case Magnified::Stretched:
            return stretchedOrange;
        case Magnified::Nothing:
        case Magnified::AboutSame:
            break;
    }
    return Qt::transparent;
}

QImage MagnificationImage(const MagnificationMap& map) {
    QImage image(map.columns, map.rows, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int row = 0; row < map.rows; ++row) {
        for (int column = 0; column < map.columns; ++column) {
            const double magnification = static_cast<double>(map.At(column, row));
            QColor colour = ColourOf(ClassOf(magnification));
            if (colour.alpha() != 0) {
                // Full strength from four times on.
                colour.setAlphaF(static_cast<float>(
                    0.2 + 0.4 * std::min(std::fabs(std::log2(magnification)) / 2.0, 1.0)));
                image.setPixelColor(column, map.rows - 1 - row, colour);
            }
        }
    }
    return image;
}

QString KeptText(double share) {
    return Texts::tr("keeps %1 % of the circle").arg(std::lround(share * 100.0));
}

QString NumbersText(const ProjectionMetrics& numbers) {
    const QString none = Texts::tr("none");
    const QString centre = numbers.centreResolution
                               ? Fixed(*numbers.centreResolution, 2) + QStringLiteral(" : 1")
                               : none;
    const QString corner =
        numbers.cornerStretch ? Fixed(*numbers.cornerStretch, 1) + QStringLiteral(" x") : none;
    const QString rectangle =
        numbers.rectangle.width > 0
            ? Texts::tr("%1 x %2 pixels").arg(numbers.rectangle.width).arg(numbers.rectangle.height)
            : none;
    const QString where =
        numbers.halfWay ? Texts::tr("Half-way resolution %1") : Texts::tr("Centre resolution %1");
    return Texts::tr(
               "%1   |   Worst corner stretch %2   |   Area kept %3 %   |   "
               "Largest rectangle without black %4")
        .arg(where.arg(centre), corner, QString::number(std::lround(numbers.keptShare * 100.0)),
             rectangle);
}

}  // namespace varnel
