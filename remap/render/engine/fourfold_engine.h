// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Four mirror images from one set of nodes: the views that are symmetric about the circle centre.
#pragma once

#include <array>
#include <cstdlib>

#include "remap/render/engine/batches.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/row_renderer.h"

namespace varnel {

template <PixelMap Map, class Nodes>
class FourfoldEngine : public RowRenderer {
  public:
    FourfoldEngine(const RenderSurface& surface, const Map& map, const Nodes& nodes,
                   const CentreAndExtents& centre)
        : surface_(surface),
          map_(map),
          nodes_(nodes),
          centre_(centre),
          columns_(Columns(centre, surface.Size().width)),
          rows_(OnPicture(centre.cy, surface.Size().height, centre.bottom)),
          source_(SourceView::Of(surface.Source())),
          target_(TargetView::Of(surface.Result())) {}

    // Those to be drawn, all <= 0.
    LineRange Columns() const { return columns_; }
    // Columns x to x + count - 1 and their mirror images, all rows.
    void Draw(int x, int count) const {
        DrawBlocks(surface_, rows_, blockRows, [&](int from, int to) {
            ControlPointLine line = LineOf(x, count);
            for (int y = from; y <= to; ++y) {
                line.y = -y;
                DrawLine(line, {0, target_.height});
            }
        });
    }
    // One row, all columns. Nodes lie where the batches of columns have them, too.
    void DrawRow(std::int32_t row) override {
        ControlPointLine line = LineOf(columns_.first, columns_.Count());
        line.y = -std::abs(row - centre_.cy);
        DrawLine(line, {row, row + 1});
    }

  private:
    struct RowRange {
        std::int32_t first, end;
    };

    static LineRange Columns(const CentreAndExtents& centre, std::int32_t width) {
        const LineRange shown = OnPicture(centre.cx, width, centre.left);
        return WorthARun({-centre.left, 0}, {-shown.last, -shown.first}, width);
    }

    ControlPointLine LineOf(int x, int count) const {
        ControlPointLine line;
        line.x = x;
        line.count = count;
        line.step = NodeStepFor(surface_.Size());
        return line;
    }
    // As far as its mirror images are among the rows.
    void DrawLine(ControlPointLine& line, RowRange rows) const {
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
    LineRange columns_;
    LineRange rows_;  // distances from the centre
    SourceView source_;
    TargetView target_;
};

// The whole picture.
template <class Engine, class Progress>
void DrawQuarters(const RenderSession& run, const Engine& engine, const Progress& progress) {
    DrawLines(
        run, engine.Columns(), [&](int x, int count) { engine.Draw(x, count); }, progress);
}

}  // namespace varnel
