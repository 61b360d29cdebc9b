// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Vectors of pixels for the kernels, which include this once for each instruction set. Blends
// are linear interpolations in single precision, which leave flat areas exactly flat; they differ
// from the double-precision blends by one level in fewer than one of a thousand channels (tested).
// Throws nothing.

#if defined(VARNEL_VECTOR_PIXELS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_VECTOR_PIXELS_INL
#undef VARNEL_VECTOR_PIXELS_INL
#else
#define VARNEL_VECTOR_PIXELS_INL
#endif

#include <hwy/highway.h>

#include <array>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "remap/render/engine/source_view.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

constexpr int lanesAtMost = 8;
using Floats = hn::CappedTag<float, lanesAtMost>;
using Ints = hn::Rebind<std::int32_t, Floats>;
using Words = hn::Rebind<std::uint32_t, Floats>;
using VecF = hn::Vec<Floats>;
using VecI = hn::Vec<Ints>;
using VecW = hn::Vec<Words>;
using Doubles = hn::CappedTag<double, lanesAtMost>;
using VecD = hn::Vec<Doubles>;

// Source pixels of one vector: whole coordinates of the lower left neighbour and what is left.
struct Positions {
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> x;
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> y;
    HWY_ALIGN std::array<float, lanesAtMost> partX;
    HWY_ALIGN std::array<float, lanesAtMost> partY;
};

// A coordinate of a vector of pixels: the whole one of the lower neighbour and what is left.
struct Coordinate {
    VecI whole;
    VecF part;
};

// One axis of an image: from offsets within a piece to coordinates.
struct ImageAxis {
    VecF sign;
    VecF shift;
    VecI base;  // as single-precision whole numbers keep it, see At

    ImageAxis(int direction, std::int32_t centre, std::int32_t offset, double mirror)
        : sign(hn::Set(Floats(), direction > 0 ? 1.0F : -1.0F)),
          shift(hn::Set(Floats(), direction > 0 ? 0.0F : static_cast<float>(mirror))),
          base(hn::Set(Ints(), centre + (direction > 0 ? offset : -offset) - wholeBits)) {}

    // Whole numbers below 2^22 are the last bits of what they make of 1.5 * 2^23. Offsets are
    // smaller, see Smooth.
    Coordinate At(VecF offset) const {
        const VecF at = hn::MulAdd(offset, sign, shift);
        const VecF floor = hn::Floor(at);
        const VecF bits = hn::Add(floor, hn::Set(Floats(), 12582912.0F));
        return {hn::Add(hn::BitCast(Ints(), bits), base), hn::Sub(at, floor)};
    }

  private:
    static constexpr std::int32_t wholeBits = 0x4B400000;
};

// Two neighbouring pixels of a row as 8 bytes: blue, green, red, blue, green, red and two more.
struct Pair {
    VecW low, high;
};

inline Pair LoadPairs(const std::uint64_t* pairs) {
    VecW low;
    VecW high;
    hn::LoadInterleaved2(Words(), reinterpret_cast<const std::uint32_t*>(pairs), low, high);
    return {low, high};
}

template <int kShift>
inline VecF Byte(VecW word) {
    VecW byte = hn::ShiftRight<kShift>(word);
    if constexpr (kShift < 24) {
        byte = hn::And(byte, hn::Set(Words(), 255U));
    }
    return hn::ConvertTo(Floats(), hn::BitCast(Ints(), byte));
}

template <class Vector>
Vector Between(Vector a, Vector b, Vector part) {
    return hn::MulAdd(hn::Sub(b, a), part, a);
}

inline VecF BetweenPair(const Pair& pair, VecF part, Channel channel) {
    switch (channel) {
        case Channel::Blue:
            return Between(Byte<0>(pair.low), Byte<24>(pair.low), part);
        case Channel::Green:
            return Between(Byte<8>(pair.low), Byte<0>(pair.high), part);
        case Channel::Red:
            break;
    }
    return Between(Byte<16>(pair.low), Byte<8>(pair.high), part);
}

struct Colours {
    VecF blue, green, red;
};

inline Colours BetweenPair(const Pair& pair, VecF part) {
    return {BetweenPair(pair, part, Channel::Blue), BetweenPair(pair, part, Channel::Green),
            BetweenPair(pair, part, Channel::Red)};
}

#if HWY_TARGET != HWY_SCALAR
// The bytes of four pixels of 32 bits without their fourth ones, in order and in reverse.
HWY_ALIGN constexpr std::array<std::uint8_t, 16> packed{0,  1,  2,  4,  5,    6,    8,    9,
                                                        10, 12, 13, 14, 0x80, 0x80, 0x80, 0x80};
