// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Four mirror images from one set of nodes: the views that are symmetric about the circle centre.
#pragma once

#include <array>

#include "remap/engine/batches.h"
#include "remap/engine/node_lines.h"
#include "remap/render_run.h"

namespace varnel {

// Rows that one block of a batch has, and mirrored as many more.
inline constexpr int blockRows = 16;

template <PixelMap Map, class Nodes>
class QuarterEngine {
  public:
    QuarterEngine(const RenderRun& run, const Map& map, const Nodes& nodes,
                  const CentreAndExtents& centre)
        : run_(run),
          map_(map),
          nodes_(nodes),
          centre_(centre),
          source_(SourceView::Of(run.Source())),
          target_(TargetView::Of(run.Result())) {}

    // Columns x to x + count - 1 (all <= 0) and their mirror images, all rows.
    void Draw(int x, int count) const {
        DrawBlocks(run_, 0, centre_.bottom + 1, blockRows, [&](int from, int to) {
            NodeLine line;
            line.x = x;
            line.count = count;
            line.step = NodeStepFor(run_.Size());
            for (int y = from; y <= to; ++y) {
                line.y = -y;
                DrawLine(line);
            }
        });
    }

  private:
    void DrawLine(NodeLine& line) const {
        WorkOutNodes(nodes_, line);
        std::array<SpanImage, 4> images;
        std::size_t count = 0;
        for (const int signY : {1, -1}) {
            const std::int32_t y = centre_.cy + signY * line.y;
            if (y < 0 || y >= target_.height) {
                continue;
            }
            for (const int signX : {1, -1}) {
                const std::int32_t x = centre_.cx + signX * line.x;
                const Clip clip = Clip::Of(x, signX, line.count, target_.width);
                images[count++] = {
                    signX, signY, {target_.At(x, y), 3 * signX}, clip.begin, clip.end};
            }
        }
        const ExactLine<Map> exact{map_, line};
        SampleNodeSpan({source_,
                        line.u.data(),
                        line.v.data(),
                        line.step,
                        line.count,
                        centre_.cx,
                        centre_.cy,
                        run_.Nearest(),
                        &ExactLine<Map>::Colour,
                        &exact,
                        {images.data(), count}});
    }

    const RenderRun& run_;
    const Map& map_;
    const Nodes& nodes_;
    CentreAndExtents centre_;
    SourceView source_;
    TargetView target_;
};

// The whole picture: columns -left to 0 with their mirror images.
template <PixelMap Map, class Nodes, class Progress>
void DrawQuarters(const RenderRun& run, const Map& map, const Nodes& nodes,
                  const CentreAndExtents& centre, const Progress& progress) {
    const QuarterEngine engine(run, map, nodes, centre);
    DrawLines(
        run, -centre.left, 0, [&](int x, int count) { engine.Draw(x, count); }, progress);
}

}  // namespace varnel
