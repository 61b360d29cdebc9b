// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/stretch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "remap/render/engine/batches.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/engine/span_kernels.h"

namespace varnel {

namespace {

// One row of the source to the same row of the result.
void DrawRow(const SourceView& source, const TargetView& target, std::int32_t row, double factor) {
    if (factor == 1.0) {
        std::copy_n(source.bits + row * source.pitch,
                    static_cast<std::size_t>(source.width) * BytesPerPixel(source.format),
                    target.At(0, row));
        return;
    }
    const RowReading reading = ReadingFor(factor);
    SampleStretchSpan({source, MiddleOf(source.width), factor, row, reading}, target.From(0, row));
}

}  // namespace

double StretchCurve::FactorAt(double height) const {
    const double v = std::clamp(height - middle, -1.0, 1.0);
    return 1.0 - strength * (1.0 - std::cos(v * std::numbers::pi / 2.0));
}

double HeightOfRow(int y, int rows) {
    return rows < 2 ? 0.0 : (y - MiddleOf(rows)) / MiddleOf(rows);
}

void RenderStretch(const StretchCurve& curve, SizeKind kind, RenderProgress& progress,
                   RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::Anything);
    const int rows = run.SourceSize().height;
    const SourceView source = SourceView::Of(run);
    const TargetView target = TargetView::Of(run.Result());
    const auto draw = [&](int from, int to) {
        for (int y = from; y <= to; ++y) {
            DrawRow(source, target, y, curve.FactorAt(HeightOfRow(y, rows)));
        }
    };
    run.Begin(static_cast<float>(rows));
    DrawLines(
        run, {0, rows - 1},
        [&](int y, int count) {
            DrawBlocks(run, {y, y + count - 1}, blockRows, draw);
        },
        [&](int y) { run.Advance(static_cast<float>(y)); });
}

}  // namespace varnel
