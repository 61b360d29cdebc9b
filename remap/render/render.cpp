// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render.h"

#include "remap/projection/projection_info.h"
#include "remap/render/engine/batches.h"
#include "remap/render/engine/engine.h"

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
    const auto map = InfoOf(projection).Make(image, run.PhotoAndResult());
    run.Begin(map->ProgressMaximum());
    const auto engine = EngineFor(run, *map);
    map->ProgressAt(map->LastLine());  // an overflow is better found before the work
    engine->FillTheRest();
    DrawLines(
        run, engine->Lines(), [&](int first, int count) { engine->Draw(first, count); },
        [&](int line) { run.Advance(map->ProgressAt(line)); });
}

namespace {

// The rows with the map that they are drawn by.
class OwningRows : public RowRenderer {
  public:
    OwningRows(std::unique_ptr<ProjectionMap> map, const RenderSurface& surface)
        : map_(std::move(map)), rows_(EngineFor(surface, *map_)) {}
    void DrawRow(std::int32_t row) override { rows_->DrawRow(row); }

  private:
    std::unique_ptr<ProjectionMap> map_;
    std::unique_ptr<RowRenderer> rows_;
};

}  // namespace

std::unique_ptr<RowRenderer> RowsOf(Projection projection, const ImageRecord& image,
                                    const Frames& frames, const RenderSurface& surface) {
    return std::make_unique<OwningRows>(InfoOf(projection).Make(image, frames), surface);
}

}  // namespace varnel
