// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/engine/rotated_engine.h"

#include <cstring>

#include "remap/engine/quarter_engine.h"

namespace varnel {

RotatedEngine::RotatedEngine(const RenderRun& run, const RotatedRectilinearMap& map,
                             const CentreAndExtents& centre, const AxisOwners& columns,
                             const AxisOwners& rows)
    : run_(run),
      map_(map),
      nodes_(map),
      centre_(centre),
      columns_(columns),
      rows_(rows),
      source_(SourceView::Of(run.Source())),
      target_(TargetView::Of(run.Result())) {}

void RotatedEngine::Draw(int x, int count) const {
    const int rows = rows_.Last() - rows_.First() + 1;
    DrawBlocks(run_, rows_.First(), rows, blockRows, [&](int from, int to) {
        NodeLine line;
        std::vector<std::uint8_t> spare;
        line.x = x;
        line.count = count;
        line.step = NodeStepFor(run_.Size());
        for (line.y = from; line.y <= to; ++line.y) {
            if (rows_.Stays(line.y)) {
                DrawLine(line, spare);
            }
        }
    });
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
                    run_.Nearest(),
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
