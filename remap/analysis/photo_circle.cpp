// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/photo_circle.h"

#include <algorithm>

#include "remap/image/pixel_access.h"
#include "remap/image/preview_size.h"

namespace varnel {

namespace {

constexpr std::int32_t searchedSide = 1000;

// The brightest channel: a rim may be of one colour, and the dark around it is dark in all.
GreyPicture GreyOf(const Bitmap* bitmap) {
    GreyPicture grey{SizeOf(bitmap), {}};
    for (int y = grey.size.height - 1; y >= 0; --y) {
        const std::uint8_t* pixel = bitmap->ScanLine(y).data();
        for (int x = 0; x < grey.size.width; ++x, pixel += PixelStep(bitmap->Format())) {
            const PixelColor colour = ColourAt(pixel, bitmap->Format());
            grey.values.push_back(std::max({colour.blue, colour.green, colour.red}));
        }
    }
    return grey;
}

}  // namespace

std::optional<FoundCircle> FindPhotoCircle(const Bitmap* photo) {
    constexpr PixelSize box{searchedSide, searchedSide};
    const PixelSize full = SizeOf(photo);
    const BitmapHandle reduced = ReducedCopy(photo, PreviewSize(full, box, box));
    const PixelSize size = SizeOf(reduced.get());
    const std::optional<FoundCircle> found = FindImageCircle(GreyOf(reduced.get()));
    if (!found) {
        return std::nullopt;
    }
    const double across = static_cast<double>(full.width) / size.width;
    const double down = static_cast<double>(full.height) / size.height;
    const double scale = full.width >= full.height ? across : down;
    return FoundCircle{{found->x * across, found->y * down, found->radius * scale},
                       found->error * scale,
                       found->rough};
}

}  // namespace varnel
