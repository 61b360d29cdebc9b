// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/panels/reset_dot.h"

#include <QPainter>
#include <algorithm>

namespace varnel {

ResetDot::ResetDot(const QString& slider, const QString& spoken, QWidget* parent)
    : QAbstractButton(parent) {
    setObjectName(QStringLiteral("Dot") + slider);
    setAccessibleName(tr("Reset: %1").arg(spoken));
    setToolTip(tr("Not the usual value; a click resets it"));
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setEnabled(false);
}

QSize ResetDot::sizeHint() const {
    return {14, 20};
}

void ResetDot::paintEvent(QPaintEvent* /*event*/) {
    if (!isEnabled()) {
        return;
    }
    constexpr double usual = 3.5;  // radius
    constexpr double pointedAt = 4.5;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(palette().color(QPalette::Highlight));
    painter.setPen(hasFocus() ? QPen(palette().color(QPalette::WindowText), 1.5) : Qt::NoPen);
    const double radius = underMouse() || hasFocus() ? pointedAt : usual;
    painter.drawEllipse(QRectF(rect()).center(), radius, radius);
}

}  // namespace varnel
