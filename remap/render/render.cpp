// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render.h"

#include <utility>

#include "remap/render/engine/batches.h"
#include "remap/render/engine/projection_engine.h"
#include "remap/render/marks.h"
#include "remap/render/outside.h"
#include "remap/render/panorama.h"

namespace varnel {

namespace {

// Rows with marks on them.
class MarkedRows : public RowRenderer {
  public:
    MarkedRows(std::unique_ptr<RowRenderer> rows, Marks marks, Bitmap& result)
        : rows_(std::move(rows)), marks_(std::move(marks)), result_(result) {}
    void DrawRow(std::int32_t row) override { DrawRows({row, row}); }
    void DrawRows(LineRange rows) override {
        rows_->DrawRows(rows);
        for (std::int32_t row = rows.first; row <= rows.last; ++row) {
            marks_.DrawRow(result_, row);
        }
    }

  private:
    std::unique_ptr<RowRenderer> rows_;
    Marks marks_;
    Bitmap& result_;
};

void DrawMarks(const Marks& marks, Bitmap& result) {
    for (std::int32_t row = 0; !marks.Empty() && row < result.Size().height; ++row) {
        marks.DrawRow(result, row);
    }
}

}  // namespace

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
    if (kind == SizeKind::Thumbnails) {
        maps.sampling = SamplingKind::Classic;  // drafts are to be there at once
    }
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
    DrawMarks(Marks(projection, image, run.PhotoAndResult().output), *run.Result());
    BitmapMetadata& metadata = run.Result()->metadata;
    metadata.panorama =
        PanoramaOfResult(projection, image, run.PhotoAndResult().output, metadata.photo);
}

std::unique_ptr<RowRenderer> RowsOf(Projection projection, const ImageRecord& image,
                                    const Frames& frames, const RenderSurface& surface) {
    auto engine =
        std::make_unique<ProjectionEngine>(surface, ProjectionMaps(projection, image, frames));
    Marks marks(projection, image, frames.output);
    if (marks.Empty()) {
        return engine;
    }
    return std::make_unique<MarkedRows>(std::move(engine), std::move(marks), *surface.Result());
}

}  // namespace varnel
