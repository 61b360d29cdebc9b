// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/inset_frame.h"

#include <QMouseEvent>
#include <QPainter>

namespace varnel {

namespace {

constexpr int bar = 16;  // logical pixels
constexpr int edge = 5;
constexpr int corner = 18;
constexpr QSize smallest(120, 96);
constexpr QColor frameGrey(48, 48, 48);
constexpr QColor gripGrey(190, 190, 190);

}  // namespace

InsetFrame::InsetFrame(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("PhotoInset"));
    setMouseTracking(true);
    setToolTip(tr("The photo as shot: drag the bar to move it, the corner to resize it"));
}

QRect InsetFrame::Inside() const {
    return geometry().adjusted(edge, bar, -edge, -edge);
}

QSize InsetFrame::FittedTo(QSize picture, QSize size) {
    const QSize around(2 * edge, bar + edge);
    const QSize inside = size.expandedTo(smallest) - around;
    return picture.isEmpty() ? size : picture.scaled(inside, Qt::KeepAspectRatio) + around;
}

InsetFrame::Grip InsetFrame::GripAt(QPoint point) const {
    if (point.x() >= width() - corner && point.y() >= height() - corner) {
        return Grip::Corner;
    }
    return point.y() < bar ? Grip::Bar : Grip::None;
}

void InsetFrame::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(frameGrey);
    painter.drawRoundedRect(rect(), 4.0, 4.0);
    painter.setPen(QPen(gripGrey, 1.5));
    const int middle = width() / 2;
    for (const int y : {6, 10}) {
        painter.drawLine(middle - 12, y, middle + 12, y);
    }
    const QPoint end(width() - 2, height() - 2);
    painter.drawLine(end - QPoint(12, 0), end - QPoint(0, 12));
    painter.drawLine(end - QPoint(6, 0), end - QPoint(0, 6));
}

void InsetFrame::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) {
        grip_ = GripAt(event->position().toPoint());
        from_ = event->globalPosition().toPoint();
        before_ = geometry();
    }
}

void InsetFrame::mouseMoveEvent(QMouseEvent* event) {
    const QPoint by = event->globalPosition().toPoint() - from_;
    if (grip_ == Grip::Bar) {
        Q_EMIT Wanted(before_.translated(by));
    } else if (grip_ == Grip::Corner) {
        const QSize size = before_.size() + QSize(by.x(), by.y());
        Q_EMIT Wanted({before_.topLeft(), size.expandedTo(smallest)});
    } else {
        const Grip grip = GripAt(event->position().toPoint());
        setCursor(grip == Grip::Corner ? Qt::SizeFDiagCursor
                  : grip == Grip::Bar  ? Qt::SizeAllCursor
                                       : Qt::ArrowCursor);
    }
}

void InsetFrame::mouseReleaseEvent(QMouseEvent* /*event*/) {
    grip_ = Grip::None;
}

}  // namespace varnel
