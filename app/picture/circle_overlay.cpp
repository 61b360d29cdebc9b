// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/circle_overlay.h"

#include <QLineF>
#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

constexpr QColor circleColour(90, 230, 255);
constexpr double crossSize = 9.0;  // logical pixels

QPointF CentreOf(const ImageCircle& circle) {
    return {circle.x, circle.y};
}

double DistanceOf(QPointF point, const ImageCircle& circle) {
    return QLineF(point, CentreOf(circle)).length();
}

}  // namespace

void CircleOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    const std::optional<ImageCircle> circle = shown_();
    if (!circle) {
        return;
    }
    painter.setClipRect(toWidget.mapRect(QRectF(QPointF(), QSizeF(picture))), Qt::IntersectClip);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF centre = toWidget.map(CentreOf(*circle));
    const double radius = circle->radius * toWidget.m11();
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 3.5), QPen(circleColour, 1.5)}) {
        painter.setPen(pen);
        painter.drawEllipse(centre, radius, radius);
        painter.drawLine(centre - QPointF(crossSize, 0.0), centre + QPointF(crossSize, 0.0));
        painter.drawLine(centre - QPointF(0.0, crossSize), centre + QPointF(0.0, crossSize));
    }
}

CircleOverlay::Part CircleOverlay::PartAt(const OverlayInput& input) const {
    const std::optional<ImageCircle> circle = shown_();
    if (!circle) {
        return Part::None;
    }
    const double distance = DistanceOf(input.point, *circle);
    constexpr double crossReach = 1.5;  // the cross is larger than a point
    return distance <= crossReach * input.reach                  ? Part::Centre
           : std::fabs(distance - circle->radius) <= input.reach ? Part::Rim
                                                                 : Part::None;
}

bool CircleOverlay::Press(const OverlayInput& input) {
    held_ = input.buttons.testFlag(Qt::LeftButton) ? PartAt(input) : Part::None;
    if (held_ != Part::None) {
        const ImageCircle circle = *shown_();
        grip_ = CentreOf(circle) - input.point;
        gripRadius_ = circle.radius - DistanceOf(input.point, circle);
        onHeld_();
    }
    return held_ != Part::None;
}

void CircleOverlay::Move(const OverlayInput& input) {
    const std::optional<ImageCircle> circle = shown_();
    if (!circle || held_ == Part::None) {
        return;
    }
    if (held_ == Part::Centre) {
        const QPointF centre = input.point + grip_;
        moved_({centre.x(), centre.y(), circle->radius});
    } else {
        const double radius = DistanceOf(input.point, *circle) + gripRadius_;
        moved_({circle->x, circle->y, std::max(radius, input.reach)});
    }
}

void CircleOverlay::Release(const OverlayInput& /*input*/) {
    held_ = Part::None;
    onHeld_();
}

bool CircleOverlay::Key(const OverlayKey& key) {
    const std::optional<ImageCircle> circle = shown_();
    if (!circle || (key.arrow.isNull() && key.grows == 0)) {
        return false;
    }
    const double by = key.pixel * key.Times();
    if (key.arrow.isNull() || key.modifiers.testFlag(Qt::ShiftModifier)) {
        const int grows = key.grows + key.arrow.x() - key.arrow.y();
        moved_({circle->x, circle->y, std::max(circle->radius + grows * by, key.pixel)});
    } else {
        moved_({circle->x + key.arrow.x() * by, circle->y + key.arrow.y() * by, circle->radius});
    }
    return true;
}

std::optional<QCursor> CircleOverlay::CursorAt(const OverlayInput& input) const {
    const Part part = PartAt(input);
    if (part == Part::None) {
        return std::nullopt;
    }
    if (part == Part::Centre) {
        return QCursor(Qt::SizeAllCursor);
    }
    const ImageCircle circle = *shown_();
    const double across = input.point.x() - circle.x;
    const double down = input.point.y() - circle.y;
    constexpr double steep = 2.4142;  // the tangent of 67.5 degrees
    if (std::fabs(across) > steep * std::fabs(down)) {
        return QCursor(Qt::SizeHorCursor);
    }
    if (std::fabs(down) > steep * std::fabs(across)) {
        return QCursor(Qt::SizeVerCursor);
    }
    return QCursor(across * down > 0.0 ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor);
}

}  // namespace varnel
