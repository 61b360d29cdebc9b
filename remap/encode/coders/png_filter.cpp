// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The loops here are written for the compiler to vectorise: built with -O3.

#include "remap/encode/coders/png_filter.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cstdlib>
#include <limits>

#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// What each filter predicts from the bytes to the left, above, and above to the left.
struct Nothing {
    static std::uint8_t Of(std::uint8_t, std::uint8_t, std::uint8_t) { return 0; }
};
struct Left {
    static std::uint8_t Of(std::uint8_t left, std::uint8_t, std::uint8_t) { return left; }
};
struct Above {
    static std::uint8_t Of(std::uint8_t, std::uint8_t above, std::uint8_t) { return above; }
};
struct Average {
    static std::uint8_t Of(std::uint8_t left, std::uint8_t above, std::uint8_t) {
        return static_cast<std::uint8_t>((left + above) >> 1);
    }
};
struct Paeth {
    // In 16 bits throughout: twice as many at a time.
    static std::uint8_t Of(std::uint8_t left, std::uint8_t above, std::uint8_t corner) {
        const auto toLeft = static_cast<std::int16_t>(above - corner);
        const auto toAbove = static_cast<std::int16_t>(left - corner);
        const auto toCorner = static_cast<std::int16_t>(toLeft + toAbove);
        const auto fromLeft = static_cast<std::int16_t>(std::abs(toLeft));
        const auto fromAbove = static_cast<std::int16_t>(std::abs(toAbove));
        const auto fromCorner = static_cast<std::int16_t>(std::abs(toCorner));
        const std::uint8_t other = fromAbove <= fromCorner ? above : corner;
        return fromLeft <= std::min(fromAbove, fromCorner) ? left : other;
    }
};

// row and above point after a black pixel. Returns the sum of absolute differences: of rows of up
// to 33 million bytes.
template <class Prediction, std::size_t pixelBytes>
std::uint32_t Filter(const std::uint8_t* row, const std::uint8_t* above, std::size_t bytes,
                     std::uint8_t* __restrict filtered) {
    std::uint32_t sum = 0;
    for (std::size_t i = 0; i < bytes; ++i) {
        const std::uint8_t* const left = row + i - pixelBytes;
        const std::uint8_t* const corner = above + i - pixelBytes;
        const auto difference =
            static_cast<std::uint8_t>(row[i] - Prediction::Of(*left, above[i], *corner));
        filtered[i] = difference;
        sum += std::min(difference, static_cast<std::uint8_t>(-difference));
    }
    return sum;
}

// Of longer rows a quarter is enough to choose by, in pieces of whole pixels.
constexpr std::size_t sampledFrom = 4096;
constexpr std::size_t sampleStep = 1536;
constexpr std::size_t sampleBytes = 384;

// In the order of their numbers in the file.
template <std::size_t pixelBytes>
constexpr std::array filters{&Filter<Nothing, pixelBytes>, &Filter<Left, pixelBytes>,
                             &Filter<Above, pixelBytes>, &Filter<Average, pixelBytes>,
                             &Filter<Paeth, pixelBytes>};

// With red and high bytes in front.
template <class Sample, std::size_t samples>
void TakeRed(std::span<const std::uint8_t> row, std::uint8_t* to) {
    constexpr std::size_t step = samples * sizeof(Sample);
    const std::uint8_t* from = row.data();
    for (std::size_t i = 0; i < row.size(); i += step, from += step, to += step) {
        for (std::size_t n = 0; n < samples; ++n) {
            PutSample(to, n, qToBigEndian(SampleAt<Sample>(from, n < 3 ? 2 - n : n)));
        }
    }
}

// By the bytes of a pixel.
using FilterFunction = decltype(&Filter<Nothing, 3>);
std::span<const FilterFunction> FiltersFor(std::size_t pixelBytes) {
    switch (pixelBytes) {
        case 4:
            return filters<4>;
        case 6:
            return filters<6>;
        case 8:
            return filters<8>;
        default:
            return filters<3>;
    }
}

}  // namespace

PngFilter::PngFilter(std::size_t rowBytes, std::span<const std::uint8_t> above, PixelFormat format)
    : format_(format),
      pixelBytes_(BytesPerPixel(format)),
      row_(pixelBytes_ + rowBytes),
      above_(pixelBytes_ + rowBytes),
      filtered_(1 + rowBytes) {
    if (!above.empty()) {
        Take(above);
    }
}

std::span<const std::uint8_t> PngFilter::Next(std::span<const std::uint8_t> row) {
    above_.swap(row_);
    Take(row);
    const std::uint8_t* const its = row_.data() + pixelBytes_;
    const std::uint8_t* const above = above_.data() + pixelBytes_;
    const std::size_t step = row.size() < sampledFrom ? row.size() : sampleStep;
    const std::span<const FilterFunction> all = FiltersFor(pixelBytes_);
    std::uint32_t smallest = std::numeric_limits<std::uint32_t>::max();
    std::size_t best = 0;
    for (std::size_t n = 0; n < all.size(); ++n) {
        std::uint32_t sum = 0;
        for (std::size_t at = 0; at < row.size(); at += step) {
            const std::size_t bytes =
                std::min(row.size() - at, step == sampleStep ? sampleBytes : step);
            sum += all[n](its + at, above + at, bytes, filtered_.data() + 1);
        }
        if (sum < smallest) {
            smallest = sum;
            best = n;
        }
    }
    filtered_[0] = static_cast<std::uint8_t>(best);
    all[best](its, above, row.size(), filtered_.data() + 1);
    return filtered_;
}

void PngFilter::Take(std::span<const std::uint8_t> row) {
    std::uint8_t* const to = row_.data() + pixelBytes_;
    switch (format_) {
        case PixelFormat::Bgra8:
            return TakeRed<std::uint8_t, 4>(row, to);
        case PixelFormat::Bgr16:
            return TakeRed<std::uint16_t, 3>(row, to);
        case PixelFormat::Bgra16:
            return TakeRed<std::uint16_t, 4>(row, to);
        default:
            return TakeRed<std::uint8_t, 3>(row, to);
    }
}

}  // namespace varnel
