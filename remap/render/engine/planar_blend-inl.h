// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The blend of planar photos for blends-inl.h, which includes this once for each instruction set:
// each neighbour's colour as the decoder makes it, bit for bit, then blended as bytes are. Throws
// nothing.

#if defined(VARNEL_PLANAR_BLEND_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_PLANAR_BLEND_INL
#undef VARNEL_PLANAR_BLEND_INL
#else
#define VARNEL_PLANAR_BLEND_INL
#endif

#include <hwy/highway.h>

#include <array>
#include <cstring>

#include "remap/render/engine/vector_pixels-inl.h"

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET != HWY_SCALAR
// Of the two bytes from a word's first or third on, each in 16 bits.
HWY_ALIGN constexpr std::array<std::uint8_t, 16> firstOfWords{0, 0x80, 1, 0x80, 4,  0x80, 5,  0x80,
                                                              8, 0x80, 9, 0x80, 12, 0x80, 13, 0x80};
HWY_ALIGN constexpr std::array<std::uint8_t, 16> secondOfWords{
    2, 0x80, 3, 0x80, 6, 0x80, 7, 0x80, 10, 0x80, 11, 0x80, 14, 0x80, 15, 0x80};

inline VecW Spread(VecW words, const std::array<std::uint8_t, 16>& order) {
    const hn::Repartition<std::uint8_t, Words> bytes;
    return hn::BitCast(Words(), hn::TableLookupBytes(hn::BitCast(bytes, words),
                                                     hn::LoadDup128(bytes, order.data())));
}

// Both colours of a vector of places at once, blue in the lower 16 bits of a word and red in the
// upper ones: sums of up to 16 bytes fit.
struct ColourSamples {
    VecW left, middle, right;
};

inline VecW Weighted(VecW near, VecW far) {
    return hn::Add(hn::Add(near, hn::ShiftLeft<1>(near)), far);
}

inline ColourSamples Weighted(const ColourSamples& near, const ColourSamples& far) {
    return {Weighted(near.left, far.left), Weighted(near.middle, far.middle),
            Weighted(near.right, far.right)};
}

inline ColourSamples Either(hn::Mask<Words> first, const ColourSamples& a, const ColourSamples& b) {
    return {hn::IfThenElse(first, a.left, b.left), hn::IfThenElse(first, a.middle, b.middle),
            hn::IfThenElse(first, a.right, b.right)};
}

inline hn::Mask<Words> IsEven(VecI value) {
    const VecW last = hn::And(hn::BitCast(Words(), value), hn::Set(Words(), 1U));
    return hn::Eq(last, hn::Zero(Words()));
}

// Red, green and blue of a brightness and of sixteen times both colours, rounding included.
inline Colours ColoursOf(VecF brightness, VecW colours) {
    const Floats d;
    const VecW whole = hn::And(hn::ShiftRight<4>(colours), hn::Set(Words(), 0x00FF00FFU));
    const VecF none = hn::Set(d, 128.0F);
    const VecF blue = hn::Sub(Byte<0>(whole), none);
    const VecF red = hn::Sub(Byte<16>(whole), none);
    // Whole numbers below 2^24 throughout, so that nothing is rounded before the end.
    const VecF half = hn::Set(d, 32768.0F);
    const auto level = [&](VecF sum) {
        const VecF away = hn::Floor(hn::Mul(sum, hn::Set(d, 1.0F / 65536.0F)));
        return hn::Min(hn::Max(hn::Add(brightness, away), hn::Zero(d)), hn::Set(d, 255.0F));
    };
    return {level(hn::MulAdd(blue, hn::Set(d, 116130.0F), half)),
            level(hn::MulAdd(blue, hn::Set(d, -22554.0F),
                             hn::MulAdd(red, hn::Set(d, -46802.0F), half))),
            level(hn::MulAdd(red, hn::Set(d, 91881.0F), half))};
}

// Pixels x and x + 1 of two rows, the upper one at the row, counted from the top; the upper one may
// be off the picture where it is not asked for.
class PlanarPixels {
  public:
    HWY_INLINE PlanarPixels(const PlanarPicture& picture, VecI x, VecI row) : evenX_(IsEven(x)) {
        HWY_ALIGN std::array<std::int32_t, lanesAtMost> columns;
        HWY_ALIGN std::array<std::int32_t, lanesAtMost> rows;
        hn::Store(x, Ints(), columns.data());
        hn::Store(row, Ints(), rows.data());
        HWY_ALIGN std::array<std::array<std::uint64_t, lanesAtMost>, 3> colours;
        for (std::size_t lane = 0; lane < hn::Lanes(Ints()); ++lane) {
            const std::uint8_t* place =
                picture.Colours((rows[lane] - 1) >> 1) + 2 * ((columns[lane] - 1) >> 1);
            for (auto& line : colours) {
                std::memcpy(&line[lane], place, sizeof line[lane]);
                place += picture.ColourPitch();
            }
        }
        const ColourSamples first = Samples(colours[0]);
        const ColourSamples second = Samples(colours[1]);
        const ColourSamples third = Samples(colours[2]);
        const hn::Mask<Words> even = IsEven(row);
        upper_ = Weighted(Either(even, second, first), Either(even, first, second));
        lower_ = Weighted(second, Either(even, third, first));
        LoadBrightness(picture, columns, rows);
    }

