// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/engine.h"

#include "remap/render/engine/fourfold_engine.h"
#include "remap/render/engine/smooth_engine.h"

namespace varnel {

std::unique_ptr<Engine> SmoothEngineFor(const RenderSurface& surface, const SmoothMap& map,
                                        std::optional<Channel> only) {
    if (map.IsFourfold()) {
        return std::make_unique<FourfoldEngine>(surface, map, only);
    }
    return std::make_unique<SmoothEngine>(surface, map, only);
}

std::unique_ptr<Engine> EngineFor(const RenderSurface& surface, const ProjectionMap& map) {
    if (const StraightRows* const rows = map.AsStraightRows()) {
        return StraightRowEngineFor(surface, *rows);
    }
    if (const CircleRows* const circles = map.AsCircleRows()) {
        return CircleRowEngineFor(surface, *circles);
    }
    return SmoothEngineFor(surface, *map.AsSmooth());
}

}  // namespace varnel
