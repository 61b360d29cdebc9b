// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/decode_picture.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <climits>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include "base/error_text.h"
#include "decoder/formats/truncation.h"
#include "decoder/process/sandbox.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/bomb_files.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

using testing::BmpKind;
using testing::PixelAt;
using testing::SeedFile;
using testing::operator==;

constexpr std::uint64_t gigabyte = std::uint64_t{1} << 30;

LoadedPicture Decode(const QByteArray& file, ReadKind kind = ReadKind::Whole,
                     std::uint64_t memory = 16 * gigabyte) {
    return testing::Decode(file, {{}, kind, {60, 60}}, memory);
}

template <class AnyBitmap>
QByteArray Saved(FREE_IMAGE_FORMAT format, AnyBitmap* bitmap, int flags = 0) {
    const EncodedBitmap file = LibraryFile(format, bitmap, flags);
    EXPECT_FALSE(file.bytes.isEmpty()) << format;
    return file.bytes;
}

// A picture of this type, every pixel the same number of samples, by sample number.
template <class Sample>
LibraryBitmap OfSamples(FREE_IMAGE_TYPE type, int width, const std::vector<Sample>& samples) {
    LibraryBitmap bitmap(FreeImage_AllocateT(type, width, 1));
    std::memcpy(FreeImage_GetScanLine(bitmap.get(), 0), samples.data(),
                samples.size() * sizeof(Sample));
    return bitmap;
}

void ExpectColour(const Bitmap* bitmap, int x, const std::array<int, 3>& redGreenBlue) {
    const PixelColor colour = PixelAt(bitmap, x, 0);
    EXPECT_NEAR(colour.red, redGreenBlue[0], 1) << x;
    EXPECT_NEAR(colour.green, redGreenBlue[1], 1) << x;
    EXPECT_NEAR(colour.blue, redGreenBlue[2], 1) << x;
}

const BmpKind bmpKinds[] = {
    {12, 1, 0},   {12, 4, 0},   {12, 8, 0},        {12, 24, 0}, {40, 1, 0},   {40, 4, 0},
    {40, 8, 0},   {40, 24, 0},  {40, 24, 0, true}, {40, 32, 0}, {40, 32, 3},  {40, 4, 2},
    {52, 8, 0},   {56, 8, 0},   {56, 24, 0},       {40, 8, 1},  {52, 32, 3},  {56, 32, 3},
    {64, 8, 0},   {64, 24, 0},  {108, 1, 0},       {108, 4, 0}, {108, 8, 0},  {108, 8, 1},
    {108, 24, 0}, {108, 32, 3}, {124, 8, 0},       {124, 8, 1}, {124, 24, 0}, {124, 24, 0, true},
    {124, 32, 0}, {124, 32, 3}};

TEST(DecodePicture, EveryKindOfBmpComesWithItsPixelsAndResolution) {
    for (const BmpKind& kind : bmpKinds) {
        SCOPED_TRACE(::testing::Message() << kind.headerBytes << " bytes, " << kind.depth
                                          << " bits, coding " << kind.coding);
        const LoadedPicture picture = Decode(testing::Bmp(kind, {21, 10}));
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        EXPECT_EQ(picture.bitmap->Format(), PixelFormat::Bgr8);
        for (const auto& [x, y] : {std::pair{0, 0}, {20, 0}, {13, 6}, {20, 9}}) {
            EXPECT_TRUE(PixelAt(picture.bitmap.get(), x, y) == kind.Colour(x, y)) << x << ' ' << y;
        }
        if (kind.headerBytes > 12) {
            EXPECT_EQ(picture.bitmap->metadata.dotsPerMetreX, 5000U);
            EXPECT_EQ(picture.bitmap->metadata.dotsPerMetreY, 6000U);
        }
    }
}

TEST(DecodePicture, DeepGreyIsCutToEightBitsAndFloatGreyStretched) {
    const float none = std::numeric_limits<float>::quiet_NaN();
    const LibraryBitmap deep = OfSamples<std::uint16_t>(FIT_UINT16, 3, {0x1000, 0x8000, 0xC0FF});
    const LibraryBitmap floats = OfSamples<float>(FIT_FLOAT, 4, {0, none, 50, 200});
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_PNG}) {
        const LoadedPicture picture = Decode(Saved(format, deep.get()));
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        ExpectColour(picture.bitmap.get(), 0, {0x10, 0x10, 0x10});
        ExpectColour(picture.bitmap.get(), 2, {0xC0, 0xC0, 0xC0});
    }
    const LoadedPicture picture = Decode(Saved(FIF_TIFF, floats.get()));
    ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
    ExpectColour(picture.bitmap.get(), 1, {0, 0, 0});
    ExpectColour(picture.bitmap.get(), 2, {64, 64, 64});
    ExpectColour(picture.bitmap.get(), 3, {255, 255, 255});
}

