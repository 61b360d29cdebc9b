// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render.h"

#include <utility>

#include "remap/render/engine/batches.h"
#include "remap/render/engine/projection_engine.h"
#include "remap/render/outside.h"
#include "remap/render/panorama.h"

namespace varnel {

QString ToText(SizeKind kind) {
    switch (kind) {
        case SizeKind::Thumbnails:
            return QStringLiteral("Thumbnails");
        case SizeKind::Batch:
            return QStringLiteral("Batch");
        case SizeKind::Large:
            break;
    }
    return QStringLiteral("Large");
}

SizeKind SizeKindFromText(QStringView text) {
    if (text == u"Thumbnails") {
        return SizeKind::Thumbnails;
    }
    return text == u"Batch" ? SizeKind::Batch : SizeKind::Large;
}

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::Anything, image);
    ProjectionMaps maps(projection, image, run.PhotoAndResult());
    const ProjectionMap& map = maps.Green();
    run.Begin(map.ProgressMaximum());
    ProjectionEngine engine(run, std::move(maps));
    map.ProgressAt(map.LastLine());  // an overflow is better found before the work
    engine.FillTheRest();
    DrawLines(
        run, engine.Lines(), [&](int first, int count) { engine.Draw(first, count); },
        [&](int line) { run.Advance(map.ProgressAt(line)); });
    engine.BlackenTheRest();
    FillOutside(projection, image, run, context.keepsTransparency);
    BitmapMetadata& metadata = run.Result()->metadata;
    metadata.panorama =
        PanoramaOfResult(projection, image, run.PhotoAndResult().output, metadata.photo);
}

std::unique_ptr<RowRenderer> RowsOf(Projection projection, const ImageRecord& image,
                                    const Frames& frames, const RenderSurface& surface) {
    return std::make_unique<ProjectionEngine>(surface, ProjectionMaps(projection, image, frames));
}

}  // namespace varnel
