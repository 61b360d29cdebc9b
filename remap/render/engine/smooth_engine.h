// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The general engine, for any smooth map: every pixel for itself.
#pragma once

#include <memory>
#include <vector>

#include "remap/projection/axis_owners.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/engine/engine.h"

namespace varnel {

class SmoothEngine : public Engine {
  public:
    // The map has to outlive the engine. With a channel nothing else is written. Throws
    // OverflowError.
    SmoothEngine(const RenderSurface& surface, const SmoothMap& map,
                 std::optional<Channel> only = {});

    LineRange Lines() const override { return columns_.Run(); }
    void FillTheRest() override;
    // Positions x to x + count - 1, all rows.
    void Draw(int x, int count) override;
    void DrawRow(std::int32_t row) override;

  private:
    ControlPointLine LineOf(int x, int count) const;
    void DrawLine(ControlPointLine& line, std::vector<std::uint8_t>& spare) const;
    void ScatterLine(const ControlPointLine& line, const std::vector<std::uint8_t>& pixels,
                     std::int32_t row) const;

    const RenderSurface& surface_;
    const SmoothMap& map_;
    std::unique_ptr<SmoothNodes> nodes_;
    AxisOwners columns_;
    AxisOwners rows_;
    bool covers_;
    SourceView source_;
    TargetView target_;
};

}  // namespace varnel