TEST(DecodePicture, FloatColourWithinOneGetsTheScreensCurve) {
    // 0.5 and 0.18 of full light are 188 and 118 on an sRGB screen.
    const LibraryBitmap light =
        OfSamples<float>(FIT_RGBF, 3, {0.5F, 0.18F, 0, 1, -3, 0.5F, 0.18F, 0.18F, 0.18F});
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_EXR, FIF_PFM}) {
        const LoadedPicture picture = Decode(Saved(format, light.get()));
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded)
            << format << ": " << ErrorText(picture.reason).toStdString();
        ExpectColour(picture.bitmap.get(), 0, {188, 118, 0});
        ExpectColour(picture.bitmap.get(), 1, {255, 0, 188});
        ExpectColour(picture.bitmap.get(), 2, {118, 118, 118});
    }
}

TEST(DecodePicture, FloatColourOfAnyScaleIsExposedAndBadSamplesAreSafe) {
    // Grey of 1, 10 and 100 in equal parts: the middle 10 is exposed to 0.18, the white 100 to 1.8.
    // 10 becomes 0.18 * (1 + 0.18 / 3.24) / 1.18 = 0.161, on the screen 112; 1 becomes 0.0179, 36.
    std::vector<float> grey;
    for (const float light : {1.0F, 10.0F, 100.0F}) {
        grey.insert(grey.end(), 3, light);
    }
    for (const float scale : {1.0F, 1000.0F}) {
        LibraryBitmap bitmap = OfSamples<float>(FIT_RGBF, 3, grey);
        for (int i = 0; i < 9; ++i) {
            reinterpret_cast<float*>(FreeImage_GetScanLine(bitmap.get(), 0))[i] *= scale;
        }
        for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_HDR}) {
            const LoadedPicture picture = Decode(Saved(format, bitmap.get()));
            ASSERT_EQ(picture.outcome, LoadOutcome::Loaded)
                << ErrorText(picture.reason).toStdString();
            for (const auto& [x, value] : {std::pair{0, 36}, {1, 112}, {2, 255}}) {
                EXPECT_NEAR(PixelAt(picture.bitmap.get(), x, 0).green, value, 2) << x;
            }
        }
    }
    const float none = std::numeric_limits<float>::quiet_NaN();
    const float endless = std::numeric_limits<float>::infinity();
    const LibraryBitmap bad = OfSamples<float>(
        FIT_RGBAF, 3, {none, 1, -endless, 1, endless, endless, endless, none, -1, -1, -1, 1});
    const LoadedPicture picture = Decode(Saved(FIF_TIFF, bad.get()));
    ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
    ExpectColour(picture.bitmap.get(), 1, {255, 255, 255});
    ExpectColour(picture.bitmap.get(), 2, {0, 0, 0});
    EXPECT_EQ(PixelAt(picture.bitmap.get(), 0, 0).red, 0);
}

TEST(DecodePicture, OnlyAProfileOfRgbAndTheResolutionReachTheResult) {
    const struct {
        FREE_IMAGE_TYPE type;
        int depth;
        const char* colours;
        bool kept;
    } rows[] = {{FIT_BITMAP, 24, "RGB ", true},  {FIT_RGB16, 48, "RGB ", true},
                {FIT_BITMAP, 8, "GRAY", false},  {FIT_UINT16, 16, "GRAY", false},
                {FIT_BITMAP, 24, "CMYK", false}, {FIT_RGBF, 96, "RGB ", false}};
    for (const auto& row : rows) {
        QByteArray profile = testing::ColourProfile();
        profile.replace(16, 4, row.colours);
        const LibraryBitmap bitmap(FreeImage_AllocateT(row.type, 9, 9, row.depth));
        FreeImage_CreateICCProfile(bitmap.get(), profile.data(), static_cast<long>(profile.size()));
        FreeImage_SetDotsPerMeterX(bitmap.get(), 4000);
        const LoadedPicture picture = Decode(Saved(FIF_TIFF, bitmap.get()));
        ASSERT_TRUE(picture.bitmap) << ErrorText(picture.reason).toStdString();
        EXPECT_EQ(picture.bitmap->metadata.colourProfile, row.kept ? profile : QByteArray())
            << row.colours << ' ' << row.depth;
        EXPECT_NEAR(picture.bitmap->metadata.dotsPerMetreX, 4000, 20);
    }
}