    HWY_INLINE Colours Upper(VecF part) const { return Blended(brightness_[0], upper_, part); }
    HWY_INLINE Colours Lower(VecF part) const { return Blended(brightness_[1], lower_, part); }

  private:
    using Lanes = std::array<std::int32_t, lanesAtMost>;

    static ColourSamples Samples(const std::array<std::uint64_t, lanesAtMost>& places) {
        const Pair pair = LoadPairs(places.data());
        return {Spread(pair.low, firstOfWords), Spread(pair.low, secondOfWords),
                Spread(pair.high, firstOfWords)};
    }

    HWY_INLINE void LoadBrightness(const PlanarPicture& picture, const Lanes& columns,
                                   const Lanes& rows) {
        HWY_ALIGN std::array<std::array<std::uint32_t, lanesAtMost>, 2> words;
        for (std::size_t lane = 0; lane < hn::Lanes(Ints()); ++lane) {
            const std::uint8_t* const below = picture.Brightness(rows[lane] + 1) + columns[lane];
            const std::uint8_t* const above = rows[lane] < 0 ? below : below - picture.Pitch();
            std::memcpy(&words[0][lane], above, sizeof words[0][lane]);
            std::memcpy(&words[1][lane], below, sizeof words[1][lane]);
        }
        for (std::size_t n = 0; n < 2; ++n) {
            brightness_[n] = hn::Load(Words(), words[n].data());
        }
    }

    HWY_INLINE Colours Blended(VecW brightness, const ColourSamples& colours, VecF part) const {
        // The even one of the two columns is rounded up at half, the odd one down.
        const VecW up = hn::Set(Words(), 0x00080008U);
        const VecW down = hn::Set(Words(), 0x00070007U);
        const VecW left = Weighted(hn::IfThenElse(evenX_, colours.middle, colours.left),
                                   hn::IfThenElse(evenX_, colours.left, colours.middle));
        const VecW right =
            Weighted(colours.middle, hn::IfThenElse(evenX_, colours.right, colours.left));
        const Colours a =
            ColoursOf(Byte<0>(brightness), hn::Add(left, hn::IfThenElse(evenX_, up, down)));
        const Colours b =
            ColoursOf(Byte<8>(brightness), hn::Add(right, hn::IfThenElse(evenX_, down, up)));
        return {Between(a.blue, b.blue, part), Between(a.green, b.green, part),
                Between(a.red, b.red, part)};
    }

    hn::Mask<Words> evenX_;
    // Set here, as a constructor that the compiler makes for it knows no instruction set.
    ColourSamples upper_{hn::Zero(Words()), hn::Zero(Words()), hn::Zero(Words())};
    ColourSamples lower_{hn::Zero(Words()), hn::Zero(Words()), hn::Zero(Words())};
    VecW brightness_[2];
};

struct PlanarBlend {
    static HWY_INLINE void StoreInside(const SourceView& source, const Coordinate& x,
                                       const Coordinate& y, const SpanTarget& target, int n) {
        const PlanarPixels pixels(*source.planar, x.whole, FromTop(source, y.whole));
        const Colours below = pixels.Lower(x.part);
        const Colours above = pixels.Upper(x.part);
        const Colours colours{Between(below.blue, above.blue, y.part),
                              Between(below.green, above.green, y.part),
                              Between(below.red, above.red, y.part)};
        if (target.only) {
            StoreChannel(OfChannel(colours, *target.only), *target.only, target.At(n),
                         target.stride);
        } else {
            StoreColours(colours, target.At(n), target.stride,
                         static_cast<int>(hn::Lanes(Floats())));
        }
    }

    static HWY_INLINE void StoreBetween(const SourceView& source, const Coordinate& x, VecI row,
                                        const SpanTarget& target, std::ptrdiff_t n) {
        const PlanarPixels pixels(*source.planar, x.whole, FromTop(source, row));
        StoreColours(pixels.Lower(x.part), target.At(n), target.stride,
                     static_cast<int>(hn::Lanes(Floats())));
    }

  private:
    // The row above, counted from the top.
    static VecI FromTop(const SourceView& source, VecI row) {
        return hn::Sub(hn::Set(Ints(), source.height - 2), row);
    }
    static VecF OfChannel(const Colours& colours, Channel channel) {
        return channel == Channel::Blue    ? colours.blue
               : channel == Channel::Green ? colours.green
                                           : colours.red;
    }
};
#endif

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
