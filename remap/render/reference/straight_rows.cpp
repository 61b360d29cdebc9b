// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include <cmath>

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/projection/record_maps.h"
#include "remap/projection/maps/varnel_map.h"
#include "remap/render/reference/blank.h"
#include "remap/render/render_session.h"

namespace varnel::reference {

namespace {

PixelColor Read(const RenderSession& run, std::int32_t centreX, double u, std::int32_t row) {
    return run.Nearest() ? SampleNearest(run.Source(), centreX + Round(u), row)
                         : SampleLinearX(run.Source(), centreX + u, row);
}

void RenderColumn(const RenderSession& run, const VarnelMap& map, std::int32_t j, std::int32_t r) {
    const std::int32_t cx = map.Rows().centreX;
    const std::int32_t cy = map.Rows().centreY;
    const double u = map.At(j, r).u;
    run.Write(cx + j, cy + r, Read(run, cx, u, cy + r));
    run.Write(cx - j, cy + r, Read(run, cx, -u, cy + r));
    run.Write(cx + j, cy - r, Read(run, cx, u, cy - r));
    run.Write(cx - j, cy - r, Read(run, cx, -u, cy - r));
}

}  // namespace

void RenderVarnel(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                  RenderContext& context) {
    RenderSession run(kind, progress, context);
    const VarnelMap map(CircleViewOf(image, run.Size()));
    const ImageCircleGeometry& rows = map.Rows();
    run.Begin(static_cast<float>(std::fabs(rows.shiftY) + rows.upperHalf));
    for (std::int32_t r = 0; r <= rows.lastRow; ++r) {
        run.Advance(static_cast<float>(r));
        for (std::int32_t j = 0; j <= rows.lastColumn; ++j) {
            if (map.Blank(r)) {
                WriteBlackQuarters(run, rows, j, r);
            } else {
                RenderColumn(run, map, j, r);
            }
        }
    }
}

}  // namespace varnel::reference
