// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/projection_engine.h"

#include <utility>

#include "remap/render/engine/fine/fine_engine.h"

namespace varnel {

// Projections that know no lens curve have no smooth map.
ProjectionMaps::ProjectionMaps(Projection projection, const ImageRecord& image,
                               const Frames& frames)
    : sampling(image.Sampling) {
    entries.push_back({InfoOf(projection).Make(image, frames), {}});
    if (!image.Lens || Green().AsSmooth() == nullptr) {
        return;
    }
    for (const auto& [colour, channel] :
         {std::pair(LensColour::Red, Channel::Red), std::pair(LensColour::Blue, Channel::Blue)}) {
        if (image.Lens->ShiftOf(colour)) {
            Frames its = frames;
            its.source.colour = colour;
            entries.push_back({InfoOf(projection).Make(image, its), channel});
        }
    }
}

ProjectionEngine::ProjectionEngine(const RenderSurface& surface, ProjectionMaps maps)
    : surface_(surface), maps_(std::move(maps)) {
    if (maps_.sampling == SamplingKind::Fine) {
        const TransferCurve::Handle curve = TransferCurve::Of(*surface.Source());
        for (const auto& [map, only] : maps_.entries) {
            engines_.push_back(std::make_unique<FineEngine>(surface, *map, curve, only));
        }
        return;
    }
    for (const auto& [map, only] : maps_.entries) {
        engines_.push_back(only ? SmoothEngineFor(surface, *map->AsSmooth(), only)
                                : EngineFor(surface, *map));
    }
}

void ProjectionEngine::Draw(int first, int count) {
    for (const auto& engine : engines_) {
        engine->Draw(first, count);
    }
}

void ProjectionEngine::DrawRows(LineRange rows) {
    for (const auto& engine : engines_) {
        engine->DrawRows(rows);
    }
    for (std::int32_t row = rows.first; row <= rows.last; ++row) {
        surface_.BlackenBeside(maps_.Green().Shown(), row);
    }
}

}  // namespace varnel
