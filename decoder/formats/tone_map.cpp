// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/tone_map.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

#include "remap/image/levels/srgb_curve.h"

namespace varnel {

namespace {

constexpr float brightest = 1e9F;  // above any real scene; keeps infinity out of the sums

struct Light {
    float red, green, blue;

    // Weights of the red, green and blue that screens show.
    float Luminance() const { return 0.2126F * red + 0.7152F * green + 0.0722F * blue; }
};

float Sane(float sample) {
    return sample > 0 ? std::min(sample, brightest) : 0;  // false for what is no number
}

// One row of three or four floats a pixel.
class FloatRow {
  public:
    FloatRow(const SampleRows& light, int y)
        : samples_(reinterpret_cast<const float*>(light.Row(y))), step_(light.samplesPerPixel) {}

    Light At(int x) const {
        const float* const sample = samples_ + static_cast<std::ptrdiff_t>(x) * step_;
        return {Sane(sample[0]), Sane(sample[1]), Sane(sample[2])};
    }

  private:
    const float* samples_;
    int step_;
};

// How many pixels there are of each luminance, in steps of a 64th of an exposure stop.
class LuminanceCount {
  public:
    explicit LuminanceCount(const SampleRows& light) : bins_(bins) {
        for (int y = 0; y < light.size.height; ++y) {
            const FloatRow row(light, y);
            for (int x = 0; x < light.size.width; ++x) {
                Add(row.At(x).Luminance());
            }
        }
    }
    // The luminance that one pixel in a thousand exceeds.
    float White() const {
        std::int64_t above = (lit_ + black_) / 1000;
        for (int bin = bins - 1; bin >= 0; --bin) {
            above -= bins_[bin];
            if (above < 0) {
                return Luminance(bin);
            }
        }
        return 0;
    }
    // The geometric mean of what is not black.
    float Middle() const { return lit_ == 0 ? 1 : std::exp2(float(logSum_ / double(lit_))); }

  private:
    static constexpr int stops = 64;  // from 2^-32 to 2^32
    static constexpr int perStop = 64;
    static constexpr int bins = stops * perStop;

    static float Luminance(int bin) { return std::exp2(float(bin) / perStop - float(stops) / 2); }
    void Add(float luminance) {
        if (luminance <= 0) {
            ++black_;
            return;
        }
        const float stop = std::log2(luminance);
        const int bin = int((stop + float(stops) / 2) * perStop);
        ++bins_[std::clamp(bin, 0, bins - 1)];
        ++lit_;
        logSum_ += double(stop);
    }

    std::vector<std::int64_t> bins_;
    std::int64_t black_ = 0;
    std::int64_t lit_ = 0;
    double logSum_ = 0;
};

// What a pixel's light is multiplied by.
class Exposure {
  public:
    explicit Exposure(const LuminanceCount& count) : plain_(count.White() <= 1) {
        constexpr float middleGrey = 0.18F;
        scale_ = middleGrey / count.Middle();
        white_ = std::max(count.White() * scale_, middleGrey);
    }
    float Factor(float luminance) const {
        if (plain_) {
            return 1;
        }
        const float exposed = luminance * scale_;
        return scale_ * (1 + exposed / (white_ * white_)) / (1 + exposed);
    }

  private:
    bool plain_;
    float scale_;
    float white_;
};

// The curve of sRGB, tabled; linear light from 0 to 1 in, 0 to 255 out.
class ScreenCurve {
  public:
    ScreenCurve() {
        for (std::size_t i = 0; i < table_.size(); ++i) {
            const double light = double(i) / double(table_.size() - 1);
            table_[i] = static_cast<std::uint8_t>(std::lround(SrgbCoded(light) * 255));
        }
    }
    std::uint8_t operator()(float light) const {
        const float place = std::min(light, 1.0F) * float(table_.size() - 1) + 0.5F;
        return table_[static_cast<std::size_t>(place)];
    }

  private:
    std::array<std::uint8_t, 65536> table_{};
};

}  // namespace

BitmapHandle ToneMapped(const SampleRows& rows) {
    const PixelSize size = rows.size;
    BitmapHandle result = NewBitmap(size);
    const Exposure exposure{LuminanceCount(rows)};
    const ScreenCurve curve;
    for (int y = 0; y < size.height; ++y) {
        const FloatRow row(rows, y);
        std::uint8_t* to = ScanLine(result.get(), y).data();
        for (int x = 0; x < size.width; ++x, to += 3) {
            const Light light = row.At(x);
            const float factor = exposure.Factor(light.Luminance());
            to[0] = curve(light.blue * factor);
            to[1] = curve(light.green * factor);
            to[2] = curve(light.red * factor);
        }
    }
    return result;
}

}  // namespace varnel
