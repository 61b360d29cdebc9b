// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What draws the result of a map, by the loops of its kind.
#pragma once

#include <memory>
#include <optional>

#include "base/line_range.h"
#include "remap/image/pixel_access.h"
#include "remap/projection/projection_map.h"
#include "remap/render/row_renderer.h"

namespace varnel {

class Engine : public RowRenderer {
  public:
    Engine() = default;
    Engine(const Engine&) = delete;
    Engine& operator=(const Engine&) = delete;

    // The columns, rows or radii that are to be drawn: what the map's progress counts.
    virtual LineRange Lines() const = 0;
    // What no line writes.
    virtual void FillTheRest() {}
    // Lines first to first + count - 1.
    virtual void Draw(int first, int count) = 0;
};

// Both have to outlive the engine. With a channel nothing else is written. Throws OverflowError.
std::unique_ptr<Engine> SmoothEngineFor(const RenderSurface& surface, const SmoothMap& map,
                                        std::optional<Channel> only = {});
std::unique_ptr<Engine> StraightRowEngineFor(const RenderSurface& surface, const StraightRows& map);
std::unique_ptr<Engine> CircleRowEngineFor(const RenderSurface& surface, const CircleRows& map);
std::unique_ptr<Engine> EngineFor(const RenderSurface& surface, const ProjectionMap& map);

}  // namespace varnel
