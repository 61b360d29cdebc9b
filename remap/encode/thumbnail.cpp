// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/thumbnail.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

#include "remap/image/levels/byte_coding.h"

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

using Rows = std::array<const std::uint8_t*, samples>;

// One row of the thumbnail.
void Average(const Rows& rows, const Bitmap& bitmap, const std::vector<std::int32_t>& columns,
             std::uint8_t* out) {
    constexpr unsigned all = samples * samples;
    const ByteCoding coding(bitmap);
    const std::ptrdiff_t step = PixelStep(bitmap.Format());
    for (std::size_t first = 0; first < columns.size(); first += samples, out += 3) {
        unsigned blue = all / 2;
        unsigned green = all / 2;
        unsigned red = all / 2;
        for (const std::uint8_t* const row : rows) {
            for (std::size_t n = 0; n < samples; ++n) {
                const PixelColor pixel = coding.ColourAt(row + columns[first + n] * step);
                blue += pixel.blue;
                green += pixel.green;
                red += pixel.red;
            }
        }
        out[0] = static_cast<std::uint8_t>(blue / all);
        out[1] = static_cast<std::uint8_t>(green / all);
        out[2] = static_cast<std::uint8_t>(red / all);
    }
}

}  // namespace

BitmapHandle ThumbnailOf(const Bitmap* bitmap) {
    const PixelSize size = SizeOf(bitmap);
    BitmapHandle thumbnail = NewBitmap(ThumbnailSize(size));
    const PixelSize small = SizeOf(thumbnail.get());
    const std::vector<std::int32_t> columns = PlacesOf(small.width, size.width);
    const std::vector<std::int32_t> rows = PlacesOf(small.height, size.height);
    for (std::int32_t y = 0; y < small.height; ++y) {
        Rows sampled;
        for (std::int32_t n = 0; n < samples; ++n) {
            sampled[static_cast<std::size_t>(n)] =
                bitmap->ScanLine(rows[static_cast<std::size_t>(y * samples + n)]).data();
        }
        Average(sampled, *bitmap, columns, thumbnail->ScanLine(y).data());
    }
    return thumbnail;
}

}  // namespace varnel
