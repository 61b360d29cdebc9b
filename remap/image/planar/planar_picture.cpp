// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/planar/planar_picture.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <vector>

#include "base/huge_pages.h"

namespace varnel {

namespace {

constexpr std::ptrdiff_t cacheLine = 64;  // bytes
constexpr std::ptrdiff_t sample = 2;      // bytes of a colour

std::ptrdiff_t WholeLines(std::ptrdiff_t bytes) {
    return (bytes + cacheLine - 1) / cacheLine * cacheLine;
}

std::shared_ptr<std::byte> Memory(std::size_t length) {
    if (auto pages = LargePages(length)) {
        return pages;
    }
    return {new std::byte[length](), std::default_delete<std::byte[]>()};
}

// Sixteen times the colour at a place between samples: nine parts, three, three and one.
int Weighted(int near, int far) {
    return 3 * near + far;
}

std::uint8_t Level(int value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

// Blue and red less brightness, 128 for none. Factors with 16 bits behind the point, rounded as the
// decoder's tables are.
PixelColor ColourOf(int brightness, int blue, int red) {
    constexpr int half = 1 << 15;
    const int b = blue - 128;
    const int r = red - 128;
    return {Level(brightness + ((116130 * b + half) >> 16)),
            Level(brightness + ((-22554 * b - 46802 * r + half) >> 16)),
            Level(brightness + ((91881 * r + half) >> 16)), 0};
}

}  // namespace

PlanarPicture::PlanarPicture(PixelSize size)
    : size_(size),
      pitch_(WholeLines(std::ptrdiff_t{size.width} + 3)),
      colourPitch_(WholeLines(sample * (ColourSize().width + 4))) {
    const std::ptrdiff_t brightness = pitch_ * size.height;
    const std::ptrdiff_t colours = colourPitch_ * (ColourSize().height + 2);
    memory_ = Memory(static_cast<std::size_t>(brightness + colours));
    brightness_ = reinterpret_cast<std::uint8_t*>(memory_.get());
    colours_ = brightness_ + brightness + colourPitch_ + sample;
}

void PlanarPicture::TakeColours(int row, const std::uint8_t* blue, const std::uint8_t* red) {
    const PixelSize size = ColourSize();
    std::uint8_t* const out = colours_ + row * colourPitch_;
    for (int n = 0; n < size.width; ++n) {
        out[sample * n] = blue[n];
        out[sample * n + 1] = red[n];
    }
    std::memcpy(out - sample, out, sample);
    const std::uint8_t* const last = out + sample * (size.width - 1);
    for (int n = 0; n < 2; ++n) {
        std::memcpy(out + sample * (size.width + n), last, sample);
    }
    const auto length = static_cast<std::size_t>(sample * (size.width + 3));
    if (row == 0) {
        std::memcpy(out - sample - colourPitch_, out - sample, length);
    }
    if (row == size.height - 1) {
        std::memcpy(out - sample + colourPitch_, out - sample, length);
    }
}

PixelColor PlanarPicture::At(std::int32_t x, std::int32_t y) const {
    const std::ptrdiff_t row = size_.height - 1 - y;
    const std::uint8_t* const near = Colours(row / 2) + sample * (x / 2);
    const std::ptrdiff_t down = row % 2 == 0 ? -colourPitch_ : colourPitch_;
    const std::ptrdiff_t across = x % 2 == 0 ? -sample : sample;
    const int rounding = x % 2 == 0 ? 8 : 7;
    const auto colour = [&](int n) {
        return (Weighted(Weighted(near[n], near[n + down]),
                         Weighted(near[n + across], near[n + across + down])) +
                rounding) >>
               4;
    };
    return ColourOf(Brightness(row)[x], colour(0), colour(1));
}

BitmapHandle PlanarPicture::Pixels() const {
    BitmapHandle bitmap = NewBitmap(size_);
    for (std::int32_t y = 0; y < size_.height; ++y) {
        CopyRow(y, bitmap->ScanLine(y).data());
    }
    return bitmap;
}

void PlanarPicture::CopyRow(std::int32_t y, std::uint8_t* out) const {
    const std::ptrdiff_t row = size_.height - 1 - y;
    const std::ptrdiff_t down = row % 2 == 0 ? -colourPitch_ : colourPitch_;
    const std::uint8_t* const near = Colours(row / 2) - sample;
    // From the sample to the left of the first on.
    std::vector<std::int16_t> columns(static_cast<std::size_t>(sample * (ColourSize().width + 3)));
    for (std::size_t n = 0; n < columns.size(); ++n) {
        const auto place = static_cast<std::ptrdiff_t>(n);
        columns[n] = static_cast<std::int16_t>(Weighted(near[place], near[place + down]));
    }
    const std::uint8_t* const brightness = Brightness(row);
    for (std::int32_t x = 0; x < size_.width; ++x, out += 3) {
        const std::int16_t* const at = columns.data() + sample * (x / 2 + 1);
        const std::ptrdiff_t across = x % 2 == 0 ? -sample : sample;
        const int rounding = x % 2 == 0 ? 8 : 7;
        const PixelColor colour =
            ColourOf(brightness[x], (Weighted(at[0], at[across]) + rounding) >> 4,
                     (Weighted(at[1], at[across + 1]) + rounding) >> 4);
        out[0] = colour.blue;
        out[1] = colour.green;
        out[2] = colour.red;
    }
}

}  // namespace varnel
