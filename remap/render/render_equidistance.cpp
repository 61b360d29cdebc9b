// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include "base/rounding.h"
#include "remap/projection/record_maps.h"
#include "remap/render/engine/fourfold_engine.h"
#include "remap/render/engine/smooth_maps.h"

namespace varnel {

namespace {

using EquidistanceEngine = FourfoldEngine<EquidistanceMap, EquidistanceNodes>;

EquidistanceEngine EngineOf(const ImageRecord& image, const RenderSurface& surface) {
    const PixelSize size = surface.Size();
    const CentreAndExtents centre = ImageCentre(size, image.OfsetX, image.OfsetY);
    const EquidistanceMap map(EquidistanceViewOf(image, size));
    // As far as nodes go beyond the lines.
    constexpr int margin = largestNodeStep * (nodesAround + 1);
    const int offPicture = std::max(OnPicture(centre.cx, size.width, centre.left).first,
                                    OnPicture(centre.cy, size.height, centre.bottom).first);
    // A table from the centre on would be too coarse for a picture far away from it.
    const bool isFar = offPicture / 8 > std::max(size.width, size.height);
    const EquidistanceNodes nodes(map, isFar ? std::max(offPicture - margin, 0) : 0,
                                  std::hypot(centre.left + largestNodeStep * nodesAround,
                                             centre.bottom + largestNodeStep * nodesAround));
    return {surface, map, nodes, centre};
}

}  // namespace

void RenderEquidistance(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                        RenderContext& context) {
    RenderSession run(kind, progress, context, Canvas::Anything);
    const int left = ImageCentre(run.Size(), image.OfsetX, image.OfsetY).left;
    run.Begin(static_cast<float>(left + 1));
    const EquidistanceEngine engine = EngineOf(image, run);
    // 16 bits, so that a frame of 65534 columns or more ends with an overflow, which is better
    // found before the work.
    const auto value = [left](int x) { return CInt(left + x + 1, ReasonCode::ProgressValue); };
    value(0);
    DrawQuarters(run, engine, [&](int x) { run.Advance(value(x)); });
}

std::unique_ptr<RowRenderer> EquidistanceRows(const ImageRecord& image,
                                              const RenderSurface& surface) {
    return std::make_unique<EquidistanceEngine>(EngineOf(image, surface));
}

}  // namespace varnel
