// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Four mirror images from one set of nodes: the smooth maps that are symmetric about the circle
// centre. Throws std::bad_alloc, and from Draw what the surface's Pause throws.
#pragma once

#include <array>
#include <cstdlib>

#include "remap/render/engine/batches.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/engine/engine.h"

namespace varnel {

class FourfoldEngine : public Engine {
  public:
    // The map has to outlive the engine. With a channel nothing else is written.
    FourfoldEngine(const RenderSurface& surface, const SmoothMap& map,
                   std::optional<Channel> only = {})
        : surface_(surface),
          map_(map),
          nodes_(map.Nodes()),
          centre_(map.Extents()),
          columns_(Columns(centre_, surface.ResultSize().width)),
          rows_(OnPicture(centre_.cy, surface.ResultSize().height, centre_.bottom)),
          source_(SourceView::Of(surface)),
          target_(TargetView::Of(surface.Result(), only)) {}

    // Those to be drawn, all <= 0.
    LineRange Lines() const override { return columns_; }
    // Columns x to x + count - 1 and their mirror images, all rows.
    void Draw(int x, int count) override {
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
        line.step = NodeStepFor(surface_.ResultSize(), target_.format);
        return line;
    }
    // As far as its mirror images are among the rows.
    void DrawLine(ControlPointLine& line, RowRange rows) const {
        WorkOutNodes(*nodes_, line);
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
                images[count++] = {signX, signY, target_.From(x, y, signX), clip.begin, clip.end};
            }
        }
        const ExactLine exact{map_, line, *nodes_};
        SampleNodeSpan(exact.Span(source_, surface_.Nearest(), {images.data(), count}));
    }

    const RenderSurface& surface_;
    const SmoothMap& map_;
    std::unique_ptr<SmoothNodes> nodes_;
    CentreAndExtents centre_;
    LineRange columns_;
    LineRange rows_;  // distances from the centre
    SourceView source_;
    TargetView target_;
};

}  // namespace varnel
