// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What comes of reading a photo. Throws nothing.
#pragma once

#include <memory>

#include "base/reason.h"
#include "decoder/request/arriving_picture.h"
#include "remap/image/bitmap.h"
#include "remap/image/photo_metadata.h"
#include "remap/image/planar/planar_picture.h"

namespace varnel {

enum class LoadOutcome {
    Loaded,
    Damaged,   // a picture came, but a part of it is missing or wrong
    NotLoaded  // no picture
};

struct LoadedPicture {
    LoadOutcome outcome = LoadOutcome::NotLoaded;
    BitmapHandle bitmap;  // as deep as asked; empty when not loaded or when only the size was asked
    Reason reason;        // what is wrong; empty when all is well
    PixelSize size{};     // of the full picture, pixels; 0 x 0 when not loaded
    PhotoMetadata facts = {};  // when only they were asked for; a bitmap has its own with it
    int orientation = 1;       // that the file states and that was undone, as EXIF counts
    std::shared_ptr<ArrivingPicture> arriving{};    // while the bitmap's rows are on their way
    std::shared_ptr<const PlanarPicture> planar{};  // in place of the bitmap's pixels

    static LoadedPicture Refused(const Reason& reason) {
        return {LoadOutcome::NotLoaded, nullptr, reason, {}};
    }
};

}  // namespace varnel
