// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos in the depth that their files have.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <vector>

#include "base/error_text.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

LoadedPicture InOwnDepth(const QByteArray& file, std::uint64_t memory = std::uint64_t{16} << 30) {
    return testing::Decode(file, {.path = {}, .depth = ReadDepth::Own}, memory);
}

// A picture of one row by the library, as a file.
template <class Value>
QByteArray RowFile(FREE_IMAGE_FORMAT format, FREE_IMAGE_TYPE type, int width,
                   const std::vector<Value>& samples) {
    const LibraryBitmap bitmap(FreeImage_AllocateT(type, width, 1));
    std::memcpy(FreeImage_GetScanLine(bitmap.get(), 0), samples.data(),
                samples.size() * sizeof(Value));
    return LibraryFile(format, bitmap.get(), 0).bytes;
}

template <class Value>
std::vector<Value> SamplesOf(const LoadedPicture& picture) {
    if (!picture.bitmap) {
        ADD_FAILURE() << ErrorText(picture.reason).toStdString();
        return {};
    }
    const auto row = picture.bitmap->ScanLine(0);
    std::vector<Value> samples(row.size() / sizeof(Value));
    std::memcpy(samples.data(), row.data(), row.size());
    return samples;
}

using Words = std::vector<std::uint16_t>;
using Floats = std::vector<float>;

TEST(OwnDepth, SixteenBitsComeValueForValue) {
    const Words colours{0x0102, 0x0304, 0x0506, 0xFFFF, 0x8001, 0};
    const Words expected{0x0506, 0x0304, 0x0102, 0, 0x8001, 0xFFFF};
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_PNG, FIF_PSD}) {
        const LoadedPicture picture = InOwnDepth(RowFile(format, FIT_RGB16, 2, colours));
        EXPECT_EQ(SamplesOf<std::uint16_t>(picture), expected) << format;
        EXPECT_EQ(picture.bitmap->Format(), PixelFormat::Bgr16);
    }
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_PNG}) {
        const LoadedPicture grey = InOwnDepth(RowFile(format, FIT_UINT16, 2, Words{0x1234, 7}));
        EXPECT_EQ(SamplesOf<std::uint16_t>(grey), (Words{0x1234, 0x1234, 0x1234, 7, 7, 7}));
        const LoadedPicture alpha =
            InOwnDepth(RowFile(format, FIT_RGBA16, 1, Words{0x0102, 0x0304, 0x0506, 0x0708}));
        EXPECT_EQ(SamplesOf<std::uint16_t>(alpha), (Words{0x0506, 0x0304, 0x0102, 0x0708}));
        EXPECT_EQ(alpha.bitmap->Format(), PixelFormat::Bgra16);
    }
}

TEST(OwnDepth, FloatingPointComesAsItIsButForWhatIsNoNumber) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float endless = std::numeric_limits<float>::infinity();
    const Floats light{0.5F, 0.18F, -0.25F, 7.5F, none, endless};
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_PFM}) {
        const LoadedPicture picture = InOwnDepth(RowFile(format, FIT_RGBF, 2, light));
        EXPECT_EQ(SamplesOf<float>(picture), (Floats{-0.25F, 0.18F, 0.5F, 1e9F, 0, 7.5F}))
            << format;
        EXPECT_EQ(picture.bitmap->Format(), PixelFormat::BgrFloat);
    }
    const LoadedPicture grey = InOwnDepth(RowFile(FIF_TIFF, FIT_FLOAT, 1, Floats{2.5F}));
    EXPECT_EQ(SamplesOf<float>(grey), (Floats{2.5F, 2.5F, 2.5F}));
}

// The picture in 8 bits differs by its rounding only.
void ExpectLikeEight(const Bitmap& own, const Bitmap& eight, const std::string& name) {
    for (int y = 0; y < own.Size().height; ++y) {
        for (int x = 0; x < own.Size().width; ++x) {
            const PixelColor deep = testing::PixelAt(&own, x, y);
            const PixelColor flat = testing::PixelAt(&eight, x, y);
            ASSERT_NEAR(deep.red, flat.red, 1) << name << ' ' << x << ' ' << y;
            ASSERT_NEAR(deep.green, flat.green, 1) << name << ' ' << x << ' ' << y;
            ASSERT_NEAR(deep.blue, flat.blue, 1) << name << ' ' << x << ' ' << y;
        }
    }
}

TEST(OwnDepth, EverySeedComesAndTheShallowOnesAsEver) {
    for (const testing::SeedFile& seed : testing::SeedFiles()) {
        const LoadedPicture eight = testing::Decode(seed.bytes);
        const LoadedPicture own = InOwnDepth(seed.bytes);
        EXPECT_EQ(own.outcome, eight.outcome) << seed.name;
        EXPECT_EQ(ErrorText(own.reason), ErrorText(eight.reason)) << seed.name;
        ASSERT_EQ(own.bitmap != nullptr, eight.bitmap != nullptr) << seed.name;
        if (!own.bitmap) {
            continue;
        }
        EXPECT_EQ(own.size.width, eight.size.width) << seed.name;
        EXPECT_EQ(own.size.height, eight.size.height) << seed.name;
        const PixelFormat format = own.bitmap->Format();
        if (format == PixelFormat::Bgr8) {
            EXPECT_TRUE(testing::SamePixels(own.bitmap.get(), eight.bitmap.get())) << seed.name;
        } else if (SampleKindOf(format) != SampleKind::Float) {  // which 8 bits are curved from
            ExpectLikeEight(*own.bitmap, *eight.bitmap, seed.name);
        }
        EXPECT_EQ(own.bitmap->metadata, eight.bitmap->metadata) << seed.name;
        if (seed.name.find("-16") != std::string::npos &&
            (seed.Type() == "tiff" || seed.Type() == "png")) {
            EXPECT_EQ(SampleKindOf(format), SampleKind::Word) << seed.name;
        }
    }
}

TEST(OwnDepth, PicturesAreMeasuredByTheBytesOfTheirDepth) {
    const QByteArray file = testing::Seed("tiff/lzw-16");
    constexpr std::uint64_t pixels = 61 * 43;
    EXPECT_EQ(InOwnDepth(file, pixels * 24).outcome, LoadOutcome::Loaded);
    EXPECT_EQ(InOwnDepth(file, pixels * 23).reason.Code(), ReasonCode::TooManyPixels);
    EXPECT_EQ(testing::Decode(file, {}, pixels * 23).outcome, LoadOutcome::Loaded);
}

}  // namespace
}  // namespace varnel
