// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/levels/byte_coding.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "remap/image/levels/srgb_curve.h"

namespace varnel {

namespace {

// Where the curve is steepest a byte is twenty entries.
class CodedBytes {
  public:
    CodedBytes() {
        for (std::size_t n = 0; n < bytes_.size(); ++n) {
            const double light = static_cast<double>(n) / static_cast<double>(bytes_.size() - 1);
            bytes_[n] = varnel::ByteOf(static_cast<float>(SrgbCoded(light)));
        }
    }
    std::uint8_t Of(float light) const {
        constexpr auto last = static_cast<float>(tableSize - 1);
        const float place = light > 0.0F ? std::min(light, 1.0F) * last : 0.0F;
        return bytes_[static_cast<std::size_t>(std::lround(place))];
    }

  private:
    static constexpr std::size_t tableSize = 65536;
    std::array<std::uint8_t, tableSize> bytes_{};
};

std::uint8_t CodedByte(float light) {
    static const CodedBytes bytes;
    return bytes.Of(light);
}

}  // namespace

PixelColor ByteCoding::LinearColourAt(const std::uint8_t* pixel) const {
    return {CodedByte(SampleAt<float>(pixel, 0)), CodedByte(SampleAt<float>(pixel, 1)),
            CodedByte(SampleAt<float>(pixel, 2)), 0};
}

std::uint8_t ByteCoding::ByteOf(float level) const {
    if (linear_) {
        return CodedByte(level);
    }
    switch (samples_) {
        case SampleKind::Word:
            return varnel::ByteOf(level / 65535.0F);
        case SampleKind::Float:
            return varnel::ByteOf(level);
        case SampleKind::Byte:
            break;
    }
    return varnel::ByteOf(level / 255.0F);
}

PixelLevels ByteCoding::LevelsOf(const PixelColor& colour) const {
    if (!linear_) {
        return varnel::LevelsOf(colour, format_);
    }
    return {SrgbLight(colour.blue / 255.0), SrgbLight(colour.green / 255.0),
            SrgbLight(colour.red / 255.0), 1.0};
}

}  // namespace varnel
