// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/stroke_overlay.h"

#include <QLineF>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>

namespace varnel {

namespace {

constexpr QColor strokeColour(255, 140, 40);
constexpr double dotSize = 3.0;  // logical pixels
constexpr std::size_t mostDots = 24;
constexpr double crossArm = 9.0;  // logical pixels
constexpr double crossStep = 5.0;

double Distance(QPointF one, QPointF other) {
    return QLineF(one, other).length();
}

}  // namespace

void StrokeOverlay::Clear() {
    points_.clear();
    cross_.reset();
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

void StrokeOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    picture_ = picture;
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
    PaintCross(painter, toWidget);
}

void StrokeOverlay::PaintCross(QPainter& painter, const QTransform& toWidget) const {
    if (!cross_) {
        return;
    }
    const QPointF middle = toWidget.map(*cross_);
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 4.0), QPen(Qt::white, 1.5)}) {
        painter.setPen(pen);
        painter.drawLine(middle - QPointF(crossArm, 0.0), middle + QPointF(crossArm, 0.0));
        painter.drawLine(middle - QPointF(0.0, crossArm), middle + QPointF(0.0, crossArm));
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

bool StrokeOverlay::Key(const OverlayKey& key) {
    if (!key.arrow.isNull()) {
        MoveCross(key);
    } else if ((key.key == Qt::Key_Return || key.key == Qt::Key_Enter) && cross_) {
        SetAtCross(key.pixel);
    } else if (key.key == Qt::Key_Backspace && !points_.empty() && !complete_) {
        points_.pop_back();
    } else {
        return false;
    }
    changed_();
    return true;
}

// From the middle of the picture on; with Shift by one pixel of the screen.
void StrokeOverlay::MoveCross(const OverlayKey& key) {
    const bool fine = key.modifiers.testFlag(Qt::ShiftModifier);
    const double step = key.pixel * (fine ? 1.0 : crossStep * key.Times());
    const QPointF from = cross_.value_or(QRectF(QPointF(), QSizeF(picture_)).center());
    cross_ = {std::clamp(from.x() + key.arrow.x() * step, 0.0, picture_.width() * 1.0),
              std::clamp(from.y() + key.arrow.y() * step, 0.0, picture_.height() * 1.0)};
}

void StrokeOverlay::SetAtCross(double pixel) {
    const QPointF point = *cross_;
    if (complete_) {
        Clear();
        cross_ = point;
    }
    if (!points_.empty() && Distance(points_.back(), point) < pixel) {
        Finish();
    } else {
        points_.push_back(point);
    }
}

std::optional<QCursor> StrokeOverlay::CursorAt(const OverlayInput& /*input*/) const {
    return QCursor(Qt::CrossCursor);
}

}  // namespace varnel
