// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/frame_overlay.h"

#include <QPolygonF>
#include <cmath>

#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr double handleSize = 8.0;  // logical pixels
constexpr QColor frameYellow(255, 225, 60);

Qt::CursorShape ShapeFor(const FramePoint& handle) {
    if (handle.across == 0.5) {
        return Qt::SizeVerCursor;
    }
    if (handle.up == 0.5) {
        return Qt::SizeHorCursor;
    }
    return (handle.across == handle.up) ? Qt::SizeBDiagCursor : Qt::SizeFDiagCursor;
}

}  // namespace

Projection FrameOverlay::Steered() const {
    return ProjectionFromIndex(port_.Setting().controls.projection);
}

void FrameOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    const OverlayGeometry* const study = port_.Study();
    if (study == nullptr) {
        return;
    }
    const QRectF whole = toWidget.mapRect(QRectF(QPointF(), QSizeF(picture)));
    painter.setClipRect(whole, Qt::IntersectClip);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    PaintLoss(painter, toWidget, *study);
    for (const SourceCurve& curve : study->border) {
        QPolygonF line;
        for (const SourcePosition& place : curve) {
            line.append(toWidget.map(PointOf(place, study->places.SourceSize())));
        }
        for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 3.5), QPen(frameYellow, 1.8)}) {
            painter.setPen(pen);
            painter.drawPolyline(line);
        }
    }
    PaintHandles(painter, toWidget, *study);
    PaintLabel(painter, VisiblePart(painter, whole).topLeft(), KeptText(study->kept.share));
}

void FrameOverlay::PaintLoss(QPainter& painter, const QTransform& toWidget,
                             const OverlayGeometry& study) {
    if (study.loss) {
        painter.fillPath(toWidget.map(*study.loss), lossShade);
        return;
    }
    // The last cells may reach beyond the picture's right and top edge.
    const SourceCoverage& kept = study.kept;
    const double height = study.places.SourceSize().height;
    const QRectF cells(0.0, height - kept.rows * kept.cell, kept.columns * kept.cell,
                       kept.rows * kept.cell);
    painter.drawImage(toWidget.mapRect(cells), LossImage(kept));
}

void FrameOverlay::PaintHandles(QPainter& painter, const QTransform& toWidget,
                                const OverlayGeometry& study) const {
    painter.setPen(QPen(Qt::black, 1.0));
    painter.setBrush(frameYellow);
    for (const FramePoint& handle : FrameHandles(Steered())) {
        const auto place = PlaceOf(handle, study.places);
        if (place && study.places.InPicture(*place)) {
            QRectF square(0.0, 0.0, handleSize, handleSize);
            square.moveCenter(toWidget.map(PointOf(*place, study.places.SourceSize())));
            painter.drawRect(square);
        }
    }
}

std::optional<FramePoint> FrameOverlay::HandleAt(const OverlayGeometry& study,
                                                 const OverlayInput& input) const {
    std::optional<FramePoint> nearest;
    double least = input.reach;
    for (const FramePoint& handle : FrameHandles(Steered())) {
        const auto place = PlaceOf(handle, study.places);
        if (!place || !study.places.InPicture(*place)) {
            continue;
        }
        const QPointF way = PointOf(*place, study.places.SourceSize()) - input.point;
        if (const double distance = std::hypot(way.x(), way.y()); distance <= least) {
            least = distance;
            nearest = handle;
        }
    }
    return nearest;
}

bool FrameOverlay::Inside(const OverlayGeometry& study, const OverlayInput& input) const {
    return FrameTurns(Steered()) &&
           study.kept.Keeps(PlaceAtPoint(input.point, study.places.SourceSize()));
}

bool FrameOverlay::Press(const OverlayInput& input) {
    const OverlayGeometry* const study = port_.Study();
    if (study == nullptr || input.buttons != Qt::LeftButton || !port_.MayMove()) {
        return false;
    }
    const auto handle = HandleAt(*study, input);
    if (!handle && !Inside(*study, input)) {
        return false;
    }
    const auto place = PlaceOf(handle.value_or(FramePoint{}), study->places);
    if (!place) {
        return false;
    }
    drag_ = Drag{handle, *place, PlaceAtPoint(input.point, study->places.SourceSize()),
                 port_.Setting().controls};
    return true;
}

void FrameOverlay::Move(const OverlayInput& input) {
    if (!drag_ || !port_.MayMove()) {
        return;
    }
    const FrameSetting setting = port_.Setting();
    const SourcePosition here = PlaceAtPoint(input.point, setting.size);
    const SourcePosition wanted{drag_->from.x + here.x - drag_->pressed.x,
                                drag_->from.y + here.y - drag_->pressed.y};
    ControlValues controls = setting.controls;
    if (!drag_->handle) {
        controls = TurnedNearest(setting, wanted);
    } else if (const auto slider = FrameSlider(ProjectionFromIndex(controls.projection))) {
        SetValueOf(*slider, WidthNearest(setting, *drag_->handle, wanted), controls);
    }
    if (!(controls == setting.controls)) {
        port_.Try(controls);
    }
}

void FrameOverlay::Release(const OverlayInput& /*input*/) {
    if (!drag_) {
        return;
    }
    const Drag drag = *drag_;
    drag_.reset();
    const ControlValues now = port_.Setting().controls;
    if (now == drag.before) {
        return;
    }
    if (const auto slider = FrameSlider(ProjectionFromIndex(now.projection));
        drag.handle && slider) {
        port_.Store(*slider);
    } else {
        port_.Store(now.rotateX != drag.before.rotateX ? SliderId::X : SliderId::Y);
    }
}

bool FrameOverlay::Wheel(const OverlayInput& input, double steps) {
    const OverlayGeometry* const study = port_.Study();
    if (study == nullptr || !port_.MayMove() || drag_ || input.modifiers != Qt::NoModifier) {
        return false;
    }
    const auto slider = FrameSlider(Steered());
    if (!slider) {
        return false;
    }
    // Away from the user goes nearer, as everywhere: the frame gets smaller.
    turned_ -= steps;
    const double whole = std::trunc(turned_);
    turned_ -= whole;
    if (whole != 0.0) {
        port_.Step(*slider, static_cast<int>(whole));
    }
    return true;
}

bool FrameOverlay::Key(const OverlayKey& key) {
    if (port_.Study() == nullptr || !port_.MayMove() || drag_) {
        return false;
    }
    if (key.grows != 0) {
        const auto slider = FrameSlider(Steered());
        if (slider) {
            port_.Step(*slider, key.grows * key.Times());
        }
        return slider.has_value();
    }
    if (key.arrow.isNull() || !FrameTurns(Steered())) {
        return false;
    }
    const bool across = key.arrow.x() != 0;
    port_.Step(across ? SliderId::Y : SliderId::X, (key.arrow.x() + key.arrow.y()) * key.Times());
    return true;
}

std::optional<QCursor> FrameOverlay::CursorAt(const OverlayInput& input) const {
    const OverlayGeometry* const study = port_.Study();
    if (study == nullptr || !port_.MayMove()) {
        return std::nullopt;
    }
    if (const auto handle = HandleAt(*study, input)) {
        return QCursor(ShapeFor(*handle));
    }
    return Inside(*study, input) ? std::optional(QCursor(Qt::SizeAllCursor)) : std::nullopt;
}

}  // namespace varnel
