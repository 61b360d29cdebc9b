// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/stretch.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "remap/render_run.h"
#include "remap/rounding.h"
#include "remap/sampling.h"

namespace varnel {

namespace {

// The middle of count rows or columns: between two of them when the count is even.
double Middle(int count) {
    return (count - 1) / 2.0;
}

}  // namespace

double StretchCurve::FactorAt(double height) const {
    const double v = std::clamp(height - middle, -1.0, 1.0);
    return 1.0 - strength * (1.0 - std::cos(v * std::numbers::pi / 2.0));
}

double HeightOfRow(int y, int rows) {
    return rows < 2 ? 0.0 : (y - Middle(rows)) / Middle(rows);
}

void RenderStretch(const StretchCurve& curve, SizeKind kind, RenderProgress& progress,
                   RenderDesk& desk) {
    RenderRun run(kind, progress, desk);
    const PixelSize size = run.Size();
    const double centre = Middle(size.width);
    // Rounded, because a hair below a whole column the right neighbour of the blend would be one
    // too far.
    const auto columnOf = [&](std::int32_t x, double factor) {
        return Round8(centre + (x - centre) * factor);
    };
    run.Begin(static_cast<float>(size.height));
    for (std::int32_t y = 0; y < size.height; ++y) {
        run.Advance(static_cast<float>(y));
        const double factor = curve.FactorAt(HeightOfRow(y, size.height));
        for (std::int32_t x = 0; x < size.width; ++x) {
            run.Write(x, y, SampleLinearX(run.Source(), columnOf(x, factor), y));
        }
    }
}

}  // namespace varnel
