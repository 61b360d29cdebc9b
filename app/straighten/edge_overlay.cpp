// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/straighten/edge_overlay.h"

#include <QLineF>
#include <QLocale>
#include <QPolygonF>
#include <algorithm>

#include "app/straighten/straighten_texts.h"

namespace varnel {

namespace {

constexpr double straight = 0.5;  // pixels off, root mean square
constexpr double fair = 1.5;
constexpr double crossSize = 7.0;  // logical pixels

QColor ColourOf(const EdgeOnPhoto& edge) {
    if (edge.away) {
        return {170, 170, 170};
    }
    if (!edge.result) {
        return {90, 200, 255};
    }
    return !edge.result->used || edge.result->rms > fair ? QColor(255, 90, 80)
           : edge.result->rms > straight                 ? QColor(255, 200, 60)
                                                         : QColor(90, 230, 120);
}

QString LabelOf(const EdgeOnPhoto& edge) {
    QStringList parts;
    if (edge.result) {
        parts.append(QLocale().toString(edge.result->rms, 'f', 2));
    }
    if (edge.trace.tag != EdgeTag::None) {
        parts.append(TagText(edge.trace.tag));
    }
    return parts.join(u' ');
}

void PaintLabel(QPainter& painter, QPointF place, const QString& text) {
    const QRectF room = QRectF(painter.fontMetrics().boundingRect(text))
                            .translated(place + QPointF(6.0, -6.0))
                            .adjusted(-3.0, -1.0, 3.0, 1.0);
    painter.fillRect(room, QColor(0, 0, 0, 170));
    painter.setPen(Qt::white);
    painter.drawText(room, Qt::AlignCenter, text);
}

}  // namespace

EdgePoint EdgePlace(QPointF point, PixelSize photo) {
    return {point.x(), photo.height - point.y()};
}

QPointF EdgeOverlay::PointOn(const EdgePoint& place) const {
    const Bitmap& photo = *model_.Photos()[static_cast<std::size_t>(photo_)].bitmap;
    return {place.x, photo.Size().height - place.y};
}

int EdgeOverlay::EdgeAt(QPointF point, double reach) const {
    int nearest = -1;
    for (std::size_t n = 0; n < model_.Edges().size(); ++n) {
        const EdgeTrace& trace = model_.Edges()[n].trace;
        const double ends = std::min(1.5 * reach, 0.25 * Span(trace));
        for (std::size_t k = 0; trace.photo == photo_ && k < trace.points.size(); ++k) {
            if (Distance(trace.points[k], trace.points.front()) < ends ||
                Distance(trace.points[k], trace.points.back()) < ends) {
                continue;
            }
            const double distance = QLineF(point, PointOn(trace.points[k])).length();
            if (distance <= reach) {
                reach = distance;
                nearest = static_cast<int>(n);
            }
        }
    }
    return nearest;
}

void EdgeOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize /*picture*/) {
    if (model_.Photos().empty()) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t n = 0; n < model_.Edges().size(); ++n) {
        PaintEdge(painter, toWidget, n);
    }
    if (begun_) {
        const QPointF place = toWidget.map(*begun_);
        painter.setPen(QPen(QColor(255, 140, 40), 2.0));
        painter.drawLine(place - QPointF(crossSize, 0.0), place + QPointF(crossSize, 0.0));
        painter.drawLine(place - QPointF(0.0, crossSize), place + QPointF(0.0, crossSize));
    }
}

void EdgeOverlay::PaintEdge(QPainter& painter, const QTransform& toWidget,
                            std::size_t number) const {
    const EdgeOnPhoto& edge = model_.Edges()[number];
    if (edge.trace.photo != photo_ || edge.trace.points.empty()) {
        return;
    }
    QPolygonF line;
    for (const EdgePoint& point : edge.trace.points) {
        line.append(toWidget.map(PointOn(point)));
    }
    const bool selected = static_cast<int>(number) == selected_;
    const double width = selected ? 3.5 : 1.8;
    painter.setPen(QPen(selected ? QColor(255, 255, 255, 220) : QColor(0, 0, 0, 130), width + 2.0));
    painter.drawPolyline(line);
    painter.setPen(QPen(ColourOf(edge), width, edge.away ? Qt::DotLine : Qt::SolidLine));
    painter.drawPolyline(line);
    const QString label = LabelOf(edge);
    if (!label.isEmpty() && (selected || edge.trace.tag != EdgeTag::None)) {
        PaintLabel(painter, line[line.size() / 2], label);
    }
}

std::optional<QCursor> EdgeOverlay::CursorAt(const OverlayInput& input) const {
    return QCursor(!begun_ && EdgeAt(input.point, input.reach) >= 0 ? Qt::PointingHandCursor
                                                                    : Qt::CrossCursor);
}

}  // namespace varnel
