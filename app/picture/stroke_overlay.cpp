// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/stroke_overlay.h"

#include <QLineF>
#include <QPolygonF>

namespace varnel {

namespace {

constexpr QColor strokeColour(255, 140, 40);
constexpr double dotSize = 3.0;  // logical pixels
constexpr std::size_t mostDots = 24;

double Distance(QPointF one, QPointF other) {
    return QLineF(one, other).length();
}

}  // namespace

void StrokeOverlay::Clear() {
    points_.clear();
    complete_ = drawn_ = ending_ = false;
    changed_();
}

void StrokeOverlay::Finish() {
    if (points_.size() >= 2 && !complete_) {
        complete_ = true;
        changed_();
        finished_();
    }
}

void StrokeOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize /*picture*/) {
    QPolygonF line;
    for (const QPointF point : points_) {
        line.append(toWidget.map(point));
    }
    painter.setRenderHint(QPainter::Antialiasing);
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 4.0), QPen(strokeColour, 2.0)}) {
        painter.setPen(pen);
        painter.drawPolyline(line);
    }
    painter.setBrush(strokeColour);
    if (points_.size() <= mostDots) {
        for (const QPointF point : line) {
            painter.drawEllipse(point, dotSize, dotSize);
        }
    }
}

bool StrokeOverlay::Press(const OverlayInput& input) {
    if (!input.buttons.testFlag(Qt::LeftButton)) {
        return false;
    }
    if (complete_) {
        Clear();
    }
    drawn_ = false;
    ending_ = !points_.empty() && Distance(points_.back(), input.point) <= input.reach;
    if (!ending_) {
        points_.push_back(input.point);
    }
    changed_();
    return true;
}

void StrokeOverlay::Move(const OverlayInput& input) {
    const double least = drawn_ ? input.reach / 4.0 : input.reach;
    if (!points_.empty() && Distance(points_.back(), input.point) >= least) {
        drawn_ = true;
        points_.push_back(input.point);
        changed_();
    }
}

void StrokeOverlay::Release(const OverlayInput& /*input*/) {
    if (drawn_ || ending_) {
        Finish();
    }
}

std::optional<QCursor> StrokeOverlay::CursorAt(const OverlayInput& /*input*/) const {
    return QCursor(Qt::CrossCursor);
}

}  // namespace varnel
