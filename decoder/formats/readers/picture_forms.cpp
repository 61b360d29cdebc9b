// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/picture_forms.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/image/image_library.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// The largest size with the picture's proportions within the box, never larger than the picture.
PixelSize Within(PixelSize picture, PixelSize box) {
    const double scale = std::min({1.0, static_cast<double>(box.width) / picture.width,
                                   static_cast<double>(box.height) / picture.height});
    const auto scaled = [&](std::int32_t side) {
        return std::max(static_cast<std::int32_t>(std::floor(side * scale + 0.5)), 1);
    };
    return {scaled(picture.width), scaled(picture.height)};
}

}  // namespace

void TurnInto(Bitmap& turned, Bitmap bitmap, int orientation) {
    TurnRows(bitmap.Size(), {0, bitmap.Size().height}, RowsOf(bitmap), orientation, RowsOf(turned));
    turned.metadata = TurnedMetadata(std::move(bitmap.metadata), orientation);
}

BitmapHandle InBytes(BitmapHandle bitmap) {
    BitmapHandle bytes = NewBitmap(bitmap->Size());
    for (int y = 0; y < bitmap->Size().height; ++y) {
        CopyForScreen(bitmap.get(), y, bytes->ScanLine(y).data());
    }
    bytes->metadata = std::move(bitmap->metadata);
    return bytes;
}

BitmapHandle Reduced(BitmapHandle bitmap, PixelSize box) {
    const PixelSize is = bitmap->Size();
    const PixelSize wanted = Within(is, box);
    bitmap->metadata = {};
    return is.width != wanted.width || is.height != wanted.height ? RescaledByBox(*bitmap, wanted)
                                                                  : std::move(bitmap);
}

}  // namespace varnel
