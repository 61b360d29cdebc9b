// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/engine/node_maps.h"
#include "remap/engine/quarter_engine.h"
#include "remap/engine/rotated_engine.h"
#include "remap/record_maps.h"
#include "remap/rounding.h"

namespace varnel {

void RenderRectilinear(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                       RenderDesk& desk) {
    if (CameraMoveOf(image).Moves()) {
        return RenderRectilinearRotated(image, kind, progress, desk);
    }
    RenderRun run(kind, progress, desk, Canvas::Anything);
    const CentreAndExtents centre = ImageCentre(run.Size(), image.OfsetX, image.OfsetY);
    run.Begin(static_cast<float>(centre.left + 1));
    const RectilinearMap map(RectilinearViewOf(image, run.Size()));
    const RectilinearNodes nodes(map.Radius());
    DrawQuarters(run, map, nodes, centre,
                 [&](int x) { run.Advance(static_cast<float>(x + centre.left + 1)); });
}

void RenderRectilinearRotated(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                              RenderDesk& desk) {
    RenderRun run(kind, progress, desk, Canvas::Anything);
    const CentreAndExtents centre = ImageCentre(run.Size(), image.OfsetX, image.OfsetY);
    run.Begin(static_cast<float>(centre.left + centre.right + 1));
    const RotatedRectilinearMap map(RectilinearViewOf(image, run.Size()), CameraMoveOf(image));
    const double tx = static_cast<double>(map.ShiftX());
    const double ty = static_cast<double>(map.ShiftY());
    const AxisOwners columns(
        CLng(tx - centre.left, "TranslateX"), CLng(tx + centre.right, "TranslateX"),
        run.Size().width,
        [&](int x) { return CLng(static_cast<double>(centre.cx) + x - tx, "an output column"); });
    const AxisOwners rows(CLng(ty - centre.bottom, "TranslateY"),
                          CLng(ty + centre.top, "TranslateY"), run.Size().height, [&](int y) {
                              return CLng(static_cast<double>(centre.cy) + y - ty, "an output row");
                          });
    if (!columns.Covers() || !rows.Covers()) {
        run.CopySource();
    }
    const RotatedEngine engine(run, map, centre, columns, rows);
    DrawLines(
        run, columns.First(), columns.Last(), [&](int x, int count) { engine.Draw(x, count); },
        [&](int x) { run.Advance(CInt(x + (centre.left + 1.0) - tx, "the progress value")); });
}

}  // namespace varnel
