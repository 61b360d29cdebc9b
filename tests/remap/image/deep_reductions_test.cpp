// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What becomes of deep pictures on their way to a screen.

#include <gtest/gtest.h>

#include "remap/display/paint.h"
#include "remap/encode/thumbnail.h"
#include "remap/image/area_average.h"
#include "remap/image/exif_orientation.h"
#include "remap/image/levels/byte_coding.h"
#include "remap/image/preview_size.h"
#include "tests/remap/render/deep_pictures.h"

namespace varnel {
namespace {

// One colour, in parts of white.
BitmapHandle Even(PixelFormat format, PixelSize size, double share) {
    BitmapHandle bitmap = NewBitmap(size, format);
    const double level = share * LevelsOf({255, 255, 255, 0}, format).red;
    for (int n = 0; n < size.width * size.height; ++n) {
        SetLevels(bitmap.get(), n % size.width, n / size.width, {level, level, level, 1.0});
    }
    return bitmap;
}

void ExpectSeenAs(const Bitmap& picture, int byte) {
    const BitmapHandle reduced = ReducedCopy(&picture, {5, 4});
    const BitmapHandle thumbnail = ThumbnailOf(&picture);
    EXPECT_EQ(reduced->Format(), PixelFormat::Bgr8);
    EXPECT_EQ(testing::PixelAt(reduced.get(), 2, 2).green, byte);
    EXPECT_EQ(testing::PixelAt(thumbnail.get(), 2, 2).green, byte);
    EXPECT_EQ(ImageOf(&picture).pixelColor(1, 1).green(), byte);
}

TEST(DeepReductions, AreSeenByTheProfileOrElseFloatsAsLinearLight) {
    for (const PixelFormat format : testing::deepFormats) {
        SCOPED_TRACE(static_cast<int>(format));
        const BitmapHandle grey = Even(format, {40, 30}, 128.0 / 255.0);
        const bool linear = SampleKindOf(format) == SampleKind::Float;
        ExpectSeenAs(*grey, linear ? 188 : 128);
        grey->metadata.colourProfile = "a profile";
        ExpectSeenAs(*grey, 128);
    }
    ExpectSeenAs(*Even(PixelFormat::BgrFloat, {40, 30}, 7.5), 255);
}

TEST(DeepReductions, ColoursOfBytesComeBackFromLinearLight) {
    const ByteCoding coding(*Even(PixelFormat::BgrFloat, {1, 1}, 0.0));
    for (int byte = 0; byte < 256; ++byte) {
        const auto level = static_cast<std::uint8_t>(byte);
        const BitmapHandle pixel = NewBitmap({1, 1}, PixelFormat::BgrFloat);
        SetLevels(pixel.get(), 0, 0, coding.LevelsOf({level, level, level, 0}));
        EXPECT_EQ(coding.ColourAt(pixel->Bits()).green, byte);
    }
}

TEST(DeepReductions, MeansKeepTheirDepth) {
    for (const PixelFormat format : testing::deepFormats) {
        const double white = LevelsOf({255, 255, 255, 0}, format).red;
        const BitmapHandle steps = NewBitmap({4, 2}, format);
        for (int n = 0; n < 8; ++n) {
            const double level = std::floor(white * 10.0 * (n % 4)) / 40.0;
            SetLevels(steps.get(), n % 4, n / 4, {level, level / 2.0, 0.0, 1.0});
        }
        const BitmapHandle means = NewBitmap({2, 1}, format);
        SerialRunner serial;
        AverageAreas(*steps, {{0.0, 2.0}, {0.0, 2.0}}, *means, serial);
        EXPECT_NEAR(GetLevels(means.get(), 0, 0).blue / white, 0.125, 1.01 / 255.0);
        EXPECT_NEAR(GetLevels(means.get(), 1, 0).blue / white, 0.625, 1.01 / 255.0);
        if (SampleKindOf(format) == SampleKind::Word) {
            EXPECT_NEAR(GetLevels(means.get(), 1, 0).blue, 0.625 * white, 1.0);
        }
    }
}

// Every orientation of a picture larger than a tile, each pixel known by its place.
TEST(DeepReductions, PixelsOfAllSizesAreTurned) {
    constexpr PixelSize size{70, 67};
    for (const PixelFormat format : testing::deepFormats) {
        const BitmapHandle photo = testing::Deepened(*testing::Noise(size), format);
        for (int orientation = 1; orientation <= 8; ++orientation) {
            const BitmapHandle turned = NewBitmap(Turned(size, orientation), format);
            const auto rows = [format](Bitmap& bitmap) {
                return PixelRows{reinterpret_cast<std::byte*>(bitmap.Bits()),
                                 static_cast<std::size_t>(bitmap.Pitch()), format};
            };
            TurnRows(size, {0, size.height}, rows(*photo), orientation, rows(*turned));
            const bool left =
                orientation == 2 || orientation == 3 || orientation == 5 || orientation == 6;
            const bool down =
                orientation == 3 || orientation == 4 || orientation == 5 || orientation == 8;
            for (const auto& [x, y] : {std::pair(0, 0), {69, 0}, {0, 66}, {13, 65}}) {
                const int across = left ? size.width - 1 - x : x;
                const int up = down ? size.height - 1 - y : y;
                const bool swaps = SwapsSides(orientation);
                EXPECT_EQ(GetLevels(turned.get(), swaps ? up : across, swaps ? across : up),
                          GetLevels(photo.get(), x, y))
                    << orientation;
            }
        }
    }
}

}  // namespace
}  // namespace varnel
