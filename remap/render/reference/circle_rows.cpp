// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "remap/projection/maps/horizon_map.h"

#include <cmath>

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/projection/record_maps.h"
#include "remap/render/reference/blank.h"
#include "remap/render/render_session.h"

namespace varnel::reference {

namespace {

PixelColor Read(const RenderSession& run, const ImageCircleGeometry& rows, SourceOffset offset) {
    const double y = rows.centreY + offset.v;
    return run.Nearest() ? SampleNearest(run.Source(), rows.centreX + Round(offset.u), y)
                         : SampleLinearX(run.Source(), rows.centreX + offset.u, y);
}

// The centre row is left out; the remap writes it.
void BlankRows(const RenderSession& run, const ImageCircleGeometry& rows) {
    for (std::int32_t r = 1; r <= rows.lastRow; ++r) {
        for (std::int32_t i = 0; i <= rows.lastColumn; ++i) {
            WriteBlackQuarters(run, rows, i, r);
        }
    }
}

void RenderRadius(const RenderSession& run, const HorizonMap& map, std::int32_t r) {
    const ImageCircleGeometry& rows = map.Rows();
    for (std::int32_t i = 0; i <= rows.lastColumn; ++i) {
        // Black goes to both sides of the centre row and so over what the negative radii, which
        // come first, wrote there.
        if (map.Blank(r)) {
            WriteBlackQuarters(run, rows, i, r);
            continue;
        }
        const auto [u, v] = map.At(i, r);
        const std::int32_t row = map.OutputRow(r);
        run.Write(rows.centreX + i, row, Read(run, rows, {u, v}));
        run.Write(rows.centreX - i, row, Read(run, rows, {-u, v}));
    }
}

}  // namespace

void RenderHorizon(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                   RenderContext& context) {
    RenderSession run(kind, progress, context);
    const HorizonMap map(CircleViewOf(image, run.Size()));
    const ImageCircleGeometry& rows = map.Rows();
    run.Begin(static_cast<float>(std::fabs(rows.shiftY) + 2.0 * rows.upperHalf));
    BlankRows(run, rows);
    for (std::int32_t r = map.FirstRadius(); r <= rows.lastRow; ++r) {
        run.Advance(static_cast<float>(r + rows.upperHalf));
        RenderRadius(run, map, r);
    }
}

}  // namespace varnel::reference
