// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/picture/histogram_overlay.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "remap/image/levels/byte_coding.h"
#include "remap/render/outside.h"

namespace varnel {

namespace {

constexpr QSize panel(256, 110);  // logical pixels
constexpr int margin = 10;
constexpr int markSide = 9;
constexpr QColor panelGrey(20, 20, 20, 190);
constexpr QColor markOff(110, 110, 110);
constexpr std::array<QColor, 3> channelColours{QColor(70, 130, 255), QColor(80, 220, 90),
                                               QColor(255, 85, 75)};
constexpr QColor darkMark(90, 150, 255);
constexpr QColor lightMark(255, 90, 70);

// Rare levels stay in sight.
double HeightOf(int count, int most) {
    return most == 0 ? 0.0 : std::sqrt(static_cast<double>(count) / most);
}

void PaintMark(QPainter& painter, QPointF corner, double way, const QColor& colour) {
    painter.setBrush(colour);
    painter.drawPolygon(QPolygonF(
        {corner, corner + QPointF(way * markSide, 0.0), corner + QPointF(0.0, markSide)}));
}

}  // namespace

Histogram Histogram::Of(const Bitmap& picture, const OutsideFill& outside) {
    Histogram found;
    const ByteCoding coding(picture);
    for (int y = 0; y < picture.Size().height; ++y) {
        const std::uint8_t* pixel = picture.ScanLine(y).data();
        for (int x = 0; x < picture.Size().width; ++x, pixel += PixelStep(picture.Format())) {
            const PixelColor colour = coding.ColourAt(pixel);
            const std::array<std::uint8_t, 3> levels{colour.blue, colour.green, colour.red};
            const auto [least, most] = std::ranges::minmax(levels);
            const PixelColor none = OutsideColour(outside, x, y);
            if (colour.blue == none.blue && colour.green == none.green && colour.red == none.red) {
                continue;
            }
            ++found.pixels;
            found.cutDark += least == 0 ? 1 : 0;
            found.cutLight += most == 255 ? 1 : 0;
            for (std::size_t channel = 0; channel < levels.size(); ++channel) {
                ++found.counts[channel][levels[channel]];
            }
        }
    }
    return found;
}

void HistogramOverlay::Paint(QPainter& painter, const QTransform& /*toWidget*/, QSize /*picture*/) {
    const QRect view = painter.viewport();
    const QRect place(QPoint(view.right() - margin - panel.width(), view.top() + margin), panel);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(panelGrey);
    painter.drawRoundedRect(place.adjusted(-4, -4, 4, 4), 4.0, 4.0);
    painter.setCompositionMode(QPainter::CompositionMode_Screen);
    for (std::size_t channel = 0; channel < channelColours.size(); ++channel) {
        PaintChannel(painter, channel, place);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setPen(Qt::NoPen);
    PaintMark(painter, place.topLeft(), 1.0, histogram_.IsDarkCut() ? darkMark : markOff);
    PaintMark(painter, QPointF(place.right() + 1, place.top()), -1.0,
              histogram_.IsLightCut() ? lightMark : markOff);
}

// The ends are often far above all the rest, which would be flat beside them.
void HistogramOverlay::PaintChannel(QPainter& painter, std::size_t channel,
                                    const QRect& place) const {
    const std::array<int, 256>& counts = histogram_.counts[channel];
    const int most = *std::max_element(counts.begin() + 1, counts.end() - 1);
    QPainterPath path(QPointF(place.left(), place.bottom() + 1));
    for (int level = 0; level < 256; ++level) {
        const double height =
            std::min(HeightOf(counts[static_cast<std::size_t>(level)], most), 1.0);
        path.lineTo(place.left() + level + 0.5, place.bottom() + 1 - height * place.height());
    }
    path.lineTo(place.right() + 1, place.bottom() + 1);
    painter.setPen(Qt::NoPen);
    painter.setBrush(channelColours[channel]);
    painter.drawPath(path);
}

}  // namespace varnel
