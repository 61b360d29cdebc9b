// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/render/reference/blank.h"

namespace varnel::reference {

namespace {

PixelLevels Read(const RenderSession& run, const PixelPosition& centre, double u, double v) {
    return run.Nearest() ? SampleNearest(run.Source(), centre.x + Round(u), centre.y + v)
                         : SampleLinearX(run.Source(), centre.x + u, centre.y + v);
}

void RenderColumn(const RenderSession& run, const StraightRows& map, std::int32_t j,
                  std::int32_t r) {
    const PixelPosition& from = map.Circle().sourceCentre;
    const PixelPosition& to = map.Circle().outputCentre;
    const auto [u, v] = map.At(j, r);
    run.Write(to.x + j, to.y + r, Read(run, from, u, v));
    run.Write(to.x - j, to.y + r, Read(run, from, -u, v));
    run.Write(to.x + j, to.y - r, Read(run, from, u, -v));
    run.Write(to.x - j, to.y - r, Read(run, from, -u, -v));
}

}  // namespace

void RenderStraightRows(RenderSession& run, const StraightRows& map) {
    const ImageCircleGeometry& circle = map.Circle();
    for (std::int32_t r = 0; r <= circle.lastRow; ++r) {
        run.Advance(map.ProgressAt(r));
        for (std::int32_t j = 0; j <= circle.lastColumn; ++j) {
            if (map.Blank(r)) {
                WriteBlackQuarters(run, circle, j, r);
            } else {
                RenderColumn(run, map, j, r);
            }
        }
    }
}

}  // namespace varnel::reference
