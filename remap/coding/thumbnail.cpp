// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/coding/thumbnail.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace varnel {

namespace {

constexpr std::int32_t longSide = 160;
constexpr std::int32_t shortSide = 120;
// Of a thumbnail's pixel, each way. Nearly all the time goes to rows that are fetched from memory.
constexpr std::int32_t samples = 3;

PixelSize ThumbnailSize(PixelSize size) {
    const bool wide = size.width >= size.height;
    const double scale = std::min({1.0, (wide ? longSide : shortSide) / double(size.width),
                                   (wide ? shortSide : longSide) / double(size.height)});
    const auto side = [scale](std::int32_t whole) {
        return std::max(1, static_cast<std::int32_t>(std::lround(scale * whole)));
    };
    return {side(size.width), side(size.height)};
}

// Where the samples of one direction lie: in the middles of equal parts.
std::vector<std::int32_t> PlacesOf(std::int32_t thumbnailSide, std::int32_t side) {
    std::vector<std::int32_t> places(static_cast<std::size_t>(thumbnailSide * samples));
    const auto count = static_cast<std::int64_t>(places.size());
    for (std::int64_t n = 0; n < count; ++n) {
        places[static_cast<std::size_t>(n)] =
            static_cast<std::int32_t>((2 * n + 1) * side / (2 * count));
    }
    return places;
}

// Adds samples of the row to three sums a pixel.
void Add(const std::uint8_t* row, const std::vector<std::int32_t>& columns,
         std::vector<std::uint16_t>& sums) {
    static_assert(samples == 3);
    const std::int32_t* column = columns.data();
    for (std::size_t n = 0; n < sums.size(); n += 3, column += samples) {
        const std::uint8_t* const a = row + 3 * std::ptrdiff_t{column[0]};
        const std::uint8_t* const b = row + 3 * std::ptrdiff_t{column[1]};
        const std::uint8_t* const c = row + 3 * std::ptrdiff_t{column[2]};
        for (std::size_t colour = 0; colour < 3; ++colour) {
            sums[n + colour] += static_cast<std::uint16_t>(a[colour] + b[colour] + c[colour]);
        }
    }
}

}  // namespace

BitmapHandle ThumbnailOf(FIBITMAP* bitmap) {
    const PixelSize size = SizeOf(bitmap);
    BitmapHandle thumbnail = NewBitmap(ThumbnailSize(size));
    const PixelSize small = SizeOf(thumbnail.get());
    const std::vector<std::int32_t> columns = PlacesOf(small.width, size.width);
    const std::vector<std::int32_t> rows = PlacesOf(small.height, size.height);
    for (std::int32_t y = 0; y < small.height; ++y) {
        constexpr std::uint16_t all = samples * samples;
        std::vector<std::uint16_t> sums(static_cast<std::size_t>(small.width) * 3, all / 2);
        for (std::int32_t n = 0; n < samples; ++n) {
            const int row = rows[static_cast<std::size_t>(y * samples + n)];
            Add(FreeImage_GetScanLine(bitmap, row), columns, sums);
        }
        std::ranges::transform(sums, FreeImage_GetScanLine(thumbnail.get(), y),
                               [](std::uint16_t sum) { return static_cast<BYTE>(sum / all); });
    }
    return thumbnail;
}

}  // namespace varnel
