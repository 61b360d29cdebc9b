// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/divider_overlay.h"

#include "app/picture/overlay_geometry.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

constexpr double edge = 0.02;      // the line stays that share off the picture's sides
constexpr double keyStep = 0.05;   // of the width, with an arrow key
constexpr double knobSize = 18.0;  // logical pixels

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(DividerOverlay)
};

}  // namespace

void DividerOverlay::Show(Division division) {
    division_ = division;
    MoveTo(share_);
}

void DividerOverlay::MoveTo(double share) {
    share_ = std::clamp(share, edge, 1.0 - edge);
    LeftPart left;
    if (division_ == Division::Photo) {
        left.other = &before_;
    } else if (division_ == Division::Sampling) {
        left.full = classic_;
    }
    box_.Divide(std::move(left), share_);
}

void DividerOverlay::Paint(QPainter& painter, const QTransform& /*toWidget*/, QSize /*picture*/) {
    if (!IsShown()) {
        return;
    }
    const QRectF before = box_.DividedPart();
    const QPointF top = before.topRight();
    const bool samplings = division_ == Division::Sampling;
    painter.setRenderHint(QPainter::Antialiasing);
    PaintLabel(painter, top, samplings ? Texts::tr("classic") : Texts::tr("before"), true);
    PaintLabel(painter, top, samplings ? Texts::tr("fine") : Texts::tr("after"));
    for (const QPen& pen : {QPen(QColor(0, 0, 0, 160), 3.5), QPen(Qt::white, 1.6)}) {
        painter.setPen(pen);
        painter.drawLine(top, before.bottomRight());
    }
    QRectF knob(0.0, 0.0, knobSize, knobSize);
    knob.moveCenter({top.x(), before.center().y()});
    painter.setPen(QPen(Qt::black, 1.0));
    painter.setBrush(Qt::white);
    painter.drawEllipse(knob);
    painter.drawText(knob, Qt::AlignCenter, QStringLiteral("\u2194"));
}

bool DividerOverlay::IsAt(const OverlayInput& input) const {
    if (!IsShown()) {
        return false;
    }
    const double x = box_.ToWidget().map(input.point).x();
    return std::fabs(x - box_.DividedPart().right()) * input.pixel <= input.reach;
}

bool DividerOverlay::Press(const OverlayInput& input) {
    return input.buttons == Qt::LeftButton && input.modifiers == Qt::NoModifier && IsAt(input);
}

void DividerOverlay::Move(const OverlayInput& input) {
    const QRectF seen = box_.SeenPart();
    if (!seen.isEmpty()) {
        MoveTo((box_.ToWidget().map(input.point).x() - seen.left()) / seen.width());
    }
}

bool DividerOverlay::Key(const OverlayKey& key) {
    if (!IsShown() || key.modifiers != Qt::ControlModifier || key.arrow.x() == 0) {
        return false;
    }
    MoveTo(share_ + key.arrow.x() * keyStep);
    return true;
}

std::optional<QCursor> DividerOverlay::CursorAt(const OverlayInput& input) const {
    return IsAt(input) ? std::optional(QCursor(Qt::SplitHCursor)) : std::nullopt;
}

}  // namespace varnel
