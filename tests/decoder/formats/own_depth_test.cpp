// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos in the depth that their files have.
#include <gtest/gtest.h>

#include <cstring>
#include <limits>
#include <vector>

#include "base/error_text.h"
#include "decoder/process/sandbox.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/file_bytes.h"
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

TEST(OwnDepth, APngMayNameAColourThatIsTransparent) {
    const QByteArray header =
        testing::Numbers({2, 1}, 4, testing::Order::Big) + testing::Numbers({16, 2, 0, 0, 0}, 1);
    const QByteArray named = QByteArray::fromHex("000400050006");
    const QByteArray pixels = QByteArray::fromHex("00000100020003") + named;
    const LoadedPicture picture = InOwnDepth(
        "\x89PNG\r\n\x1a\n" + testing::PngChunk("IHDR", header) + testing::PngChunk("tRNS", named) +
        testing::PngChunk("IDAT", testing::Zlib(pixels)) + testing::PngChunk("IEND", {}));
    EXPECT_EQ(SamplesOf<std::uint16_t>(picture), (Words{3, 2, 1, 0xFFFF, 6, 5, 4, 0}));
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
        if (sanitized && seed.name.find("described") != std::string::npos) {
            continue;  // the library reads behind the ends of their tags
        }
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
        BitmapMetadata expected = eight.bitmap->metadata;
        if (seed.name == "png/described") {  // whose profile the image library loses
            EXPECT_EQ(own.bitmap->metadata.colourProfile.size(), 252);
            expected.colourProfile = own.bitmap->metadata.colourProfile;
        }
        EXPECT_EQ(own.bitmap->metadata, expected) << seed.name;
        if (seed.name.find("-16") != std::string::npos &&
            (seed.Type() == "tiff" || seed.Type() == "png")) {
            EXPECT_EQ(SampleKindOf(format), SampleKind::Word) << seed.name;
        }
    }
}

struct TiffRow {
    const char* name;
    int bits;
    int sampleFormat;  // 1 integers, 3 floating point
    int photometric;   // 0 white is 0, 1 black is 0, 2 colour
    int samples;
    QByteArray pixels;  // of a picture of two columns and one row
    std::vector<double> expected;
    std::vector<std::uint32_t> extra = {};  // kinds of samples beyond the colours
};

QByteArray TiffOf(const TiffRow& row) {
    using enum testing::TiffType;
    const auto each = [&](int value) { return std::vector<std::uint32_t>(row.samples, value); };
    const auto number = [](int value) {
        return std::vector<std::uint32_t>{static_cast<std::uint32_t>(value)};
    };
    std::vector<testing::TiffField> fields = {{256, Short, {2}},
                                              {257, Short, {1}},
                                              {258, Short, each(row.bits)},
                                              {262, Short, number(row.photometric)},
                                              {277, Short, number(row.samples)},
                                              {339, Short, each(row.sampleFormat)}};
    if (!row.extra.empty()) {
        fields.push_back({338, Short, row.extra});
    }
    return testing::StripTiff(fields, row.pixels);
}

TEST(OwnDepth, EveryNumberOfBitsOfATiffKeepsItsPartOfTheRange) {
    using testing::Numbers;
    const auto floats = [](const Floats& values) {
        return QByteArray(reinterpret_cast<const char*>(values.data()),
                          static_cast<qsizetype>(values.size() * sizeof(float)));
    };
    const TiffRow rows[] = {
        {"10 bits", 10, 1, 1, 1, QByteArray::fromHex("ffe000"), {65535, 32800}},
        {"12 bits",
         12,
         1,
         2,
         3,
         QByteArray::fromHex("000fff800001002003"),
         {2048.0 * 65535 / 4095, 65535, 0, 48, 32, 16}},
        {"12 bits, white is 0", 12, 1, 0, 1, QByteArray::fromHex("000fff"), {65535, 0}},
        {"14 bits", 14, 1, 1, 1, QByteArray::fromHex("fffc0010"), {65535, 4}},
        {"16 bits, white is 0", 16, 1, 0, 1, Numbers({1, 65535}, 2), {65534, 0}},
        {"24 bits", 24, 1, 1, 1, Numbers({0xFFFFFF, 0x010000}, 3), {65535, 256}},
        {"32 bits", 32, 1, 1, 1, Numbers({0xFFFFFFFF, 0x00010000}, 4), {65535, 1}},
        {"half", 16, 3, 1, 1, Numbers({0x3800, 0xC100}, 2), {0.5, -2.5}},
        {"half, small and endless", 16, 3, 1, 1, Numbers({0x0001, 0x7C00}, 2), {0x1p-24, 1e9}},
        {"float alpha", 32, 3, 1, 2, floats({0.25F, 0.5F, 3.0F, 1.0F}), {0.25, 3}, {2}},
        {"multiplied", 16, 1, 1, 2, Numbers({1000, 32768, 9, 0}, 2), {2000, 9}, {1}},
        {"unknown fourth", 16, 1, 1, 2, Numbers({1000, 32768, 9, 0}, 2), {1000, 9}, {0}}};
    for (const TiffRow& row : rows) {
        SCOPED_TRACE(row.name);
        const LoadedPicture picture = InOwnDepth(TiffOf(row));
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        const PixelFormat format = picture.bitmap->Format();
        const bool hasAlpha = !row.extra.empty() && row.extra.front() != 0;
        EXPECT_EQ(
            format,
            PixelFormatOf(row.sampleFormat == 3 ? SampleKind::Float : SampleKind::Word, hasAlpha));
        WithSample(SampleKindOf(format), [&](auto kind) {
            using Value = decltype(kind);
            const std::vector<Value> samples = SamplesOf<Value>(picture);
            const std::size_t step = samples.size() / 2;
            const std::size_t colours = row.photometric == 2 ? 3 : 1;
            for (std::size_t n = 0; n < row.expected.size(); ++n) {
                const std::size_t place = n / colours * step + n % colours;
                EXPECT_NEAR(static_cast<double>(samples[place]), row.expected[n], 0.5) << n;
            }
        });
    }
}

TEST(OwnDepth, DepthsThatTheImageLibraryDoesNotKnowComeInEightBitsToo) {
    const LoadedPicture picture = testing::Decode(
        TiffOf({"12 bits", 12, 1, 2, 3, QByteArray::fromHex("000fff800001002003"), {}}));
    ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
    EXPECT_EQ(SamplesOf<std::uint8_t>(picture), (std::vector<std::uint8_t>{128, 255, 0, 0, 0, 0}));
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
