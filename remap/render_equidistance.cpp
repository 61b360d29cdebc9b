// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include "remap/engine/node_maps.h"
#include "remap/engine/quarter_engine.h"
#include "remap/record_maps.h"
#include "remap/rounding.h"

namespace varnel {

namespace {

using EquidistanceEngine = QuarterEngine<EquidistanceMap, EquidistanceNodes>;

EquidistanceEngine EngineOf(const ImageRecord& image, const RenderSurface& surface) {
    const CentreAndExtents centre = ImageCentre(surface.Size(), image.OfsetX, image.OfsetY);
    const EquidistanceMap map(EquidistanceViewOf(image, surface.Size()));
    const EquidistanceNodes nodes(map, std::hypot(centre.left + largestNodeStep * nodesAround,
                                                  centre.bottom + largestNodeStep * nodesAround));
    return {surface, map, nodes, centre};
}

}  // namespace

void RenderEquidistance(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                        RenderDesk& desk) {
    RenderRun run(kind, progress, desk, Canvas::Anything);
    const int left = ImageCentre(run.Size(), image.OfsetX, image.OfsetY).left;
    run.Begin(static_cast<float>(left + 1));
    DrawQuarters(run, EngineOf(image, run), left, [&](int x) {
        // 16 bits, so that a frame of 65534 columns or more ends with an overflow.
        run.Advance(CInt(left + x + 1, "the progress value"));
    });
}

std::unique_ptr<RowDrawing> EquidistanceRows(const ImageRecord& image,
                                             const RenderSurface& surface) {
    return std::make_unique<EquidistanceEngine>(EngineOf(image, surface));
}

}  // namespace varnel
