// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/frames/bitmap_frame.h"

#include <algorithm>
#include <cassert>

namespace varnel {

namespace {

constexpr int pairsOfBlock = 16;  // of rows

// BT.709, in parts of 255 to limited range.
constexpr float redShare = 0.2126F;
constexpr float blueShare = 0.0722F;
constexpr float greenShare = 1.0F - redShare - blueShare;
constexpr float levels = 219.0F / 255.0F;
constexpr float blueLevels = 224.0F / 255.0F / (2.0F * (1.0F - blueShare));
constexpr float redLevels = 224.0F / 255.0F / (2.0F * (1.0F - redShare));

struct Colour {
    float blue, green, red;
};

float Brightness(const Colour& colour) {
    return redShare * colour.red + greenShare * colour.green + blueShare * colour.blue;
}

std::byte Rounded(float level) {
    const float above = std::clamp(level, 0.0F, 255.0F) + 0.5F;
    return static_cast<std::byte>(above);
}

class Writer {
  public:
    Writer(const Bitmap& picture, const FrameTarget& frame)
        : picture_(picture), frame_(frame), bytes_(BytesPerPixel(picture.Format())) {}

    // Two rows of brightness, and their one of colour, from the top.
    void Pair(int pair) const {
        const PixelSize size = frame_.format.size;
        for (int row = 2 * pair; row < 2 * pair + 2; ++row) {
            for (int column = 0; column < size.width; ++column) {
                RowOf(0, row)[column] = Rounded(16.0F + levels * Brightness(At(column, row)));
            }
        }
        for (int column = 0; column < size.width / 2; ++column) {
            const Colour mean = MeanAt(2 * column, 2 * pair);
            const float level = Brightness(mean);
            RowOf(1, pair)[column] = Rounded(128.0F + blueLevels * (mean.blue - level));
            RowOf(2, pair)[column] = Rounded(128.0F + redLevels * (mean.red - level));
        }
    }

  private:
    std::byte* RowOf(int plane, int row) const {
        const Plane& to = frame_.planes[static_cast<std::size_t>(plane)];
        return to.first + row * to.pitch;
    }

    Colour At(int column, int row) const {
        const std::uint8_t* const pixel =
            picture_.ScanLine(picture_.Size().height - 1 - row).data() +
            static_cast<std::size_t>(column) * bytes_;
        return {static_cast<float>(pixel[0]), static_cast<float>(pixel[1]),
                static_cast<float>(pixel[2])};
    }

    Colour MeanAt(int column, int row) const {
        Colour sum{};
        for (const int below : {0, 1}) {
            for (const int away : {-1, 0, 0, 1}) {
                const Colour one =
                    At(std::clamp(column + away, 0, frame_.format.size.width - 1), row + below);
                sum = {sum.blue + one.blue, sum.green + one.green, sum.red + one.red};
            }
        }
        return {sum.blue / 8.0F, sum.green / 8.0F, sum.red / 8.0F};
    }

    const Bitmap& picture_;
    const FrameTarget& frame_;
    std::size_t bytes_;
};

}  // namespace

FrameFormat StillFormat(PixelSize picture) {
    constexpr std::uint8_t bt709 = 1;
    constexpr std::uint8_t srgb = 13;
    FrameFormat format;
    format.size = {picture.width / 2 * 2, picture.height / 2 * 2};
    format.primaries = format.matrix = bt709;
    format.transfer = srgb;
    return format;
}

void BitmapToFrame(const Bitmap& picture, const FrameTarget& frame, BlockRunner& runner) {
    assert(SampleKindOf(picture.Format()) == SampleKind::Byte);
    assert(frame.format == StillFormat(picture.Size()));
    const Writer writer(picture, frame);
    const int pairs = frame.format.size.height / 2;
    runner.Run((pairs + pairsOfBlock - 1) / pairsOfBlock, [&](int block) {
        const int first = block * pairsOfBlock;
        for (int pair = first; pair < std::min(first + pairsOfBlock, pairs); ++pair) {
            writer.Pair(pair);
        }
    });
}

}  // namespace varnel
