// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/frames/frame_bitmap.h"

#include <algorithm>
#include <array>
#include <limits>
#include <span>
#include <vector>

namespace varnel {

namespace {

constexpr int rowsOfBlock = 32;

// The shares of red and blue in brightness, as H.273 has them.
struct Shares {
    float red, blue;
};

Shares SharesOf(const FrameFormat& format) {
    switch (format.matrix) {
        case 1:
            return {0.2126F, 0.0722F};
        case 4:
            return {0.30F, 0.11F};
        case 5:
        case 6:
            return {0.299F, 0.114F};
        case 7:
            return {0.212F, 0.087F};
        case 9:
        case 10:
            return {0.2627F, 0.0593F};
        default:
            break;
    }
    const bool isLarge = format.size.width >= 1280 || format.size.height >= 720;
    return isLarge ? Shares{0.2126F, 0.0722F} : Shares{0.299F, 0.114F};
}

// From a sample to parts of 1: brightness 0 to 1, colour -0.5 to 0.5.
struct Scale {
    float zero, factor;
    float operator()(float level) const { return (level - zero) * factor; }
};

Scale ScaleOf(const FrameFormat& format, bool chroma) {
    const auto step = static_cast<float>(1 << (format.bits - 8));
    const auto most = static_cast<float>((1 << format.bits) - 1);
    if (chroma) {
        return {128.0F * step, 1.0F / (format.fullRange ? most : 224.0F * step)};
    }
    return format.fullRange ? Scale{0.0F, 1.0F / most}
                            : Scale{16.0F * step, 1.0F / (219.0F * step)};
}

// Where a pixel lies between two samples of a plane, in quarters of the way.
struct Between {
    int first, second;
    float part;  // of the second
};

Between BetweenOf(int quarters, int samples) {
    const int first = quarters >> 2;  // also below 0
    return {std::clamp(first, 0, samples - 1), std::clamp(first + 1, 0, samples - 1),
            static_cast<float>(quarters & 3) / 4.0F};
}

Between RowOf(const FrameFormat& format, int plane, int y) {
    const PixelSize size = PlaneSize(format, plane);
    const bool isShared = SharingOf(format, plane).height == 2;
    const bool isTop = format.site == ChromaSite::TopLeft || format.site == ChromaSite::Top;
    const bool isMiddle = format.site == ChromaSite::Left || format.site == ChromaSite::Centre;
    const int below = isTop ? 0 : isMiddle ? 1 : 2;
    return BetweenOf(isShared ? 2 * y - below : 4 * y, size.height);
}

// The loops below are plain and each over one thing, so that the compiler makes vectors of them.

template <class Sample>
void Spread(const std::byte* row, Scale scale, std::span<float> to) {
    const auto* const from = reinterpret_cast<const Sample*>(row);
    for (std::size_t x = 0; x < to.size(); ++x) {
        to[x] = scale(static_cast<float>(from[x]));
    }
}

// Between two rows. Of samples and quarters everything is exact, in whatever order it is added up.
template <class Sample>
void Mix(const std::byte* upper, const std::byte* lower, float part, std::span<float> to) {
    const auto* const above = reinterpret_cast<const Sample*>(upper);
    const auto* const below = reinterpret_cast<const Sample*>(lower);
    for (std::size_t x = 0; x < to.size(); ++x) {
        to[x] = static_cast<float>(above[x]) * (1.0F - part) + static_cast<float>(below[x]) * part;
    }
}

// Two pixels for each sample; `samples` has one more at either end.
void Widen(std::span<const float> samples, bool isLeft, Scale scale, std::span<float> to) {
    const float own = isLeft ? 1.0F : 0.75F;    // of the left pixel's sample
    const float right = isLeft ? 0.5F : 0.75F;  // and of the right one's
    const std::size_t pairs = to.size() / 2;
    for (std::size_t n = 0; n < pairs; ++n) {
        const float sample = samples[n + 1];
        to[2 * n] = scale(samples[n] * (1.0F - own) + sample * own);
        to[2 * n + 1] = scale(sample * right + samples[n + 2] * (1.0F - right));
    }
    if (to.size() % 2 != 0) {
        to.back() = scale(samples[pairs] * (1.0F - own) + samples[pairs + 1] * own);
    }
}

template <class Sample>
void Round(std::span<const float> parts, std::span<Sample> to) {
    constexpr auto most = static_cast<float>(std::numeric_limits<Sample>::max());
    for (std::size_t x = 0; x < to.size(); ++x) {
        const float above = parts[x] < 0.0F ? 0.0F : parts[x];
        const float level = above > 1.0F ? 1.0F : above;
        const float rounded = level * most + 0.5F;
        to[x] = static_cast<Sample>(static_cast<std::int32_t>(rounded));
    }
}

template <class Sample>
void Interleave(const std::array<std::span<Sample>, 3>& colours, Sample* line) {
    const auto& [blue, green, red] = colours;
    for (std::size_t x = 0; x < blue.size(); ++x) {
        line[3 * x] = blue[x];
        line[3 * x + 1] = green[x];
        line[3 * x + 2] = red[x];
    }
}

template <class Value>
class Rows {
  public:
    explicit Rows(std::size_t width) : values_(3 * width), width_(width) {}
    std::span<Value> operator[](std::size_t n) {
        return std::span(values_).subspan(n * width_, width_);
    }

