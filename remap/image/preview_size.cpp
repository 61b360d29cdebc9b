// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/preview_size.h"

#include <algorithm>

#include "base/rounding.h"
#include "remap/image/area_average.h"
#include "remap/image/image_library.h"

namespace varnel {

namespace {

std::int32_t Scaled(std::int32_t side, std::int32_t numerator, std::int32_t denominator) {
    return CLng(static_cast<double>(side) * numerator / denominator, ReasonCode::PreviewSide);
}

}  // namespace

PixelSize PreviewSize(PixelSize picture, PixelSize box, PixelSize room) {
    std::int32_t w = std::min({picture.width, box.width, std::max(room.width, 100)});
    std::int32_t h = Scaled(w, picture.height, picture.width);
    for (const std::int32_t limit : {box.height, std::max(room.height, 100)}) {
        if (h > limit) {
            h = limit;
            w = Scaled(h, picture.width, picture.height);
        }
    }
    return {std::max(w, 1), std::max(h, 1)};
}

PixelSize FittedSize(PixelSize picture, PixelSize room) {
    std::int32_t w = std::max(room.width, 1);
    std::int32_t h = Scaled(w, picture.height, picture.width);
    if (h > room.height) {
        h = room.height;
        w = Scaled(h, picture.width, picture.height);
    }
    return {std::max(w, 1), std::max(h, 1)};
}

BitmapHandle ReducedCopy(const Bitmap* picture, PixelSize size) {
    if (picture->Format() == PixelFormat::Bgr8) {
        return RescaledByBox(*picture, size);
    }
    const auto axis = [](std::int32_t from, std::int32_t to) {
        return AreaAxis{0.0, static_cast<double>(from) / to};
    };
    BitmapHandle reduced = NewBitmap(size);
    SerialRunner runner;
    AverageAreas(
        *picture,
        {axis(picture->Size().width, size.width), axis(picture->Size().height, size.height)},
        *reduced, runner);
    reduced->metadata = picture->metadata;
    return reduced;
}

}  // namespace varnel
