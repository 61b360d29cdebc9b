// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The loops here are written for the compiler to vectorise: built with -O3.

#include "remap/encode/coders/tiff_rows.h"

#include <QtEndian>
#include <bit>
#include <cstring>
#include <type_traits>

#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// Floating-point samples are handled as whole numbers of the same bytes.
template <class Sample>
void PutSwapped(std::uint8_t* pixel, std::size_t place, Sample sample, bool swaps) {
    PutSample(pixel, place, swaps ? qbswap(sample) : sample);
}

template <class Sample, std::size_t samples>
void Reordered(const std::uint8_t* row, std::size_t width, bool swaps, std::uint8_t* out) {
    constexpr std::size_t step = samples * sizeof(Sample);
    for (std::size_t x = 0; x < width; ++x, row += step, out += step) {
        for (std::size_t n = 0; n < samples; ++n) {
            PutSwapped(out, n, SampleAt<Sample>(row, n < 3 ? 2 - n : n), swaps);
        }
    }
}

template <class Sample, std::size_t samples>
void Differences(const std::uint8_t* row, std::size_t width, bool swaps, std::uint8_t* out) {
    constexpr std::size_t step = samples * sizeof(Sample);
    Sample before[samples] = {};
    for (std::size_t x = 0; x < width; ++x, row += step, out += step) {
        for (std::size_t n = 0; n < samples; ++n) {
            const auto sample = SampleAt<Sample>(row, n < 3 ? 2 - n : n);
            PutSwapped(out, n, static_cast<Sample>(sample - before[n]), swaps);
            before[n] = sample;
        }
    }
}

template <class Sample>
auto* RowFunction(bool differences, bool alpha) {
    if (differences) {
        return alpha ? &Differences<Sample, 4> : &Differences<Sample, 3>;
    }
    return alpha ? &Reordered<Sample, 4> : &Reordered<Sample, 3>;
}

constexpr bool isBigEndianMachine = std::endian::native == std::endian::big;

}  // namespace

TiffRows::TiffRows(PixelFormat format, std::size_t width, TiffPredictor predictor, bool bigEndian)
    : format_(format),
      width_(width),
      predictor_(predictor),
      swaps_(predictor != TiffPredictor::FloatingPoint && bigEndian != isBigEndianMachine),
      row_(predictor == TiffPredictor::FloatingPoint ? width * BytesPerPixel(format) : 0) {}

void TiffRows::Put(const std::uint8_t* row, std::uint8_t* out) {
    if (predictor_ == TiffPredictor::FloatingPoint) {
        PutSamples<std::uint32_t>(row, row_.data());
        return PutPlanes(out);
    }
    switch (SampleKindOf(format_)) {
        case SampleKind::Byte:
            return PutSamples<std::uint8_t>(row, out);
        case SampleKind::Word:
            return PutSamples<std::uint16_t>(row, out);
        case SampleKind::Float:
            return PutSamples<std::uint32_t>(row, out);
    }
}

template <class Sample>
void TiffRows::PutSamples(const std::uint8_t* row, std::uint8_t* out) const {
    RowFunction<Sample>(predictor_ == TiffPredictor::Differences, HasAlpha(format_))(row, width_,
                                                                                     swaps_, out);
}

// Adobe's predictor for floating point: the high bytes of all samples, then the next ones and so
// on, whatever the file's order; of these bytes the differences from pixel to pixel.
void TiffRows::PutPlanes(std::uint8_t* out) {
    const std::size_t samples = HasAlpha(format_) ? 4 : 3;
    const std::size_t count = width_ * samples;
    for (std::size_t n = 0; n < count; ++n) {
        std::uint32_t sample = 0;
        std::memcpy(&sample, row_.data() + 4 * n, sizeof sample);
        for (std::size_t plane = 0; plane < 4; ++plane) {
            out[plane * count + n] = static_cast<std::uint8_t>(sample >> (24 - 8 * plane));
        }
    }
    for (std::size_t n = 4 * count - 1; n >= samples; --n) {
        out[n] = static_cast<std::uint8_t>(out[n] - out[n - samples]);
    }
}

}  // namespace varnel