HWY_ALIGN constexpr std::array<std::uint8_t, 16> packedBackward{
    12, 13, 14, 8, 9, 10, 4, 5, 6, 0, 1, 2, 0x80, 0x80, 0x80, 0x80};

// A whole vector to neighbouring pixels, from out on to the right or, backward, to the left.
inline void StorePacked(VecI pixels, std::uint8_t* out, bool backward) {
    const hn::Repartition<std::uint8_t, Ints> bytes;
    const auto order = hn::LoadDup128(bytes, backward ? packedBackward.data() : packed.data());
    HWY_ALIGN std::array<std::uint8_t, 4 * lanesAtMost> packedPixels;
    hn::Store(hn::TableLookupBytes(hn::BitCast(bytes, pixels), order), bytes, packedPixels.data());
    const std::size_t lanes = hn::Lanes(Ints());
    for (std::size_t n = 0; n < lanes; n += 4) {
        std::uint8_t* const four = backward ? out - 3 * static_cast<std::ptrdiff_t>(n) - 9
                                            : out + 3 * static_cast<std::ptrdiff_t>(n);
        std::memcpy(four, packedPixels.data() + 4 * n, 12);
    }
}

#endif

// The pixels of a vector, from there on to the right or, with a negative stride, to the left.
inline void StoreColours(const Colours& colours, std::uint8_t* out, std::ptrdiff_t stride,
                         int count) {
    const Ints ints;
    const Floats floats;
    // Three bytes side by side are whole numbers below 2^24, exact in single precision.
    const VecF both =
        hn::MulAdd(hn::Floor(colours.green), hn::Set(floats, 256.0F), hn::Floor(colours.blue));
    const VecI whole =
        hn::ConvertTo(ints, hn::MulAdd(hn::Floor(colours.red), hn::Set(floats, 65536.0F), both));
#if HWY_TARGET != HWY_SCALAR
    if (count == static_cast<int>(hn::Lanes(ints))) {
        StorePacked(whole, out, stride < 0);
        return;
    }
#endif
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> pixels;
    hn::Store(whole, ints, pixels.data());
    for (int n = 0; n < count; ++n) {
        std::memcpy(out + n * stride, &pixels[static_cast<std::size_t>(n)], 3);
    }
}

// One channel of a whole vector of pixels, the others left as they are.
inline void StoreChannel(VecF levels, Channel channel, std::uint8_t* out, std::ptrdiff_t stride) {
    HWY_ALIGN std::array<std::int32_t, lanesAtMost> bytes;
    hn::Store(hn::ConvertTo(Ints(), levels), Ints(), bytes.data());
    out += static_cast<std::ptrdiff_t>(channel);
    for (std::size_t n = 0; n < hn::Lanes(Ints()); ++n, out += stride) {
        *out = static_cast<std::uint8_t>(bytes[n]);
    }
}

// Low <= value <= high.
inline hn::Mask<Ints> Within(VecI value, std::int32_t low, std::int32_t high) {
    const Ints ints;
    return hn::And(hn::Gt(value, hn::Set(ints, low - 1)), hn::Lt(value, hn::Set(ints, high + 1)));
}

// No neighbour of any lane is on the picture.
inline bool AllOutside(VecI x, VecI y, const SourceView& source) {
    const auto touching =
        hn::And(Within(x, -1, source.width - 1), Within(y, -1, source.height - 1));
    return hn::AllFalse(Ints(), touching);
}

// Samples from the first pixel of a picture of three or four to a pixel, pitch from row to row.
template <int samples>
VecI Offsets(VecI x, VecI y, std::ptrdiff_t pitch) {
    const Ints ints;
    const VecI columns = samples == 4 ? hn::ShiftLeft<2>(x) : hn::Add(x, hn::Add(x, x));
    return hn::Add(hn::Mul(y, hn::Set(ints, static_cast<std::int32_t>(pitch))), columns);
}

// Before rows from the lowest of these on are read.
inline void WaitForRows(VecI rows, const SourceView& source) {
    if (HWY_UNLIKELY(source.arriving != nullptr)) {
        source.WaitFor(hn::GetLane(hn::MinOfLanes(Ints(), rows)));
    }
}

// Whether the vector code can read the source: up to 2^31 samples, where a vector is a single
// number only bytes. Single pixels can be read in any case.
inline bool TakesVectors(const SourceView& source) {
    if (source.planar != nullptr) {
        return HWY_TARGET != HWY_SCALAR;
    }
    const std::ptrdiff_t sampleBytes = BitsPerSample(source.format) / 8;
    return (HWY_TARGET != HWY_SCALAR || source.format == PixelFormat::Bgr8) &&
           std::abs(source.pitch) / sampleBytes * source.height <=
               std::numeric_limits<std::int32_t>::max();
}

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
