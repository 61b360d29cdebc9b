// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/render/reference/blank.h"

namespace varnel::reference {

namespace {

PixelLevels Read(const RenderSession& run, const PixelPosition& centre, SourceOffset offset) {
    const double y = centre.y + offset.v;
    return run.Nearest() ? SampleNearest(run.Source(), centre.x + Round(offset.u), y)
                         : SampleLinearX(run.Source(), centre.x + offset.u, y);
}

// The centre row is left out; the remap writes it.
void BlankRows(const RenderSession& run, const ImageCircleGeometry& circle) {
    for (std::int32_t r = 1; r <= circle.lastRow; ++r) {
        for (std::int32_t i = 0; i <= circle.lastColumn; ++i) {
            WriteBlackQuarters(run, circle, i, r);
        }
    }
}

void RenderRadius(const RenderSession& run, const CircleRows& map, std::int32_t r) {
    const ImageCircleGeometry& circle = map.Circle();
    for (std::int32_t i = 0; i <= circle.lastColumn; ++i) {
        // Black goes to both sides of the centre row and so over what the negative radii, which
        // come first, wrote there.
        if (map.Blank(r)) {
            WriteBlackQuarters(run, circle, i, r);
            continue;
        }
        const auto [u, v] = map.At(i, r);
        const std::int32_t row = map.OutputRow(r);
        run.Write(circle.outputCentre.x + i, row, Read(run, circle.sourceCentre, {u, v}));
        run.Write(circle.outputCentre.x - i, row, Read(run, circle.sourceCentre, {-u, v}));
    }
}

}  // namespace

void RenderCircleRows(RenderSession& run, const CircleRows& map) {
    BlankRows(run, map.Circle());
    for (std::int32_t r = map.Radii().first; r <= map.Radii().last; ++r) {
        run.Advance(map.ProgressAt(r));
        RenderRadius(run, map, r);
    }
}

}  // namespace varnel::reference
