// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/picture_lines.h"

#include <QLineF>
#include <algorithm>
#include <vector>

namespace varnel {

namespace {

constexpr int squares = 12;  // along the longer side

// From the middle outward, so that the cross is a part of the grid.
std::vector<QLineF> GridLines(QSizeF picture) {
    const double step = std::max(picture.width(), picture.height()) / squares;
    std::vector<QLineF> lines;
    for (int n = -squares / 2; n <= squares / 2; ++n) {
        const double x = picture.width() / 2.0 + n * step;
        const double y = picture.height() / 2.0 + n * step;
        if (x >= 0.0 && x <= picture.width()) {
            lines.emplace_back(x, 0.0, x, picture.height());
        }
        if (y >= 0.0 && y <= picture.height()) {
            lines.emplace_back(0.0, y, picture.width(), y);
        }
    }
    return lines;
}

std::vector<QLineF> CrossLines(QSizeF picture) {
    const double x = picture.width() / 2.0;
    const double y = picture.height() / 2.0;
    return {{x, 0.0, x, picture.height()}, {0.0, y, picture.width(), y}};
}

// Dark beside light, to be seen on any picture.
void DrawLines(QPainter& painter, const QTransform& toWidget, const std::vector<QLineF>& lines,
               const QColor& colour) {
    painter.setRenderHint(QPainter::Antialiasing,
                          false);  // which would spread them over two pixels
    for (const QLineF& line : lines) {
        const QLineF shown = toWidget.map(line);
        const QPointF aside = shown.dx() == 0.0 ? QPointF(1.0, 0.0) : QPointF(0.0, 1.0);
        painter.setPen(QPen(QColor(0, 0, 0, colour.alpha() * 4 / 5), 1.0));
        painter.drawLine(shown.translated(aside));
        painter.setPen(QPen(colour, 1.0));
        painter.drawLine(shown);
    }
}

}  // namespace

void PictureLines::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    if (grid_) {
        DrawLines(painter, toWidget, GridLines(picture), QColor(255, 255, 255, 190));
    }
    if (cross_) {
        DrawLines(painter, toWidget, CrossLines(picture), QColor(255, 235, 59, 230));
    }
}

}  // namespace varnel
