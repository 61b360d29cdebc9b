// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include "remap/engine/node_maps.h"
#include "remap/engine/quarter_engine.h"
#include "remap/record_maps.h"
#include "remap/rounding.h"

namespace varnel {

void RenderEquidistance(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                        RenderDesk& desk) {
    RenderRun run(kind, progress, desk, Canvas::Anything);
    const CentreAndExtents centre = ImageCentre(run.Size(), image.OfsetX, image.OfsetY);
    run.Begin(static_cast<float>(centre.left + 1));
    const EquidistanceMap map(EquidistanceViewOf(image, run.Size()));
    const EquidistanceNodes nodes(map, std::hypot(centre.left + largestNodeStep * nodesAround,
                                                  centre.bottom + largestNodeStep * nodesAround));
    DrawQuarters(run, map, nodes, centre, [&](int x) {
        // 16 bits, so that a frame of 65534 columns or more ends with an overflow.
        run.Advance(CInt(centre.left + x + 1, "the progress value"));
    });
}

}  // namespace varnel
