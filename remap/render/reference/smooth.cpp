// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "remap/projection/record_maps.h"
#include "remap/render/reference/quarter_loop.h"

namespace varnel::reference {

void RenderRectilinear(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                       RenderContext& context) {
    if (CameraMoveOf(image).Moves()) {
        return reference::RenderRectilinearRotated(image, kind, progress, context);
    }
    RenderSession run(kind, progress, context);
    const CentreAndExtents centre = ImageCentre(run.Size(), image.OfsetX, image.OfsetY);
    run.Begin(static_cast<float>(centre.left + 1));
    const RectilinearMap map(RectilinearViewOf(image, run.Size()));
    for (std::int32_t x = -centre.left; x <= 0; ++x) {
        run.Advance(static_cast<float>(x + centre.left + 1));
        RenderQuarterColumn(run, map, centre, x);
    }
}

void RenderRectilinearRotated(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                              RenderContext& context) {
    RenderSession run(kind, progress, context);
    const CentreAndExtents centre = ImageCentre(run.Size(), image.OfsetX, image.OfsetY);
    run.Begin(static_cast<float>(centre.left + centre.right + 1));
    const RotatedRectilinearMap map(RectilinearViewOf(image, run.Size()), CameraMoveOf(image));
    const double tx = static_cast<double>(map.ShiftX());
    const double ty = static_cast<double>(map.ShiftY());
    const std::int32_t lastX = CLng(tx + centre.right, "TranslateX");
    const std::int32_t firstY = CLng(ty - centre.bottom, "TranslateY");
    const std::int32_t lastY = CLng(ty + centre.top, "TranslateY");
    for (std::int32_t x = CLng(tx - centre.left, "TranslateX"); x <= lastX; ++x) {
        run.Advance(CInt(x + (centre.left + 1.0) - tx, ReasonCode::ProgressValue));
        const std::int32_t column =
            CLng(static_cast<double>(centre.cx) + x - tx, ReasonCode::OutputColumn);
        for (std::int32_t y = firstY; y <= lastY; ++y) {
            const PixelColor colour = ReadAt(run, centre.cx, centre.cy, map.At(x, y));
            run.Write(column, CLng(static_cast<double>(centre.cy) + y - ty, ReasonCode::OutputRow),
                      colour);
        }
    }
}

}  // namespace varnel::reference
