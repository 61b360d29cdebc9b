// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The colour that stands where a result shows nothing of the film's image circle. Rows count from
// the top row. Throws what records throw and std::bad_alloc.
#pragma once

#include <functional>
#include <vector>

#include "base/block_runner.h"
#include "film/frames/frame_buffer.h"
#include "film/planes/cells.h"
#include "state/records/image_record.h"

namespace varnel {

// A colour's levels on each plane of a format, by its matrix and range: where the matrix is not
// known, BT.709 for pictures of more than 576 rows and BT.601 for others, as players take them.
// Alpha is opaque.
std::array<float, mostPlanes> LevelsOf(const OutsideFill& colour, const FrameFormat& format);

class OutsideCover {
  public:
    // Remaps brightness alone, of the source's size.
    using DrawGrey = std::function<void(const FrameView& source, const FrameTarget& result)>;
    struct Tools {
        DrawGrey draw;
        BlockRunner& runner;
    };
    // The record's fill is a colour.
    OutsideCover(const ImageRecord& image, const FrameFormat& source, const FrameFormat& result,
                 const Tools& tools);

    // A row of a plane, once it is drawn.
    void FillRow(const FrameTarget& result, int plane, int row) const;

  private:
    // Samples of a row that do not show the photo's circle alone: how much they show of it and of
    // the photo, 0 to 1. Both are empty where that is nothing.
    struct Run {
        int first = 0, end = 0;
        std::vector<float> circle, photo;
    };
    using Runs = std::vector<std::vector<Run>>;  // by rows

    // The rows of a plane, from frames of all the result's brightness.
    struct Shares {
        FrameView circle, photo;
        SampleGrid grid;
    };
    static std::vector<Run> RowOf(const Shares& shares, int row, int columns);

    FrameFormat format_;
    std::array<float, mostPlanes> levels_;
    std::array<Runs, grids> runs_;
};

}  // namespace varnel
