// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "base/rounding.h"
#include "remap/render/reference/quarter_loop.h"

namespace varnel::reference {

namespace {

void RenderQuarters(RenderSession& run, const SmoothMap& map) {
    for (std::int32_t x = -map.Extents().left; x <= 0; ++x) {
        run.Advance(map.ProgressAt(x));
        RenderQuarterColumn(run, map, x);
    }
}

}  // namespace

void RenderSmooth(RenderSession& run, const SmoothMap& map) {
    if (map.IsFourfold()) {
        return RenderQuarters(run, map);
    }
    const CentreAndExtents& centre = map.Extents();
    const double tx = map.ColumnAxis().shift;
    const double ty = map.RowAxis().shift;
    const std::int32_t lastX = CLng(tx + centre.right, "TranslateX");
    const std::int32_t firstY = CLng(ty - centre.bottom, "TranslateY");
    const std::int32_t lastY = CLng(ty + centre.top, "TranslateY");
    for (std::int32_t x = CLng(tx - centre.left, "TranslateX"); x <= lastX; ++x) {
        run.Advance(map.ProgressAt(x));
        const std::int32_t column =
            CLng(static_cast<double>(centre.cx) + x - tx, ReasonCode::OutputColumn);
        for (std::int32_t y = firstY; y <= lastY; ++y) {
            const PixelLevels colour = ReadAt(run, map.SourceCentre(), map.At(x, y));
            run.Write(column, CLng(static_cast<double>(centre.cy) + y - ty, ReasonCode::OutputRow),
                      colour);
        }
    }
}

}  // namespace varnel::reference
