// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/frames/frame_bitmap.h"

#include <algorithm>
#include <cstring>
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

float SampleOf(const FrameFormat& format, const std::byte* row, int column) {
    if (format.bits == 8) {
        return static_cast<float>(std::to_integer<int>(row[column]));
    }
    std::uint16_t sample = 0;
    std::memcpy(&sample, row + std::ptrdiff_t{2} * column, sizeof sample);
    return static_cast<float>(sample);
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

Between ColumnOf(const FrameFormat& format, int plane, int x) {
    const PixelSize size = PlaneSize(format, plane);
    const bool isShared = SharingOf(format, plane).width == 2;
    const bool isLeft = format.site == ChromaSite::Left || format.site == ChromaSite::TopLeft ||
                        format.site == ChromaSite::BottomLeft;
    return BetweenOf(isShared ? 2 * x - (isLeft ? 0 : 1) : 4 * x, size.width);
}

Between RowOf(const FrameFormat& format, int plane, int y) {
    const PixelSize size = PlaneSize(format, plane);
    const bool isShared = SharingOf(format, plane).height == 2;
    const bool isTop = format.site == ChromaSite::TopLeft || format.site == ChromaSite::Top;
    const bool isMiddle = format.site == ChromaSite::Left || format.site == ChromaSite::Centre;
    const int below = isTop ? 0 : isMiddle ? 1 : 2;
    return BetweenOf(isShared ? 2 * y - below : 4 * y, size.height);
}

class Converter {
  public:
    Converter(const FrameView& frame, Bitmap& bitmap)
        : frame_(frame), bitmap_(bitmap), width_(frame.format.size.width) {
        if (IsChromaPlane(frame.format, 1)) {
            for (int x = 0; x < width_; ++x) {
                columns_.push_back(ColumnOf(frame.format, 1, x));
            }
        }
    }

    void Rows(int first, int end) const {
        std::vector<float> parts(static_cast<std::size_t>(width_) * 3);
        const std::span<float> all(parts);
        const auto width = static_cast<std::size_t>(width_);
        const std::array<std::span<float>, 3> colours{all.first(width), all.subspan(width, width),
                                                      all.subspan(2 * width, width)};
        for (int y = first; y < end; ++y) {
            Fill(y, colours);
            auto* const line = bitmap_.ScanLine(frame_.format.size.height - 1 - y).data();
            if (bitmap_.Format() == PixelFormat::Bgr8) {
                Write<std::uint8_t>(colours, line, 255.0F);
            } else {
                Write<std::uint16_t>(colours, line, 65535.0F);
            }
        }
    }

  private:
    using Colours = std::array<std::span<float>, 3>;  // blue, green, red; parts of 1

    const std::byte* RowAt(int plane, int y) const {
        const ConstPlane& from = frame_.planes[static_cast<std::size_t>(plane)];
        return from.first + y * from.pitch;
    }

    void Level(int plane, int y, std::span<float> to) const {
        const Scale scale = ScaleOf(frame_.format, false);
        const std::byte* const row = RowAt(plane, y);
        for (int x = 0; x < width_; ++x) {
            to[static_cast<std::size_t>(x)] = scale(SampleOf(frame_.format, row, x));
        }
    }

    void Chroma(int plane, int y, std::span<float> to) const {
        const Scale scale = ScaleOf(frame_.format, true);
        const Between rows = RowOf(frame_.format, plane, y);
        const std::byte* const upper = RowAt(plane, rows.first);
        const std::byte* const lower = RowAt(plane, rows.second);
        const auto at = [&](int column) {
            return SampleOf(frame_.format, upper, column) * (1.0F - rows.part) +
                   SampleOf(frame_.format, lower, column) * rows.part;
        };
        for (int x = 0; x < width_; ++x) {
            const Between& across = columns_[static_cast<std::size_t>(x)];
            to[static_cast<std::size_t>(x)] =
                scale(at(across.first) * (1.0F - across.part) + at(across.second) * across.part);
        }
    }

    void Fill(int y, const Colours& colours) const {
        const auto& [blue, green, red] = colours;
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
        Chroma(1, y, blue);
        Chroma(2, y, red);
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

    template <class Sample>
    static void Write(const Colours& colours, std::uint8_t* line, float most) {
        for (std::size_t x = 0; x < colours[0].size(); ++x) {
            std::array<Sample, 3> pixel{};
            for (std::size_t n = 0; n < 3; ++n) {
                const float level = std::clamp(colours[n][x], 0.0F, 1.0F) * most + 0.5F;
                pixel[n] = static_cast<Sample>(level);
            }
            std::memcpy(line + x * sizeof pixel, pixel.data(), sizeof pixel);
        }
    }

    const FrameView& frame_;
    Bitmap& bitmap_;
    int width_;
    std::vector<Between> columns_;  // of colour
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
        converter.Rows(first, std::min(first + rowsOfBlock, height));
    });
    return bitmap;
}

}  // namespace varnel