// Of the types in which missing pixels are found out; they and not metadata come last.
std::vector<SeedFile> SoundFiles() {
    using enum testing::TiffType;
    std::vector<SeedFile> files;
    for (const SeedFile& seed : testing::SeedFiles()) {
        const std::string type = seed.Type();
        const bool described =
            seed.name.starts_with("tiff/") && seed.name.find("described") != std::string::npos;
        if (seed.loads && !described &&
            (type == "jpeg" || type == "png" || type == "tiff" || type == "dng")) {
            files.push_back(seed);
        }
    }
    for (const BmpKind& kind : bmpKinds) {
        files.push_back({::testing::PrintToString(kind.headerBytes) + " bytes, " +
                             ::testing::PrintToString(kind.depth) + " bits",
                         testing::Bmp(kind, {90, 70}),
                         {90, 70}});
    }
    files.push_back(
        {"tiff in front",
         testing::StripTiff(
             {{256, Long, {90}}, {257, Long, {70}}, {258, Short, {8}}, {262, Short, {1}}},
             QByteArray(90 * 70, 'x')),
         {90, 70}});
    return files;
}

TEST(DecodePicture, SoundFilesLoadAndCutOnesNeverPassAsSound) {
    for (const auto& [name, whole, size, loads] : SoundFiles()) {
        const LoadedPicture sound = Decode(whole);
        EXPECT_EQ(sound.outcome, LoadOutcome::Loaded)
            << name << ": " << ErrorText(sound.reason).toStdString();
        for (int percent = 1; percent < 100; ++percent) {
            const LoadedPicture cut = Decode(whole.left(whole.size() * percent / 100));
            EXPECT_NE(cut.outcome, LoadOutcome::Loaded) << name << " at " << percent;
            EXPECT_EQ(cut.outcome == LoadOutcome::Damaged, cut.bitmap != nullptr);
            EXPECT_FALSE(cut.reason.isEmpty()) << name << " at " << percent;
            const LoadedPicture own = testing::Decode(whole.left(whole.size() * percent / 100),
                                                      {.path = {}, .depth = ReadDepth::Own});
            EXPECT_NE(own.outcome, LoadOutcome::Loaded) << name << " at " << percent;
        }
    }
}

TEST(DecodePicture, TheSizeIsThatOfThePictureAsItIsDeveloped) {
    const BitmapHandle bitmap = testing::PositionPicture({90, 70});
    const struct {
        QByteArray contents;
        int width, height;
    } rows[] = {{Saved(FIF_JPEG, bitmap.get()), 90, 70},
                {Saved(FIF_TIFF, bitmap.get()), 90, 70},
                {Saved(FIF_TARGA, bitmap.get()), 90, 70},
                {testing::Bmp({124, 24, 0, true}, {90, 70}), 90, 70},
                {testing::RawPhoto(true, 1), 64, 48},
                {testing::RawPhoto(true, 6), 48, 64},
                {testing::RawPhoto(false, 8), 48, 64},
                {testing::RawPhoto(false, 3), 64, 48}};
    for (const auto& row : rows) {
        const LoadedPicture asked = Decode(row.contents, ReadKind::Size);
        EXPECT_EQ(asked.outcome, LoadOutcome::Loaded);
        EXPECT_FALSE(asked.bitmap);
        const LoadedPicture whole = Decode(row.contents);
        ASSERT_TRUE(whole.bitmap);
        for (const PixelSize& size : {asked.size, whole.size, SizeOf(whole.bitmap.get())}) {
            EXPECT_EQ(size.width, row.width);
            EXPECT_EQ(size.height, row.height);
        }
    }
}

