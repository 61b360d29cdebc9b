// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/magnification_overlay.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace varnel {

namespace {

struct LegendLine {
    Magnified magnified;
    const char* text;
};

constexpr std::array<LegendLine, 3> legend{
    {{Magnified::Shrunk, QT_TRANSLATE_NOOP("MagnificationOverlay", "shrunk")},
     {Magnified::AboutSame, QT_TRANSLATE_NOOP("MagnificationOverlay", "about 1 : 1")},
     {Magnified::Stretched, QT_TRANSLATE_NOOP("MagnificationOverlay", "stretched")}}};

// In the lower right corner.
void PaintLegend(QPainter& painter, const QRectF& picture) {
    const double line = painter.fontMetrics().height() + 2.0;
    double width = 0.0;
    std::array<QString, legend.size()> texts;
    for (std::size_t n = 0; n < legend.size(); ++n) {
        texts[n] = QCoreApplication::translate("MagnificationOverlay", legend[n].text);
        width = std::max<double>(width, painter.fontMetrics().horizontalAdvance(texts[n]));
    }
    const QSizeF size(width + line + 16.0, line * legend.size() + 8.0);
    QRectF box(QPointF(), size);
    box.moveBottomRight(picture.bottomRight() - QPointF(8.0, 8.0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 170));
    painter.drawRoundedRect(box, 4.0, 4.0);
    for (std::size_t n = 0; n < legend.size(); ++n) {
        const QPointF corner = box.topLeft() + QPointF(6.0, 4.0 + line * static_cast<double>(n));
        painter.setPen(QColor(200, 200, 200));
        painter.setBrush(ColourOf(legend[n].magnified));
        painter.drawRect(QRectF(corner + QPointF(0.5, 3.5), QSizeF(line - 8.0, line - 8.0)));
        painter.setPen(Qt::white);
        painter.drawText(QRectF(corner + QPointF(line, 0.0), QSizeF(width + 4.0, line)),
                         Qt::AlignLeft | Qt::AlignVCenter, texts[n]);
    }
}

}  // namespace

void MagnificationOverlay::Paint(QPainter& painter, const QTransform& toWidget, QSize picture) {
    const OverlayGeometry* const study = study_();
    if (study == nullptr || study->grid.Columns().empty()) {
        return;
    }
    const QRectF whole = toWidget.mapRect(QRectF(QPointF(), QSizeF(picture)));
    const std::vector<int>& columns = study->grid.Columns();
    const std::vector<int>& rows = study->grid.Rows();
    painter.setClipRect(whole, Qt::IntersectClip);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF cells(columns.front(), picture.height() - 1.0 - rows.back(),
                       columns.back() + 1.0 - columns.front(), rows.back() + 1.0 - rows.front());
    painter.drawImage(toWidget.mapRect(cells), MagnificationImage(MapMagnification(study->grid)));
    PaintLegend(painter, VisiblePart(painter, whole));
}

}  // namespace varnel
