// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Raw photos: how they are developed, and the camera's own picture in them.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/error_text.h"
#include "decoder/formats/profiles/raw_profile.h"
#include "decoder/formats/profiles/rgb_profile.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

constexpr int rawPixels = 64 * 48;

std::pair<int, int> Sides(PixelSize size) {
    return {size.width, size.height};
}

// Three developed samples a pixel, the same everywhere: grey of half the light.
QByteArray GreyPhoto() {
    return testing::RawPhoto(false, 1,
                             testing::Numbers({16384, 32768, 21845}, 2).repeated(rawPixels));
}

ReadRequest Wanting(ReadDepth depth, const RawDevelopment& raw = {}) {
    return {.path = {}, .depth = depth, .raw = raw};
}

TEST(RawPhoto, GreyIsCodedByTheCurveOfTheColoursWanted) {
    const struct {
        RawProfile profile;
        double coded;  // of half the light
    } rows[] = {
        {RawProfile::Srgb, 0.7354}, {RawProfile::AdobeRgb, 0.7297}, {RawProfile::Rec2020, 0.7354}};
    for (const auto& row : rows) {
        const LoadedPicture picture =
            testing::Decode(GreyPhoto(), Wanting(ReadDepth::Own, {row.profile}));
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        ASSERT_EQ(picture.bitmap->Format(), PixelFormat::Bgr16);
        for (std::size_t place = 0; place < 3; ++place) {
            const std::uint8_t* const pixel = &picture.bitmap->ScanLine(20)[30 * 6];
            EXPECT_NEAR(SampleAt<std::uint16_t>(pixel, place), row.coded * 65535.0, 200.0);
        }
        const QByteArray profile = picture.bitmap->metadata.colourProfile;
        EXPECT_EQ(profile, ProfileOf(row.profile));
        EXPECT_EQ(IsProfileForRgb(profile), row.profile != RawProfile::Srgb);
    }
}

TEST(RawPhoto, EightBitsAreOfTheSameDevelopment) {
    for (const RawProfile profile : {RawProfile::Srgb, RawProfile::Rec2020}) {
        const QByteArray file = testing::RawPhoto(true, 6);
        const LoadedPicture own = testing::Decode(file, Wanting(ReadDepth::Own, {profile}));
        const LoadedPicture eight = testing::Decode(file, Wanting(ReadDepth::Eight, {profile}));
        ASSERT_TRUE(own.bitmap && eight.bitmap) << ErrorText(own.reason).toStdString();
        EXPECT_EQ(eight.bitmap->Format(), PixelFormat::Bgr8);
        EXPECT_EQ(Sides(own.size), std::pair(48, 64));
        for (int y = 0; y < 64; ++y) {
            EXPECT_NEAR(testing::PixelAt(own.bitmap.get(), 7, y).red,
                        testing::PixelAt(eight.bitmap.get(), 7, y).red, 1);
        }
    }
}

TEST(RawPhoto, QuicklyItHasHalfTheSize) {
    for (const ReadKind kind : {ReadKind::Whole, ReadKind::Size}) {
        ReadRequest request = Wanting(ReadDepth::Own, {.isQuick = true});
        request.kind = kind;
        EXPECT_EQ(Sides(testing::Decode(testing::RawPhoto(true, 1), request).size),
                  std::pair(32, 24));
    }
}

// The previews have 16 x 12 or 16 x 11 pixels.
TEST(RawPhoto, ASmallOneIsTheCamerasPicture) {
    for (const char* name : {"dng/mosaic-16-preview", "dng/mosaic-16-jpeg"}) {
        const ReadRequest request{.path = {}, .kind = ReadKind::Small, .box = {40, 40}};
        const LoadedPicture small = testing::Decode(testing::Seed(name), request);
        ASSERT_TRUE(small.bitmap) << name << ErrorText(small.reason).toStdString();
        EXPECT_EQ(small.bitmap->Size().width, 16) << name;
        EXPECT_EQ(Sides(small.size), std::pair(64, 48));
    }
    const ReadRequest request{.path = {}, .kind = ReadKind::Small, .box = {20, 20}};
    const LoadedPicture developed = testing::Decode(testing::RawPhoto(true, 6), request);
    ASSERT_TRUE(developed.bitmap);
    EXPECT_EQ(Sides(developed.bitmap->Size()), std::pair(15, 20));
    EXPECT_EQ(Sides(developed.size), std::pair(48, 64));
}

TEST(RawPhoto, IsRefusedBeforeItTakesMemory) {
    const LoadedPicture picture =
        testing::Decode(testing::RawPhoto(true, 1), Wanting(ReadDepth::Eight), rawPixels * 20);
    EXPECT_EQ(picture.reason.Code(), ReasonCode::TooManyPixels);
}

}  // namespace
}  // namespace varnel
