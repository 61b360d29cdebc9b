// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <cstdlib>
#include <cstring>

#include "remap/projection/record_maps.h"
#include "remap/projection/maps/varnel_map.h"
#include "remap/render/engine/batches.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/row_renderer.h"

namespace varnel {

namespace {

class VarnelEngine : public RowRenderer {
  public:
    VarnelEngine(const RenderSurface& surface, const VarnelMap& map)
        : surface_(surface),
          map_(map),
          source_(SourceView::Of(surface.Source())),
          target_(TargetView::Of(surface.Result())) {}

    // The rows r to r + count - 1 above and below the centre.
    void Draw(int r, int count) const {
        DrawBlocks(surface_, {r, r + count - 1}, 8, [this](int from, int to) {
            for (int n = from; n <= to; ++n) {
                DrawLine(n, map_.Rows().centreY + n);
                if (n > 0) {
                    DrawLine(n, map_.Rows().centreY - n);
                }
            }
        });
    }
    // Those to be drawn, all >= 0.
    LineRange Rows() const {
        const ImageCircleGeometry& rows = map_.Rows();
        return WorthARun({0, rows.lastRow}, OnPicture(rows.centreY, target_.height, rows.lastRow),
                         target_.height);
    }
    void DrawRow(std::int32_t row) override { DrawLine(std::abs(row - map_.Rows().centreY), row); }

  private:
    void DrawLine(int r, std::int32_t row) const {
        if (row < 0 || row >= target_.height) {
            return;
        }
        if (map_.Blank(r)) {
            std::memset(target_.At(0, row), 0, static_cast<std::size_t>(target_.width) * 3);
            return;
        }
        ChordSpan span;
        span.source = source_;
        span.centreX = map_.Rows().centreX;
        span.chord = map_.Chord(r);
        span.radius = static_cast<double>(map_.Rows().radius);
        span.plain = map_.Plain(r);
        span.row = row;
        span.reading =
            surface_.Nearest() ? RowReading::Nearest : ReadingFor(span.chord / span.radius);
        for (const int sign : {1, -1}) {
            const std::int32_t centre = map_.Rows().centreX;
            const Clip clip = Clip::Of(centre, sign, map_.Rows().lastColumn + 1, target_.width);
            span.sign = sign;
            span.first = clip.begin;
            span.count = clip.end - clip.begin;
            if (span.count > 0) {
                SampleChordSpan(span, {target_.At(centre + sign * clip.begin, row), 3 * sign});
            }
        }
    }

    const RenderSurface& surface_;
    VarnelMap map_;
    SourceView source_;
    TargetView target_;
};

}  // namespace

void RenderVarnel(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                  RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::Anything);
    const VarnelMap map(CircleViewOf(image, run.Size()));
    const ImageCircleGeometry& rows = map.Rows();
    run.Begin(static_cast<float>(std::fabs(rows.shiftY) + rows.upperHalf));
    const VarnelEngine engine(run, map);
    DrawLines(
        run, engine.Rows(), [&](int r, int count) { engine.Draw(r, count); },
        [&](int r) { run.Advance(static_cast<float>(r)); });
}

std::unique_ptr<RowRenderer> VarnelRows(const ImageRecord& image, const RenderSurface& surface) {
    return std::make_unique<VarnelEngine>(surface, VarnelMap(CircleViewOf(image, surface.Size())));
}

}  // namespace varnel
