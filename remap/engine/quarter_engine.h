// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Four mirror images from one set of nodes: the views that are symmetric about the circle centre.
#pragma once

#include <array>
#include <cstdlib>

#include "remap/engine/batches.h"
#include "remap/engine/node_lines.h"
#include "remap/row_drawing.h"

namespace varnel {

// Rows that one block of a batch has, and mirrored as many more.
inline constexpr int blockRows = 16;

template <PixelMap Map, class Nodes>
class QuarterEngine : public RowDrawing {
  public:
    QuarterEngine(const RenderSurface& surface, const Map& map, const Nodes& nodes,
                  const CentreAndExtents& centre)
        : surface_(surface),
          map_(map),
          nodes_(nodes),
          centre_(centre),
          source_(SourceView::Of(surface.Source())),
          target_(TargetView::Of(surface.Result())) {}

    // Columns x to x + count - 1 (all <= 0) and their mirror images, all rows.
    void Draw(int x, int count) const {
        DrawBlocks(surface_, 0, centre_.bottom + 1, blockRows, [&](int from, int to) {
            NodeLine line = LineOf(x, count);
            for (int y = from; y <= to; ++y) {
                line.y = -y;
                DrawLine(line, {0, target_.height});
            }
        });
    }
    // One row, all columns. Nodes lie where the batches of columns have them, too.
    void DrawRow(std::int32_t row) override {
        NodeLine line = LineOf(-centre_.left, centre_.left + 1);
        line.y = -std::abs(row - centre_.cy);
        DrawLine(line, {row, row + 1});
    }

  private:
    struct RowRange {
        std::int32_t first, end;
    };

    NodeLine LineOf(int x, int count) const {
        NodeLine line;
        line.x = x;
        line.count = count;
        line.step = NodeStepFor(surface_.Size());
        return line;
    }
    // As far as its mirror images are among the rows.
    void DrawLine(NodeLine& line, RowRange rows) const {
        WorkOutNodes(nodes_, line);
        std::array<SpanImage, 4> images;
        std::size_t count = 0;
        for (const int signY : {1, -1}) {
            const std::int32_t y = centre_.cy + signY * line.y;
            if (y < rows.first || y >= rows.end) {
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
                        surface_.Nearest(),
                        &ExactLine<Map>::Colour,
                        &exact,
                        {images.data(), count}});
    }

    const RenderSurface& surface_;
    Map map_;
    Nodes nodes_;
    CentreAndExtents centre_;
    SourceView source_;
    TargetView target_;
};

// The whole picture: columns -left to 0 with their mirror images.
template <class Engine, class Progress>
void DrawQuarters(const RenderRun& run, const Engine& engine, int left, const Progress& progress) {
    DrawLines(
        run, -left, 0, [&](int x, int count) { engine.Draw(x, count); }, progress);
}

}  // namespace varnel
