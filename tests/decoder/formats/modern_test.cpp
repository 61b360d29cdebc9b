// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// HEIC, AVIF and JPEG XL, where they are read.
#include <gtest/gtest.h>

#include "base/error_text.h"
#include "decoder/formats/decode_picture.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

struct ModernRow {
    const char* name;
    PixelFormat format;
    PixelColor topLeft;
    PixelColor bottomRight;
    int tolerance;  // of coding with loss
};

class ModernPhoto : public ::testing::TestWithParam<ModernRow> {};

TEST_P(ModernPhoto, ComesInItsDepthAndUpright) {
    const ModernRow& row = GetParam();
    PrepareDecoding();
    const QByteArray& file = testing::Seed(row.name);
    const LoadedPicture own = testing::Decode(file, {.path = {}, .depth = ReadDepth::Own});
    if (own.reason.Code() == ReasonCode::NoKnownType) {
        GTEST_SKIP() << "its library was not there";
    }
    ASSERT_EQ(own.outcome, LoadOutcome::Loaded) << ErrorText(own.reason).toStdString();
    EXPECT_EQ(own.bitmap->Format(), row.format);
    const LoadedPicture eight = testing::Decode(file);
    ASSERT_TRUE(eight.bitmap);
    EXPECT_EQ(eight.bitmap->Format(), PixelFormat::Bgr8);
    for (const LoadedPicture* picture : {&own, &eight}) {
        const Bitmap* const bitmap = picture->bitmap.get();
        for (const auto& [colour, expected] :
             {std::pair(testing::PixelAt(bitmap, 0, 11), row.topLeft),
              std::pair(testing::PixelAt(bitmap, 15, 0), row.bottomRight)}) {
            EXPECT_NEAR(colour.red, expected.red, row.tolerance);
            EXPECT_NEAR(colour.green, expected.green, row.tolerance);
            EXPECT_NEAR(colour.blue, expected.blue, row.tolerance);
        }
    }
    const LoadedPicture small =
        testing::Decode(file, {.path = {}, .kind = ReadKind::Small, .box = {8, 8}});
    ASSERT_TRUE(small.bitmap);
    EXPECT_EQ(small.bitmap->Size().height, 6);
    EXPECT_EQ(small.size.width, 16);
    EXPECT_EQ(
        testing::Decode(file, {.path = {}, .depth = ReadDepth::Own}, 16 * 12 * 4).reason.Code(),
        ReasonCode::TooManyPixels);
}

TEST_P(ModernPhoto, NeverPassesAsSoundWhenItIsCut) {
    const QByteArray& file = testing::Seed(GetParam().name);
    for (qsizetype length = 0; length < file.size(); length += 1 + file.size() / 100) {
        EXPECT_NE(testing::Decode(file.left(length)).outcome, LoadOutcome::Loaded) << length;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Of, ModernPhoto,
    ::testing::Values(ModernRow{"heif/heic", PixelFormat::Bgr8, {40, 40, 200}, {200, 40, 40}, 12},
                      ModernRow{"heif/avif-10", PixelFormat::Bgr16, {0, 0, 128}, {255, 128, 0}, 16},
                      ModernRow{
                          "jxl/lossless-deep", PixelFormat::Bgr16, {0, 0, 128}, {255, 128, 0}, 0}));

}  // namespace
}  // namespace varnel
