// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "remap/render/engine/projection_engine.h"

namespace varnel::reference {

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::CopyOfSource, image);
    const ProjectionMaps maps(projection, image, run.PhotoAndResult());
    run.Begin(maps.Green().ProgressMaximum());
    for (const auto& [map, only] : maps.entries) {
        run.WriteOnly(only);
        if (const StraightRows* const rows = map->AsStraightRows()) {
            RenderStraightRows(run, *rows);
        } else if (const CircleRows* const circles = map->AsCircleRows()) {
            RenderCircleRows(run, *circles);
        } else {
            RenderSmooth(run, *map->AsSmooth());
        }
    }
    run.BlackenBeside(maps.Green().Shown());
}

}  // namespace varnel::reference
