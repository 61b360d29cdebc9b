// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/dialogs/stretch_view.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

constexpr int margin = 12;              // logical pixels around the picture and the curve
constexpr int curveWidth = 150;         // of the curve's panel
constexpr QColor surround(96, 96, 96);  // neutral, so that it does not tint the view
constexpr QColor panelColour(84, 84, 84);
constexpr QColor gridColour(112, 112, 112);
constexpr QColor textColour(225, 225, 225);
constexpr QColor curveColour(255, 176, 64);

// At the bottom of the rectangle; legible also where the curve runs through.
void PaintWord(QPainter& painter, const QRectF& place, Qt::AlignmentFlag side,
               const QString& word) {
    const int where = side | Qt::AlignBottom;
    painter.fillRect(painter.boundingRect(place, where, word), panelColour);
    painter.setPen(textColour);
    painter.drawText(place, where, word);
}

}  // namespace

StretchView::StretchView(QWidget* parent) : QWidget(parent) {
    setAccessibleName(tr("The stretched picture and the curve of its stretch"));
}

void StretchView::Show(const QImage& picture) {
    picture_ = picture;
    picture_.setDevicePixelRatio(devicePixelRatioF());
    update();
}

void StretchView::Show(const StretchCurve& curve) {
    curve_ = curve;
    update();
}

QSize StretchView::Room() const {
    return {width() - 3 * margin - curveWidth, height() - 2 * margin};
}

QRectF StretchView::PictureRect() const {
    const QSizeF size = picture_.isNull() ? QSizeF(Room()) : picture_.deviceIndependentSize();
    // Whole device pixels, or the picture would be blurred on a scaled screen.
    const double ratio = devicePixelRatioF();
    const auto middle = [ratio](double room, double side) {
        return std::floor((room - side) / 2.0 * ratio) / ratio + margin;
    };
    return {QPointF(middle(Room().width(), size.width()), middle(Room().height(), size.height())),
            size};
}

void StretchView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), surround);
    const QRectF place = PictureRect();
    if (picture_.isNull()) {
        painter.fillRect(place, panelColour);
        painter.setPen(textColour);
        painter.drawText(place, Qt::AlignCenter | Qt::TextWordWrap,
                         tr("Open a photo or drop one here."));
    } else {
        painter.drawImage(place.topLeft(), picture_);
    }
    PaintCurve(painter, {place.right() + margin, place.top(), curveWidth, place.height()});
}

// Factor 0 at the left edge, 1 in the middle, 2 at the right edge.
void StretchView::PaintCurve(QPainter& painter, const QRectF& panel) const {
    const auto pointAt = [&](double height, double factor) {
        return QPointF(panel.left() + panel.width() * factor / 2.0,
                       panel.center().y() - panel.height() / 2.0 * height);
    };
    painter.fillRect(panel, panelColour);
    painter.setPen(QPen(gridColour, 1.0, Qt::DashLine));
    painter.drawLine(pointAt(-1.0, 1.0), pointAt(1.0, 1.0));
    painter.drawLine(pointAt(curve_.middle, 0.0), pointAt(curve_.middle, 2.0));
    QPolygonF line;
    const int steps = std::max(static_cast<int>(panel.height()), 2);
    for (int step = 0; step <= steps; ++step) {
        const double height = 2.0 * step / steps - 1.0;
        line.append(pointAt(height, curve_.FactorAt(height)));
    }
    painter.setClipRect(panel);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(curveColour, 2.0));
    painter.drawPolyline(line);
    const QRectF words = panel.adjusted(6, 4, -6, -4);
    PaintWord(painter, words, Qt::AlignLeft, tr("wider"));
    PaintWord(painter, words, Qt::AlignRight, tr("narrower"));
}

void StretchView::resizeEvent(QResizeEvent* /*event*/) {
    Q_EMIT RoomChanged();
}

}  // namespace varnel
