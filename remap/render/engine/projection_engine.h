// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine of a record's projection with the maps that it draws by. A lens that puts red and blue
// at other radii than green has a map for each of these colours: their channels are read again
// where they are on the photo, which takes nearly three times as long. Throws what maps throw,
// OverflowError and std::bad_alloc.
#pragma once

#include <memory>
#include <vector>

#include "remap/projection/projection_info.h"
#include "remap/render/engine/engine.h"

namespace varnel {

// Green's first, whose loops are those of all, for all channels.
struct ProjectionMaps {
    struct Entry {
        std::unique_ptr<ProjectionMap> map;
        std::optional<Channel> only;
    };
    std::vector<Entry> entries;
    SamplingKind sampling = SamplingKind::Classic;  // as the record wants it

    ProjectionMaps(Projection projection, const ImageRecord& image, const Frames& frames);
    const ProjectionMap& Green() const { return *entries.front().map; }
};

class ProjectionEngine : public Engine {
  public:
    // The surface has to outlive the engine.
    ProjectionEngine(const RenderSurface& surface, ProjectionMaps maps);

    LineRange Lines() const override { return engines_.front()->Lines(); }
    void FillTheRest() override { engines_.front()->FillTheRest(); }
    void Draw(int first, int count) override;
    void DrawRow(std::int32_t row) override { DrawRows({row, row}); }
    void DrawRows(LineRange rows) override;
    // Once all lines are drawn: what of the result the maps are not for.
    void BlackenTheRest() const { surface_.BlackenBeside(maps_.Green().Shown()); }

  private:
    const RenderSurface& surface_;
    const ProjectionMaps maps_;
    std::vector<std::unique_ptr<Engine>> engines_;
};

}  // namespace varnel