TEST(DecodePicture, ASmallOneFitsTheBoxAndIsNeverEnlarged) {
    const struct {
        PixelSize picture, expected;
    } rows[] = {
        {{600, 300}, {60, 30}}, {{300, 600}, {30, 60}}, {{20, 30}, {20, 30}}, {{900, 2}, {60, 1}}};
    for (const auto& row : rows) {
        const BitmapHandle bitmap = testing::Painted(row.picture, [&](int, int y) {
            return y < row.picture.height / 2 ? PixelColor{250, 0, 0, 0} : PixelColor{0, 0, 250, 0};
        });
        for (const FREE_IMAGE_FORMAT format : {FIF_JPEG, FIF_PNG, FIF_TIFF}) {
            const LoadedPicture small = Decode(Saved(format, bitmap.get(), 0), ReadKind::Small);
            ASSERT_TRUE(small.bitmap) << ErrorText(small.reason).toStdString();
            EXPECT_EQ(SizeOf(small.bitmap.get()).width, row.expected.width);
            EXPECT_EQ(SizeOf(small.bitmap.get()).height, row.expected.height);
            EXPECT_EQ(small.size.width, row.picture.width);
            EXPECT_EQ(small.bitmap->metadata, BitmapMetadata());
            if (row.expected.height > 2) {
                EXPECT_GT(PixelAt(small.bitmap.get(), 5, 2).blue, 200);
                EXPECT_GT(PixelAt(small.bitmap.get(), 5, row.expected.height - 3).red, 200);
            }
        }
    }
}

TEST(DecodePicture, WhatIsNoPhotoIsRefusedWithItsReason) {
    const LibraryBitmap waves(FreeImage_AllocateT(FIT_COMPLEX, 8, 8));
    QByteArray unreadable = testing::RawPhoto(true, 1);
    unreadable[unreadable.indexOf(QByteArray("\x03\1\3\0", 4)) + 8] = 99;  // the compression
    const struct {
        QByteArray contents;
        const char* reason;
    } rows[] = {
        {"this is no picture\n", "this is not a picture of a known type"},
        {"B", "this is not a picture of a known type"},
        {Saved(FIF_TIFF, waves.get()), "its pixels cannot be converted to 24-bit colour"},
        {testing::BombFiles(0)[1].bytes, "the picture has no pixels"},
        {testing::Bmp({40, 24, 0}, {1, 0}).replace(18, 8, testing::Numbers({INT_MIN, INT_MIN}, 4)),
         "the picture has no pixels"},
        {unreadable, "damaged: the raw photo cannot be read"}};
    for (const auto& row : rows) {
        const LoadedPicture picture = Decode(row.contents);
        EXPECT_EQ(picture.outcome, LoadOutcome::NotLoaded);
        EXPECT_EQ(ErrorText(picture.reason).toStdString(), row.reason);
        EXPECT_FALSE(picture.bitmap);
    }
}

// Does not come back. For a process of its own.
void DecodeWithoutOpening(const std::vector<SeedFile>& files) {
    PrepareDecoding();
    const rlimit none{0, 0};
    setrlimit(RLIMIT_NOFILE, &none);
    for (const SeedFile& file : files) {
        if (Decode(file.bytes).outcome != LoadOutcome::Loaded) {
            std::fprintf(stderr, "not loaded: %s\n", file.name.c_str());
            std::_Exit(1);
        }
    }
    std::_Exit(0);
}

TEST(DecodePicture, OpensNoFileOnceItIsPrepared) {
    if (sanitized) {
        GTEST_SKIP() << "the sanitizer opens a pipe to look at a shared pointer";
    }
    // A forked child would lack the raw library's threads; this style starts the program anew.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    const std::vector<SeedFile> files = SoundFiles();
    EXPECT_EXIT(DecodeWithoutOpening(files), ::testing::ExitedWithCode(0), "");
}

TEST(MeansDamage, TellsMissingPixelsFromTalk) {
    const char16_t* const damages[] = {u"Premature end of JPEG file",
                                       u"Corrupt JPEG data: premature end of data segment",
                                       u"Corrupt JPEG data: bad Huffman code",
                                       u"Inconsistent progression sequence for component 0",
                                       u"Read error at scanline 12; got 7 bytes, expected 600",
                                       u"Not enough data for scanline 3",
                                       u"LZWDecode: Corrupted LZW table at scanline 9",
                                       u"Decoding error at scanline 4, incorrect data check"};
    for (const char16_t* message : damages) {
        EXPECT_TRUE(MeansDamage(QString::fromUtf16(message)))
            << QString::fromUtf16(message).toStdString();
    }
    const char16_t* const talk[] = {
        u"Unknown field with tag 50706 (0xc612) encountered", u"Internal error, unknown tag 0x9c9b",
        u"Warning: unknown JFIF revision number 2.01", u"Unknown Adobe color transform code 3",
        u"Application transferred too many scanlines"};
    for (const char16_t* message : talk) {
        EXPECT_FALSE(MeansDamage(QString::fromUtf16(message)))
            << QString::fromUtf16(message).toStdString();
    }
}

}  // namespace
}  // namespace varnel
