// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "base/rounding.h"
#include "remap/projection/record_maps.h"
#include "remap/render/engine/fourfold_engine.h"
#include "remap/render/engine/smooth_engine.h"
#include "remap/render/engine/smooth_maps.h"

namespace varnel {

namespace {

using PlainEngine = FourfoldEngine<RectilinearMap, RectilinearNodes>;

CentreAndExtents CentreOf(const ImageRecord& image, const RenderSurface& surface) {
    return ImageCentre(surface.Size(), image.OfsetX, image.OfsetY);
}

PlainEngine PlainEngineOf(const ImageRecord& image, const RenderSurface& surface) {
    const RectilinearMap map(RectilinearViewOf(image, surface.Size()));
    return {surface, map, RectilinearNodes(map.Radius()), CentreOf(image, surface)};
}

RotatedRectilinearMap RotatedMapOf(const ImageRecord& image, const RenderSurface& surface) {
    return {RectilinearViewOf(image, surface.Size()), CameraMoveOf(image)};
}

}  // namespace

void RenderRectilinear(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                       RenderContext& context) {
    if (CameraMoveOf(image).Moves()) {
        return RenderRectilinearRotated(image, kind, progress, context);
    }
    RenderSession run(kind, progress, context, Canvas::Anything);
    const CentreAndExtents centre = CentreOf(image, run);
    run.Begin(static_cast<float>(centre.left + 1));
    DrawQuarters(run, PlainEngineOf(image, run),
                 [&](int x) { run.Advance(static_cast<float>(x + centre.left + 1)); });
}

void RenderRectilinearRotated(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                              RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::Anything);
    const CentreAndExtents centre = CentreOf(image, run);
    run.Begin(static_cast<float>(centre.left + centre.right + 1));
    const RotatedRectilinearMap map = RotatedMapOf(image, run);
    const RotatedEngine engine(run, map, centre);
    const auto value = [&](int x) {
        return CInt(x + (centre.left + 1.0) - static_cast<double>(map.ShiftX()),
                    ReasonCode::ProgressValue);
    };
    value(engine.Columns().All().last);  // an overflow is better found before the work
    engine.FillTheRest();
    DrawLines(
        run, {engine.Columns().First(), engine.Columns().Last()},
        [&](int x, int count) { engine.Draw(x, count); }, [&](int x) { run.Advance(value(x)); });
}

std::unique_ptr<RowRenderer> RectilinearRows(const ImageRecord& image,
                                             const RenderSurface& surface) {
    if (CameraMoveOf(image).Moves()) {
        return std::make_unique<RotatedEngine>(surface, RotatedMapOf(image, surface),
                                               CentreOf(image, surface));
    }
    return std::make_unique<PlainEngine>(PlainEngineOf(image, surface));
}

}  // namespace varnel
