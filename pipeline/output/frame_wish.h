// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How large a result is to be, of which shape, and what is cut out of it, as people wish it: in the
// end numbers of the record. Throws what maps throw and std::bad_alloc.
#pragma once

#include <optional>
#include <span>

#include "base/block_runner.h"
#include "base/reason.h"
#include "state/records/image_record.h"

namespace varnel {

// Parts of 1 of the frame, from its left and from its top.
struct CropParts {
    double left = 0.0;
    double top = 0.0;
    double width = 1.0;
    double height = 1.0;
};

// The largest part without anything outside the photo.
struct CleanPart {
    std::optional<double> shape{};  // width by height
};

struct FrameWish {
    // Of the result, after the crop, in pixels; 0: by the other one and the shape, or as the photo.
    PixelSize size{};
    bool centre = false;             // the middle of the frame keeps the photo's resolution
    std::optional<double> aspect{};  // of the frame: width by height
    std::optional<CropParts> crop{};
    std::optional<CleanPart> clean{};
    std::optional<OutsideFill> outside{};

    bool HasFrame() const {
        return size.width > 0 || size.height > 0 || centre || aspect || crop || clean;
    }
};

// What was done differently, or why nothing was done.
struct FrameOutcome {
    Reason error{};
    Reason note{};
};

// Gives a photo's records, of which the size is known, one frame for all of them. The records are
// as they were where there is an error: a part that is not there, a size that is too large.
FrameOutcome GiveFrame(const FrameWish& wish, std::span<ImageRecord> records, BlockRunner& runner);

// Why a record's numbers make no frame; empty when they make one.
Reason FrameError(const ImageRecord& image);

// How many of the photo's pixels a pixel in the middle of a result as large as the photo stands
// for, along a line; 1 where nothing is shown there.
double PhotoPixelsInCentre(const ImageRecord& image, PixelSize frame);

}  // namespace varnel
