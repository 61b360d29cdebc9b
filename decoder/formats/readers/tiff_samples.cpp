// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/tiff_samples.h"

#include <bit>
#include <cstring>

#include "decoder/formats/readers/part_of_range.h"
#include "decoder/formats/readers/sane_sample.h"

namespace varnel {

namespace {

template <class Number>
Number NumberAt(const std::uint8_t* row, std::size_t n) {
    Number number;
    std::memcpy(&number, row + n * sizeof(Number), sizeof(Number));
    return number;
}

// IEEE 754's half precision: its exponent is 112 less than that of the same bits in a float.
float FromHalf(std::uint16_t half) {
    constexpr std::uint32_t endless = 0x7C00;
    const std::uint32_t size = half & 0x7FFFU;
    const float value = size >= endless ? std::bit_cast<float>(0x7F800000U | (size - endless) << 13)
                                        : std::bit_cast<float>(size << 13) * 0x1p112F;
    return (half & 0x8000U) != 0 ? -value : value;
}

// Samples of any number of bits close together, the highest bit first.
class BitReader {
  public:
    BitReader(const std::uint8_t* row, int bits) : next_(row), bits_(bits) {}

    std::uint32_t Next() {
        for (; held_ < bits_; held_ += 8) {
            reservoir_ = reservoir_ << 8 | *next_++;
        }
        held_ -= bits_;
        return static_cast<std::uint32_t>(reservoir_ >> held_ & ((std::uint64_t{1} << bits_) - 1));
    }

  private:
    const std::uint8_t* next_;
    int bits_;
    int held_ = 0;
    std::uint64_t reservoir_ = 0;
};

// libtiff has put samples of whole bytes in the machine's order.
template <class Sample>
void TakeWords(const Sample& sampleAt, int bits, std::size_t count, std::uint16_t* to) {
    for (std::size_t n = 0; n < count; ++n) {
        to[n] = ToWord(sampleAt(n), bits);
    }
}

}  // namespace

void TakeSamples(const std::uint8_t* row, const TiffSampleKind& kind, std::size_t count,
                 std::uint8_t* to) {
    std::memcpy(to, row, count);
    for (std::size_t n = 0; kind.whiteIsZero && n < count; ++n) {
        to[n] = static_cast<std::uint8_t>(~to[n]);
    }
}

void TakeSamples(const std::uint8_t* row, const TiffSampleKind& kind, std::size_t count,
                 std::uint16_t* to) {
    switch (kind.bits) {
        case 16:
            std::memcpy(to, row, count * sizeof *to);
            break;
        case 24:
            TakeWords(
                [row](std::size_t n) {
                    const std::uint8_t* const sample = row + 3 * n;
                    return static_cast<std::uint32_t>(sample[0] | sample[1] << 8 | sample[2] << 16);
                },
                kind.bits, count, to);
            break;
        case 32:
            TakeWords([row](std::size_t n) { return NumberAt<std::uint32_t>(row, n); }, kind.bits,
                      count, to);
            break;
        default:
            BitReader reader(row, kind.bits);
            TakeWords([&reader](std::size_t /*n*/) { return reader.Next(); }, kind.bits, count, to);
    }
    for (std::size_t n = 0; kind.whiteIsZero && n < count; ++n) {
        to[n] = static_cast<std::uint16_t>(~to[n]);
    }
}

void TakeSamples(const std::uint8_t* row, const TiffSampleKind& kind, std::size_t count,
                 float* to) {
    for (std::size_t n = 0; n < count; ++n) {
        to[n] = kind.bits == 16   ? SaneFloat(FromHalf(NumberAt<std::uint16_t>(row, n)))
                : kind.bits == 32 ? SaneFloat(NumberAt<float>(row, n))
                                  : SaneFloat(NumberAt<double>(row, n));
    }
}

}  // namespace varnel