  private:
    std::vector<Value> values_;
    std::size_t width_;
};

class Converter {
  public:
    Converter(const FrameView& frame, Bitmap& bitmap)
        : frame_(frame),
          bitmap_(bitmap),
          width_(static_cast<std::size_t>(frame.format.size.width)) {}

    template <class Sample>
    void Convert(int first, int end) const {
        Rows<float> parts(width_);
        Rows<Sample> rounded(width_);
        std::vector<float> samples;
        for (int y = first; y < end; ++y) {
            Fill(y, parts, samples);
            for (std::size_t n = 0; n < 3; ++n) {
                Round<Sample>(parts[n], rounded[n]);
            }
            auto* const line = bitmap_.ScanLine(frame_.format.size.height - 1 - y).data();
            Interleave<Sample>({rounded[0], rounded[1], rounded[2]},
                               reinterpret_cast<Sample*>(line));
        }
    }

  private:
    const std::byte* RowAt(int plane, int y) const {
        const ConstPlane& from = frame_.planes[static_cast<std::size_t>(plane)];
        return from.first + y * from.pitch;
    }

    void Level(int plane, int y, std::span<float> to) const {
        const Scale scale = ScaleOf(frame_.format, false);
        if (frame_.format.bits == 8) {
            Spread<std::uint8_t>(RowAt(plane, y), scale, to);
        } else {
            Spread<std::uint16_t>(RowAt(plane, y), scale, to);
        }
    }

    void Chroma(int plane, int y, std::vector<float>& samples, std::span<float> to) const {
        const FrameFormat& format = frame_.format;
        const Scale scale = ScaleOf(format, true);
        const Between rows = RowOf(format, plane, y);
        const auto count = static_cast<std::size_t>(PlaneSize(format, plane).width);
        samples.resize(count + 2);
        const auto inner = std::span(samples).subspan(1, count);
        const auto mix = format.bits == 8 ? &Mix<std::uint8_t> : &Mix<std::uint16_t>;
        mix(RowAt(plane, rows.first), RowAt(plane, rows.second), rows.part, inner);
        if (format.chroma == ChromaLayout::C444) {
            std::ranges::transform(inner, to.begin(), scale);
            return;
        }
        samples.front() = inner.front();
        samples.back() = inner.back();
        const bool isLeft = format.site == ChromaSite::Left || format.site == ChromaSite::TopLeft ||
                            format.site == ChromaSite::BottomLeft;
        Widen(samples, isLeft, scale, to);
    }

    // Blue, green and red as parts of 1.
    void Fill(int y, Rows<float>& colours, std::vector<float>& samples) const {
        const std::span<float> blue = colours[0];
        const std::span<float> green = colours[1];
        const std::span<float> red = colours[2];
        if (frame_.format.chroma == ChromaLayout::Colours) {
            Level(0, y, green);
            Level(1, y, blue);
            Level(2, y, red);
            return;
        }
        Level(0, y, green);  // brightness so far
        if (frame_.format.chroma == ChromaLayout::Grey) {
            std::ranges::copy(green, blue.begin());
            std::ranges::copy(green, red.begin());
            return;
        }
        Chroma(1, y, samples, blue);
        Chroma(2, y, samples, red);
        const Shares shares = SharesOf(frame_.format);
        const float toBlue = 2.0F * (1.0F - shares.blue);
        const float toRed = 2.0F * (1.0F - shares.red);
        const float ofGreen = 1.0F / (1.0F - shares.red - shares.blue);
        for (std::size_t x = 0; x < green.size(); ++x) {
            const float level = green[x];
            blue[x] = level + toBlue * blue[x];
            red[x] = level + toRed * red[x];
            green[x] = (level - shares.blue * blue[x] - shares.red * red[x]) * ofGreen;
        }
    }

    const FrameView& frame_;
    Bitmap& bitmap_;
    std::size_t width_;
};

}  // namespace

BitmapHandle FrameToBitmap(const FrameView& frame, BlockRunner& runner, bool eightBits) {
    const bool isDeep = frame.format.bits > 8 && !eightBits;
    BitmapHandle bitmap =
        NewBitmap(frame.format.size, isDeep ? PixelFormat::Bgr16 : PixelFormat::Bgr8);
    const Converter converter(frame, *bitmap);
    const int height = frame.format.size.height;
    runner.Run((height + rowsOfBlock - 1) / rowsOfBlock, [&](int block) {
        const int first = block * rowsOfBlock;
        const int end = std::min(first + rowsOfBlock, height);
        if (isDeep) {
            converter.Convert<std::uint16_t>(first, end);
        } else {
            converter.Convert<std::uint8_t>(first, end);
        }
    });
    return bitmap;
}

}  // namespace varnel
