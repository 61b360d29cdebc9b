// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/engine/rotated_engine.h"

#include <cstring>

#include "remap/engine/quarter_engine.h"
#include "remap/rounding.h"

namespace varnel {

namespace {

AxisOwners ColumnOwners(const RotatedRectilinearMap& map, const CentreAndExtents& centre,
                        std::int32_t width) {
    const double tx = static_cast<double>(map.ShiftX());
    return AxisOwners(
        CLng(tx - centre.left, "TranslateX"), CLng(tx + centre.right, "TranslateX"), width,
        [&](int x) { return CLng(static_cast<double>(centre.cx) + x - tx, "an output column"); });
}

AxisOwners RowOwnersOf(const RotatedRectilinearMap& map, const CentreAndExtents& centre,
                       std::int32_t height) {
    const double ty = static_cast<double>(map.ShiftY());
    return AxisOwners(
        CLng(ty - centre.bottom, "TranslateY"), CLng(ty + centre.top, "TranslateY"), height,
        [&](int y) { return CLng(static_cast<double>(centre.cy) + y - ty, "an output row"); });
}

}  // namespace

RotatedEngine::RotatedEngine(const RenderSurface& surface, const RotatedRectilinearMap& map,
                             const CentreAndExtents& centre)
    : surface_(surface),
      map_(map),
      nodes_(map_),
      centre_(centre),
      columns_(ColumnOwners(map, centre, surface.Size().width)),
      rows_(RowOwnersOf(map, centre, surface.Size().height)),
      covers_(columns_.Covers() && rows_.Covers()),
      source_(SourceView::Of(surface.Source())),
      target_(TargetView::Of(surface.Result())) {}

void RotatedEngine::Draw(int x, int count) const {
    const int rows = rows_.Last() - rows_.First() + 1;
    DrawBlocks(surface_, rows_.First(), rows, blockRows, [&](int from, int to) {
        NodeLine line = LineOf(x, count);
        std::vector<std::uint8_t> spare;
        for (line.y = from; line.y <= to; ++line.y) {
            if (rows_.Stays(line.y)) {
                DrawLine(line, spare);
            }
        }
    });
}

// Nodes lie where the batches of columns have them, too.
void RotatedEngine::DrawRow(std::int32_t row) {
    if (!covers_) {
        surface_.CopySourceRow(row);
    }
    if (const std::optional<int> y = rows_.OwnerOf(row)) {
        NodeLine line = LineOf(columns_.First(), columns_.Last() - columns_.First() + 1);
        std::vector<std::uint8_t> spare;
        line.y = *y;
        DrawLine(line, spare);
    }
}

NodeLine RotatedEngine::LineOf(int x, int count) const {
    NodeLine line;
    line.x = x;
    line.count = count;
    line.step = NodeStepFor(surface_.Size());
    return line;
}

void RotatedEngine::DrawLine(NodeLine& line, std::vector<std::uint8_t>& spare) const {
    WorkOutNodes(nodes_, line);
    const ExactLine<RotatedRectilinearMap> exact{map_, line};
    std::uint8_t* const row = target_.At(0, rows_.Place(line.y));
    SpanImage image{1, 1, {}, 0, line.count};
    if (columns_.Contiguous()) {
        const std::int32_t place = columns_.Place(line.x);
        const Clip clip = Clip::Of(place, 1, line.count, target_.width);
        image = {1, 1, {row + 3 * static_cast<std::ptrdiff_t>(place), 3}, clip.begin, clip.end};
    } else {
        spare.resize(static_cast<std::size_t>(line.count) * 3);
        image.target = {spare.data(), 3};
    }
    SampleNodeSpan({source_,
                    line.u.data(),
                    line.v.data(),
                    line.step,
                    line.count,
                    centre_.cx,
                    centre_.cy,
                    surface_.Nearest(),
                    &ExactLine<RotatedRectilinearMap>::Colour,
                    &exact,
                    {&image, 1}});
    if (!columns_.Contiguous()) {
        ScatterLine(line, spare, row);
    }
}

// Each pixel to its place, but for those that a later one replaces.
void RotatedEngine::ScatterLine(const NodeLine& line, const std::vector<std::uint8_t>& pixels,
                                std::uint8_t* row) const {
    for (std::ptrdiff_t n = 0; n < line.count; ++n) {
        const int x = line.x + static_cast<int>(n);
        if (columns_.Stays(x)) {
            std::memcpy(row + 3 * static_cast<std::ptrdiff_t>(columns_.Place(x)),
                        pixels.data() + 3 * n, 3);
        }
    }
}

}  // namespace varnel
