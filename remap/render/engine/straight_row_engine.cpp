// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cstdlib>

#include "base/rounding.h"
#include "remap/projection/straight_rows.h"
#include "remap/render/engine/batches.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/engine/engine.h"

namespace varnel {

namespace {

class StraightRowEngine : public Engine {
  public:
    StraightRowEngine(const RenderSurface& surface, const StraightRows& map)
        : surface_(surface),
          map_(map),
          source_(SourceView::Of(surface)),
          target_(TargetView::Of(surface.Result())) {}

    // The rows r to r + count - 1 above and below the centre.
    void Draw(int r, int count) override {
        DrawBlocks(surface_, {r, r + count - 1}, 8, [this](int from, int to) {
            for (int n = from; n <= to; ++n) {
                DrawLine(n, map_.Circle().outputCentre.y + n);
                if (n > 0) {
                    DrawLine(n, map_.Circle().outputCentre.y - n);
                }
            }
        });
    }
    // Those to be drawn, all >= 0.
    LineRange Lines() const override {
        const int last = map_.Circle().lastRow;
        return WorthARun({0, last}, OnPicture(map_.Circle().outputCentre.y, target_.height, last),
                         target_.height);
    }
    void DrawRow(std::int32_t row) override {
        DrawLine(std::abs(row - map_.Circle().outputCentre.y), row);
    }

  private:
    void DrawLine(int r, std::int32_t row) const {
        if (row < 0 || row >= target_.height) {
            return;
        }
        if (map_.Blank(r)) {
            target_.Blacken(row);
            return;
        }
        ChordSpan span;
        span.source = source_;
        span.centreX = map_.Circle().sourceCentre.x;
        span.chord = map_.Chord(r);
        span.radius = map_.Radius();
        span.plain = map_.Plain(r);
        span.row = SourceRow(r, row);
        span.reading =
            surface_.Nearest() ? RowReading::Nearest : ReadingFor(span.chord / span.radius);
        for (const int sign : {1, -1}) {
            const std::int32_t centre = map_.Circle().outputCentre.x;
            const Clip clip = Clip::Of(centre, sign, map_.Circle().lastColumn + 1, target_.width);
            span.sign = sign;
            span.first = clip.begin;
            span.count = clip.end - clip.begin;
            if (span.count > 0) {
                SampleChordSpan(span, target_.From(centre + sign * clip.begin, row, sign));
            }
        }
    }

    // The row of the photo that is nearest to the height of an output row. Throws OverflowError.
    std::int32_t SourceRow(int r, std::int32_t row) const {
        const double height = map_.HeightOf(r);
        return CLng(
            map_.Circle().sourceCentre.y + (row < map_.Circle().outputCentre.y ? -height : height),
            ReasonCode::OutputRow);
    }

    const RenderSurface& surface_;
    const StraightRows& map_;
    SourceView source_;
    TargetView target_;
};

}  // namespace

std::unique_ptr<Engine> StraightRowEngineFor(const RenderSurface& surface,
                                             const StraightRows& map) {
    return std::make_unique<StraightRowEngine>(surface, map);
}

}  // namespace varnel
