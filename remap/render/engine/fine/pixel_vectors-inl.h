// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A pixel as four numbers, and two neighbours at once, for fine_kernels.cpp, which includes this
// once for each instruction set. Where vectors are narrower than a pixel or two the same is done in
// parts, with the same results. Throws nothing.

#if defined(VARNEL_PIXEL_VECTORS_INL) == defined(HWY_TARGET_TOGGLE)
#ifdef VARNEL_PIXEL_VECTORS_INL
#undef VARNEL_PIXEL_VECTORS_INL
#else
#define VARNEL_PIXEL_VECTORS_INL
#endif

#include <hwy/highway.h>

#include <algorithm>
#include <array>
#include <cmath>

HWY_BEFORE_NAMESPACE();
namespace varnel {
namespace HWY_NAMESPACE {

namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR
struct Pixel {
    std::array<float, 4> n;
};
template <class Function>
Pixel OfEach(const Function& function) {
    return {{function(0U), function(1U), function(2U), function(3U)}};
}
inline Pixel Every(float value) {
    return {{value, value, value, value}};
}
inline Pixel LoadPixel(const float* pixel) {
    return {{pixel[0], pixel[1], pixel[2], pixel[3]}};
}
inline void StorePixel(const Pixel& pixel, float* out) {
    std::ranges::copy(pixel.n, out);
}
inline void StoreWhole(const Pixel& pixel, std::int32_t* out) {
    std::ranges::transform(pixel.n, out, [](float n) { return static_cast<std::int32_t>(n); });
}
inline Pixel OfWhole(const std::int32_t* whole) {
    return OfEach([&](std::size_t i) { return static_cast<float>(whole[i]); });
}
// Four entries of a table, and those after them.
inline std::array<Pixel, 2> LoadEntries(const float* table, const std::int32_t* at) {
    return {OfEach([&](std::size_t i) { return table[at[i]]; }),
            OfEach([&](std::size_t i) { return table[at[i] + 1]; })};
}
inline Pixel Root(const Pixel& a) {
    return OfEach([&](std::size_t i) { return std::sqrt(a.n[i]); });
}
inline Pixel operator+(const Pixel& a, const Pixel& b) {
    return OfEach([&](std::size_t i) { return a.n[i] + b.n[i]; });
}
inline Pixel operator-(const Pixel& a, const Pixel& b) {
    return OfEach([&](std::size_t i) { return a.n[i] - b.n[i]; });
}
inline Pixel operator*(const Pixel& a, const Pixel& b) {
    return OfEach([&](std::size_t i) { return a.n[i] * b.n[i]; });
}
inline Pixel Least(const Pixel& a, const Pixel& b) {
    return OfEach([&](std::size_t i) { return std::min(a.n[i], b.n[i]); });
}
inline Pixel Most(const Pixel& a, const Pixel& b) {
    return OfEach([&](std::size_t i) { return std::max(a.n[i], b.n[i]); });
}
inline Pixel Size(const Pixel& a) {
    return OfEach([&](std::size_t i) { return std::fabs(a.n[i]); });
}
inline Pixel WhereLess(const Pixel& value, float limit, const Pixel& then, const Pixel& other) {
    return OfEach([&](std::size_t i) { return value.n[i] < limit ? then.n[i] : other.n[i]; });
}
inline void StoreInTurn(const std::array<Pixel, 4>& pixels, float* out) {
    for (std::size_t i = 0; i < 4; ++i) {
        StorePixel(OfEach([&](std::size_t n) { return pixels[n].n[i]; }), out + 4 * i);
    }
}
#else
using Four = hn::FixedTag<float, 4>;
struct Pixel {
    hn::Vec<Four> v;
};
inline Pixel Every(float value) {
    return {hn::Set(Four(), value)};
}
inline Pixel LoadPixel(const float* pixel) {
    return {hn::LoadU(Four(), pixel)};
}
inline void StorePixel(const Pixel& pixel, float* out) {
    hn::StoreU(pixel.v, Four(), out);
}
// Without what is behind the point.
inline void StoreWhole(const Pixel& pixel, std::int32_t* out) {
    const hn::Rebind<std::int32_t, Four> ints;
    hn::StoreU(hn::ConvertTo(ints, pixel.v), ints, out);
}
inline Pixel OfWhole(const std::int32_t* whole) {
    return {hn::ConvertTo(Four(), hn::LoadU(hn::Rebind<std::int32_t, Four>(), whole))};
}
// Four entries of a table, and those after them. Loads of two are faster than gathering.
inline std::array<Pixel, 2> LoadEntries(const float* table, const std::int32_t* at) {
    const hn::Half<Four> two;
    const auto pairs = [&](std::size_t i) {
        return hn::Combine(Four(), hn::LoadU(two, table + at[i + 1]),
                           hn::LoadU(two, table + at[i]));
    };
    const auto first = pairs(0);
    const auto second = pairs(2);
    return {Pixel{hn::ConcatEven(Four(), second, first)},
            Pixel{hn::ConcatOdd(Four(), second, first)}};
}
inline Pixel Root(const Pixel& a) {
    return {hn::Sqrt(a.v)};
}
inline Pixel operator+(const Pixel& a, const Pixel& b) {
    return {hn::Add(a.v, b.v)};
}
inline Pixel operator-(const Pixel& a, const Pixel& b) {
    return {hn::Sub(a.v, b.v)};
}
inline Pixel operator*(const Pixel& a, const Pixel& b) {
    return {hn::Mul(a.v, b.v)};
}
inline Pixel Least(const Pixel& a, const Pixel& b) {
    return {hn::Min(a.v, b.v)};
}
inline Pixel Most(const Pixel& a, const Pixel& b) {
    return {hn::Max(a.v, b.v)};
}
inline Pixel Size(const Pixel& a) {
    return {hn::Abs(a.v)};
}
inline Pixel WhereLess(const Pixel& value, float limit, const Pixel& then, const Pixel& other) {
    return {hn::IfThenElse(hn::Lt(value.v, hn::Set(Four(), limit)), then.v, other.v)};
}
// The first numbers of all four, the second ones, ...
inline void StoreInTurn(const std::array<Pixel, 4>& pixels, float* out) {
    hn::StoreInterleaved4(pixels[0].v, pixels[1].v, pixels[2].v, pixels[3].v, Four(), out);
}
#endif

#if HWY_MAX_BYTES >= 32 && !HWY_HAVE_SCALABLE
using Eight = hn::FixedTag<float, 8>;
struct Pair {
    hn::Vec<Eight> v;
};
inline Pair LoadPair(const float* pixels) {
    return {hn::LoadU(Eight(), pixels)};
}
inline void StorePair(const Pair& pair, float* out) {
    hn::StoreU(pair.v, Eight(), out);
}
inline Pair Size(const Pair& a) {
    return {hn::Abs(a.v)};
}
inline Pair WhereLess(const Pair& value, float limit, const Pair& then, const Pair& other) {
    return {hn::IfThenElse(hn::Lt(value.v, hn::Set(Eight(), limit)), then.v, other.v)};
}
inline Pair PairOf(float first, float second) {
    return {hn::Combine(Eight(), hn::Set(Four(), second), hn::Set(Four(), first))};
}
inline Pair Both(float value) {
    return {hn::Set(Eight(), value)};
}
inline Pair operator*(const Pair& a, const Pair& b) {
    return {hn::Mul(a.v, b.v)};
}
inline Pair operator+(const Pair& a, const Pair& b) {
    return {hn::Add(a.v, b.v)};
}
inline Pair Least(const Pair& a, const Pair& b) {
    return {hn::Min(a.v, b.v)};
}
inline Pair Most(const Pair& a, const Pair& b) {
    return {hn::Max(a.v, b.v)};
}
inline Pixel First(const Pair& pair) {
    return {hn::LowerHalf(Four(), pair.v)};
}
inline Pixel Second(const Pair& pair) {
    return {hn::UpperHalf(Four(), pair.v)};
}
#else
struct Pair {
    Pixel first, second;
};
inline Pair LoadPair(const float* pixels) {
    return {LoadPixel(pixels), LoadPixel(pixels + 4)};
}
inline void StorePair(const Pair& pair, float* out) {
    StorePixel(pair.first, out);
    StorePixel(pair.second, out + 4);
}
inline Pair Size(const Pair& a) {
    return {Size(a.first), Size(a.second)};
}
inline Pair WhereLess(const Pair& value, float limit, const Pair& then, const Pair& other) {
    return {WhereLess(value.first, limit, then.first, other.first),
            WhereLess(value.second, limit, then.second, other.second)};
}
inline Pair PairOf(float first, float second) {
    return {Every(first), Every(second)};
}
inline Pair Both(float value) {
    return {Every(value), Every(value)};
}
inline Pair operator*(const Pair& a, const Pair& b) {
    return {a.first * b.first, a.second * b.second};
}
inline Pair operator+(const Pair& a, const Pair& b) {
    return {a.first + b.first, a.second + b.second};
}
inline Pair Least(const Pair& a, const Pair& b) {
    return {Least(a.first, b.first), Least(a.second, b.second)};
}
inline Pair Most(const Pair& a, const Pair& b) {
    return {Most(a.first, b.first), Most(a.second, b.second)};
}
inline Pixel First(const Pair& pair) {
    return pair.first;
}
inline Pixel Second(const Pair& pair) {
    return pair.second;
}
#endif

}  // namespace HWY_NAMESPACE
}  // namespace varnel
HWY_AFTER_NAMESPACE();

#endif
