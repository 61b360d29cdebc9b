// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/crop/crop_overlay.h"

#include <QPainterPath>
#include <cmath>

namespace varnel {

namespace {

constexpr double handleSize = 9.0;  // logical pixels
constexpr QColor outside(0, 0, 0, 150);

void PaintThirds(QPainter& painter, const QRectF& crop) {
    painter.setPen(QPen(QColor(255, 255, 255, 120), 1.0));
    for (const double third : {1.0 / 3.0, 2.0 / 3.0}) {
        const double x = crop.left() + crop.width() * third;
        const double y = crop.top() + crop.height() * third;
        painter.drawLine(QPointF(x, crop.top()), QPointF(x, crop.bottom()));
        painter.drawLine(QPointF(crop.left(), y), QPointF(crop.right(), y));
    }
}

void PaintHandles(QPainter& painter, const QRectF& crop) {
    painter.setPen(QPen(Qt::black, 1.0));
    painter.setBrush(Qt::white);
    for (const double across : {0.0, 0.5, 1.0}) {
        for (const double down : {0.0, 0.5, 1.0}) {
            if (across != 0.5 || down != 0.5) {
                QRectF square(0.0, 0.0, handleSize, handleSize);
                square.moveCenter(
                    {crop.left() + crop.width() * across, crop.top() + crop.height() * down});
                painter.drawRect(square);
            }
        }
    }
}

Qt::CursorShape ShapeFor(const CropGrip& grip) {
    if (grip.IsAll()) {
        return Qt::SizeAllCursor;
    }
    if (!grip.left && !grip.right) {
        return Qt::SizeVerCursor;
    }
    if (!grip.top && !grip.bottom) {
        return Qt::SizeHorCursor;
    }
    return grip.left == grip.top ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor;
}

QRectF PointsOf(const QRectF& crop, QSizeF frame) {
    return {crop.left() * frame.width(), crop.top() * frame.height(), crop.width() * frame.width(),
            crop.height() * frame.height()};
}

}  // namespace

void CropOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    const std::optional<QRectF> crop = port_.Crop();
    if (!crop) {
        return;
    }
    const QRectF whole = toWidget.mapRect(QRectF(QPointF(), QSizeF(picture)));
    const QRectF kept = toWidget.mapRect(PointsOf(*crop, picture));
    QPainterPath away;
    away.addRect(whole);
    QPainterPath inside;
    inside.addRect(kept);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(away.subtracted(inside), outside);
    PaintThirds(painter, kept);
    painter.setBrush(Qt::NoBrush);
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 3.5), QPen(Qt::white, 1.6)}) {
        painter.setPen(pen);
        painter.drawRect(kept);
    }
    PaintHandles(painter, kept);
}

QPointF CropOverlay::ShareOf(QPointF point) const {
    const QSizeF frame = port_.FrameSize();
    return {point.x() / frame.width(), point.y() / frame.height()};
}

std::optional<CropGrip> CropOverlay::GripAt(const OverlayInput& input) const {
    const std::optional<QRectF> crop = port_.Crop();
    if (!crop) {
        return std::nullopt;
    }
    const QRectF at = PointsOf(*crop, port_.FrameSize());
    const double reach = input.reach;
    if (!at.adjusted(-reach, -reach, reach, reach).contains(input.point)) {
        return std::nullopt;
    }
    const auto near = [reach](double a, double b) { return std::fabs(a - b) <= reach; };
    const CropGrip grip{near(input.point.x(), at.left()), near(input.point.y(), at.top()),
                        near(input.point.x(), at.right()), near(input.point.y(), at.bottom())};
    return grip == CropGrip{} ? wholeCrop : grip;
}

// Also beside it: a click there turns nothing.
bool CropOverlay::Press(const OverlayInput& input) {
    if (input.buttons != Qt::LeftButton || !port_.Crop()) {
        return false;
    }
    if (const std::optional<CropGrip> grip = GripAt(input)) {
        drag_ = Drag{*grip, ShareOf(input.point), *port_.Crop()};
    }
    return true;
}

void CropOverlay::Move(const OverlayInput& input) {
    if (drag_) {
        port_.Try(DraggedCrop(drag_->from, drag_->grip, ShareOf(input.point) - drag_->pressed,
                              port_.Shape()));
    }
}

void CropOverlay::Release(const OverlayInput& /*input*/) {
    if (drag_) {
        drag_.reset();
        port_.StoreTried();
    }
}

// It would change the angle of view, which is not what is looked at.
bool CropOverlay::Wheel(const OverlayInput& /*input*/, double /*steps*/) {
    return port_.Crop().has_value();
}

QRectF CropOverlay::KeyMoved(const QRectF& crop, const OverlayKey& key) const {
    const QPointF step = ShareOf({key.pixel * key.Times(), key.pixel * key.Times()});
    if (key.grows != 0) {
        return GrownCrop(crop, 2.0 * key.grows * step.x(), port_.Shape());
    }
    const QPointF by(key.arrow.x() * step.x(), key.arrow.y() * step.y());
    const bool widens = key.modifiers.testFlag(Qt::ShiftModifier);
    const CropGrip grip = !widens              ? wholeCrop
                          : key.arrow.x() != 0 ? CropGrip{.right = true}
                                               : CropGrip{.bottom = true};
    return DraggedCrop(crop, grip, by, port_.Shape());
}

bool CropOverlay::Key(const OverlayKey& key) {
    const std::optional<QRectF> crop = port_.Crop();
    if (!crop || drag_) {
        return false;
    }
    if (key.key == Qt::Key_Return || key.key == Qt::Key_Enter) {
        port_.Finish();
    } else if (!key.arrow.isNull() || key.grows != 0) {
        port_.Step(KeyMoved(*crop, key));
    } else {
        return false;
    }
    return true;
}

std::optional<QCursor> CropOverlay::CursorAt(const OverlayInput& input) const {
    if (!port_.Crop()) {
        return std::nullopt;
    }
    const std::optional<CropGrip> grip = GripAt(input);
    return QCursor(grip ? ShapeFor(*grip) : Qt::ArrowCursor);
}

}  // namespace varnel
