// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the samples of a picture stand for light: by the curve of its colour profile, by that of sRGB
// where it has none, and one for one where floating-point samples have no profile. Samples and
// light go from 0, black, to 1, white. Constructing throws std::bad_alloc, the rest nothing.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "remap/image/bitmap.h"

namespace varnel {

// Whether samples of a picture with that colour profile, empty for none, are light one for one.
bool AreLight(SampleKind samples, const QByteArray& colourProfile);

class TransferCurve {
  public:
    using Handle = std::shared_ptr<const TransferCurve>;
    // From a sample to its light.
    using Curve = std::function<double(double)>;

    // A picture's. Profiles with another curve for each colour are taken by green's: light is only
    // what is blended, and any rising curve brings samples back as they were.
    static Handle Of(const Bitmap& bitmap);
    static Handle Srgb();
    static Handle Straight();
    // Of a curve that does not rise that of sRGB is taken.
    explicit TransferCurve(const Curve& lightOf);

    // Whether samples are light.
    bool IsStraight() const { return linear_.empty(); }
    float LightOf(std::uint8_t sample) const {
        return LightOf(static_cast<std::uint16_t>(sample * 257));
    }
    float LightOf(std::uint16_t sample) const {
        return IsStraight() ? static_cast<float>(sample) / 65535.0F : linear_[sample];
    }
    // Also beyond 1, where the curve goes on straight; below 0 it is 0.
    float LightOf(float sample) const;
    float SampleOf(float light) const;

    // Samples over the root of light, as many steps apart; for vectors, which read one entry more.
    static constexpr int rootSteps = 4096;
    const float* SamplesByRoot() const { return byRoot_.data(); }
    // Samples for each unit of light beyond white.
    float SlopeBeyond() const { return slopeBeyond_; }

  private:
    TransferCurve() = default;

    std::vector<float> linear_;  // light of the samples of 16 bits
    std::vector<float> byRoot_;
    float slopeBeyond_ = 1.0F;
};

}  // namespace varnel
