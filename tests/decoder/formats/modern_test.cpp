// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// HEIC, AVIF and JPEG XL, where they are read.
#include <gtest/gtest.h>
#include <lcms2.h>

#include <array>

#include "base/error_text.h"
#include "decoder/formats/decode_picture.h"
#include "decoder/formats/profiles/coded_colours.h"
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

// The colour that a sample of the three stands for by a profile, CIE XYZ of D50.
cmsCIEXYZ ColourBy(const QByteArray& icc, std::array<std::uint16_t, 3> sample) {
    const cmsHPROFILE profile =
        cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size()));
    const cmsHPROFILE xyz = cmsCreateXYZProfile();
    const cmsHTRANSFORM transform = cmsCreateTransform(
        profile, TYPE_RGB_16, xyz, TYPE_XYZ_DBL, INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE);
    cmsCIEXYZ colour{};
    cmsDoTransform(transform, sample.data(), &colour, 1);
    cmsDeleteTransform(transform);
    cmsCloseProfile(xyz);
    cmsCloseProfile(profile);
    return colour;
}

// By the numbers in the file; Y of the red primary and the light of half a sample. Wide range is
// shown by its own curve: PQ has 92.2457 cd/m2 at a half, HLG 50.68, and the reference white of 203
// counts as 1, beyond which light is compressed.
TEST(CodedColours, BecomeAProfile) {
    constexpr struct {
        char primaries, transfer;
        double red, half;
    } rows[] = {{12, 13, 0.2410, 0.2140}, {9, 1, 0.2789, 0.2597}, {9, 13, 0.2789, 0.2140},
                {1, 8, 0.2225, 0.5000},   {1, 1, 0.2225, 0.2597}, {9, 16, 0.2789, 0.3124},
                {9, 18, 0.2789, 0.2020}};
    for (const auto& row : rows) {
        SCOPED_TRACE(int{row.primaries} * 100 + row.transfer);
        QByteArray file = testing::Seed("heif/avif-10");
        const qsizetype place = file.indexOf("nclx") + 4;
        file[place + 1] = row.primaries;
        file[place + 3] = row.transfer;
        const LoadedPicture picture = testing::Decode(file, {.path = {}, .depth = ReadDepth::Own});
        if (picture.reason.Code() == ReasonCode::NoKnownType) {
            GTEST_SKIP() << "its library was not there";
        }
        ASSERT_TRUE(picture.bitmap) << ErrorText(picture.reason).toStdString();
        const QByteArray& profile = picture.bitmap->metadata.colourProfile;
        ASSERT_FALSE(profile.isEmpty());
        EXPECT_NEAR(ColourBy(profile, {65535, 0, 0}).Y, row.red, 0.001);
        EXPECT_NEAR(ColourBy(profile, {32768, 32768, 32768}).Y, row.half, 0.001);
        EXPECT_NEAR(ColourBy(profile, {65535, 65535, 65535}).Y, 1.0, 0.001);
    }
    EXPECT_TRUE(ProfileOfCodes(1, 13).isEmpty());  // sRGB needs none
    EXPECT_TRUE(ProfileOfCodes(2, 2).isEmpty());
    EXPECT_TRUE(ProfileOfCodes(10, 17).isEmpty());
}

// The box of a turn to the left in place of another: its library turns the picture, nothing else.
TEST(Heif, IsTurnedOnce) {
    QByteArray file = testing::Seed("heif/heic");
    file.replace(file.indexOf("pixi"), 12, QByteArray("irot\1\0\0\0\0\0\0\0", 12));
    for (const bool upright : {true, false}) {
        const LoadedPicture picture = testing::Decode(file, {.path = {}, .upright = upright});
        if (picture.reason.Code() == ReasonCode::NoKnownType) {
            GTEST_SKIP() << "its library was not there";
        }
        ASSERT_TRUE(picture.bitmap) << ErrorText(picture.reason).toStdString();
        EXPECT_EQ(picture.bitmap->Size().width, 12);
        EXPECT_EQ(picture.size.height, 16);
        EXPECT_EQ(picture.orientation, 1);
        EXPECT_NEAR(testing::PixelAt(picture.bitmap.get(), 6, 1).red, 200, 12);
        EXPECT_NEAR(testing::PixelAt(picture.bitmap.get(), 6, 14).blue, 200, 12);
    }
}

}  // namespace
}  // namespace varnel
