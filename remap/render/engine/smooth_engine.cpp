// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/smooth_engine.h"

#include <cstring>

#include "remap/render/engine/batches.h"

namespace varnel {

SmoothEngine::SmoothEngine(const RenderSurface& surface, const SmoothMap& map,
                           std::optional<Channel> only)
    : surface_(surface),
      map_(map),
      nodes_(map.Nodes()),
      columns_(map.ColumnAxis(), surface.ResultSize().width),
      rows_(map.RowAxis(), surface.ResultSize().height),
      covers_(columns_.Covers() && rows_.Covers()),
      source_(SourceView::Of(surface)),
      target_(TargetView::Of(surface.Result(), only)) {}

void SmoothEngine::FillTheRest() {
    if (covers_) {
        return;
    }
    DrawBlocks(surface_, {0, target_.height - 1}, 64, [this](int from, int to) {
        for (std::int32_t row = from; row <= to; ++row) {
            surface_.FillRow(row);
        }
    });
}

void SmoothEngine::Draw(int x, int count) {
    DrawBlocks(surface_, {rows_.First(), rows_.Last()}, blockRows, [&](int from, int to) {
        ControlPointLine line = LineOf(x, count);
        std::vector<std::uint8_t> spare;
        for (line.y = from; line.y <= to; ++line.y) {
            if (rows_.Stays(line.y)) {
                DrawLine(line, spare);
            }
        }
    });
}

// Nodes lie where the batches of columns have them, too.
void SmoothEngine::DrawRow(std::int32_t row) {
    if (!covers_ && !target_.only) {
        surface_.FillRow(row);
    }
    if (const std::optional<int> y = rows_.OwnerOf(row)) {
        ControlPointLine line = LineOf(columns_.First(), columns_.Last() - columns_.First() + 1);
        std::vector<std::uint8_t> spare;
        line.y = *y;
        DrawLine(line, spare);
    }
}

ControlPointLine SmoothEngine::LineOf(int x, int count) const {
    ControlPointLine line;
    line.x = x;
    line.count = count;
    line.step = NodeStepFor(surface_.ResultSize(), target_.format);
    return line;
}

void SmoothEngine::DrawLine(ControlPointLine& line, std::vector<std::uint8_t>& spare) const {
    WorkOutNodes(*nodes_, line);
    const ExactLine exact{map_, line, *nodes_};
    const std::int32_t row = rows_.Place(line.y);
    SpanImage image{1, 1, {}, 0, line.count};
    if (columns_.Contiguous()) {
        const std::int32_t place = columns_.Place(line.x);
        const Clip clip = Clip::Of(place, 1, line.count, target_.width);
        image = {1, 1, target_.From(place, row), clip.begin, clip.end};
    } else {
        spare.resize(static_cast<std::size_t>(line.count) * BytesPerPixel(target_.format));
        image.target = {spare.data(), PixelStep(target_.format), target_.format, {}};
    }
    SampleNodeSpan(exact.Span(source_, surface_.Nearest(), {&image, 1}));
    if (!columns_.Contiguous()) {
        ScatterLine(line, spare, row);
    }
}

// Each pixel to its place, but for those that a later one replaces.
void SmoothEngine::ScatterLine(const ControlPointLine& line,
                               const std::vector<std::uint8_t>& pixels, std::int32_t row) const {
    const std::size_t pixelBytes = BytesPerPixel(target_.format);
    for (int n = 0; n < line.count; ++n) {
        const int x = line.x + n;
        if (columns_.Stays(x)) {
            const std::uint8_t* const pixel =
                pixels.data() + static_cast<std::size_t>(n) * pixelBytes;
            const SpanTarget place = target_.From(columns_.Place(x), row);
            if (target_.only) {
                place.Put(0, LevelsAt(pixel, target_.format));
            } else {
                std::memcpy(place.first, pixel, pixelBytes);
            }
        }
    }
}

}  // namespace varnel
