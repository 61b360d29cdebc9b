// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/steer/steer_overlay.h"

#include <algorithm>
#include <cmath>

#include "app/picture/overlay_geometry.h"

namespace varnel {

namespace {

constexpr double shortestDrag = 3.0;  // points of the screen; less is a click
constexpr double keyStep = 1.0;       // degrees
constexpr double fineKeyStep = 0.1;

Projection ProjectionOf(const Steered& steered) {
    return ProjectionFromIndex(steered.image.Projection);
}

// Another turn within the control's reach; tenths stay tenths however many are added.
float Turned(SliderId id, Projection projection, float angle, double by) {
    const double turned = WithinReach(id, projection, static_cast<double>(angle) + by);
    const double tenths = std::round(turned * 10.0) / 10.0;
    return static_cast<float>(std::fabs(turned - tenths) < 1e-4 ? tenths : turned);
}

}  // namespace

bool SteerOverlay::Press(const OverlayInput& input) {
    const bool rolls = input.modifiers == Qt::ShiftModifier;
    if (input.buttons != Qt::LeftButton || !(rolls || input.modifiers == Qt::NoModifier) ||
        !port_.MaySteer()) {
        return false;
    }
    const Steered now = port_.Now();
    const SourcePosition point = PlaceAtPoint(input.point, now.ResultSize());
    const auto place = PlaceUnder(now, point);
    if (!place || (rolls && !CanRoll(ProjectionOf(now)))) {
        return false;
    }
    port_.TakeKeyboard();
    if (input.doubled) {
        port_.Step(CentredOn(now, point), StepKind::Centre);
    } else {
        drag_ = Drag{input.point, *place, rolls};
    }
    return true;
}

void SteerOverlay::Move(const OverlayInput& input) {
    if (!drag_ || !port_.MaySteer()) {
        return;
    }
    const QPointF way = input.point - drag_->pressed;
    if (!drag_->moved && std::hypot(way.x(), way.y()) < shortestDrag * input.pixel) {
        return;
    }
    drag_->moved = true;
    const Steered now = port_.Now();
    const SourcePosition point = PlaceAtPoint(input.point, now.ResultSize());
    port_.Try(drag_->rolls ? RolledTo(now, point, drag_->place)
                           : TurnedTo(now, point, drag_->place));
}

void SteerOverlay::Release(const OverlayInput& /*input*/) {
    if (Dragging()) {
        port_.StoreTried(drag_->rolls ? StepKind::Roll : StepKind::Turn);
    }
    drag_.reset();
}

bool SteerOverlay::Wheel(const OverlayInput& input, double steps) {
    if (input.modifiers != Qt::NoModifier || !port_.MaySteer()) {
        return false;
    }
    const Steered now = port_.Now();
    if (!CanWiden(ProjectionOf(now))) {
        return false;
    }
    if (!drag_ && steps != 0.0) {
        port_.Step(WidenedAt(now, PlaceAtPoint(input.point, now.ResultSize()), steps),
                   StepKind::AngleOfView);
    }
    return true;
}

bool SteerOverlay::Key(const OverlayKey& key) {
    const bool fine = key.modifiers == Qt::AltModifier;
    if (key.arrow.isNull() || !(fine || key.modifiers == Qt::NoModifier) || !port_.MaySteer()) {
        return false;
    }
    const Steered now = port_.Now();
    const double step = fine ? fineKeyStep : keyStep;
    ImageRecord turned = now.image;
    turned.RotateX = Turned(SliderId::X, ProjectionOf(now), turned.RotateX, key.arrow.y() * step);
    turned.RotateY = Turned(SliderId::Y, ProjectionOf(now), turned.RotateY, key.arrow.x() * step);
    port_.Step(turned, StepKind::Turn);
    return true;
}

std::optional<QCursor> SteerOverlay::CursorAt(const OverlayInput& /*input*/) const {
    return port_.MaySteer() ? std::optional(QCursor(Qt::OpenHandCursor)) : std::nullopt;
}

}  // namespace varnel
