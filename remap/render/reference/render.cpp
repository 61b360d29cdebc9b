// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include "remap/projection/projection_info.h"

namespace varnel::reference {

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::CopyOfSource, image);
    const auto map = InfoOf(projection).Make(image, run.PhotoAndResult());
    run.Begin(map->ProgressMaximum());
    if (const StraightRows* const rows = map->AsStraightRows()) {
        RenderStraightRows(run, *rows);
    } else if (const CircleRows* const circles = map->AsCircleRows()) {
        RenderCircleRows(run, *circles);
    } else {
        RenderSmooth(run, *map->AsSmooth());
    }
}

}  // namespace varnel::reference
