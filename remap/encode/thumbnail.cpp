// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/thumbnail.h"

#include <algorithm>
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

}  // namespace

ThumbnailSampler::ThumbnailSampler(PixelSize picture)
    : size_(ThumbnailSize(picture)),
      columns_(PlacesOf(size_.width, picture.width)),
      rows_(PlacesOf(size_.height, picture.height)),
      samples_(columns_.size() * rows_.size()) {}

void ThumbnailSampler::Take(const Bitmap& bitmap, LineRange rows) {
    const ByteCoding coding(bitmap);
    const std::ptrdiff_t step = PixelStep(bitmap.Format());
    const auto first = std::ranges::lower_bound(rows_, rows.first);
    const auto end = std::ranges::upper_bound(rows_, rows.last);
    PixelColor* to = samples_.data() + (first - rows_.begin()) * std::ssize(columns_);
    for (auto row = first; row < end; ++row) {
        const std::uint8_t* const from = bitmap.ScanLine(*row).data();
        for (const std::int32_t column : columns_) {
            *to++ = coding.ColourAt(from + column * step);
        }
    }
}

BitmapHandle ThumbnailSampler::Thumbnail() const {
    constexpr unsigned all = samples * samples;
    BitmapHandle thumbnail = NewBitmap(size_);
    for (std::int32_t y = 0; y < size_.height; ++y) {
        std::uint8_t* out = thumbnail->ScanLine(y).data();
        for (std::int32_t x = 0; x < size_.width; ++x, out += 3) {
            unsigned blue = all / 2;
            unsigned green = all / 2;
            unsigned red = all / 2;
            for (std::int32_t n = 0; n < samples; ++n) {
                const auto row = static_cast<std::size_t>(y * samples + n);
                const PixelColor* const pixels =
                    samples_.data() + row * columns_.size() + x * samples;
                for (std::int32_t m = 0; m < samples; ++m) {
                    blue += pixels[m].blue;
                    green += pixels[m].green;
                    red += pixels[m].red;
                }
            }
            out[0] = static_cast<std::uint8_t>(blue / all);
            out[1] = static_cast<std::uint8_t>(green / all);
            out[2] = static_cast<std::uint8_t>(red / all);
        }
    }
    return thumbnail;
}

BitmapHandle ThumbnailOf(const Bitmap* bitmap) {
    const PixelSize size = SizeOf(bitmap);
    ThumbnailSampler sampler(size);
    sampler.Take(*bitmap, {0, size.height - 1});
    return sampler.Thumbnail();
}

}  // namespace varnel
