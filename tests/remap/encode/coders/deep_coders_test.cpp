// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Files of 16 bits and floating point, read back by the image library, and pictures made deeper
// and less deep.

#include <gtest/gtest.h>
#include <algorithm>
#include <cmath>
#include <cstring>

#include "remap/encode/encode_bitmap.h"
#include "remap/encode/linear_light.h"
#include "remap/encode/sample_depth.h"
#include "remap/image/image_library.h"
#include "remap/image/pixel_access.h"
#include "tests/support/bitmaps.h"
#include "tests/support/deep_bitmaps.h"
#include "tests/support/runners.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

using testing::Deep;

std::string Named(const char* type, PixelFormat format, TiffCompression compression) {
    return std::string(type) + ' ' + std::to_string(BitsPerSample(format)) +
           (HasAlpha(format) ? " with alpha " : " ") + ToText(compression).toStdString();
}

// The library has red first in deep pictures, and the bottom row first.
template <class Sample>
void ExpectSamples(FIBITMAP* read, const Bitmap& bitmap) {
    const std::size_t samples = HasAlpha(bitmap.Format()) ? 4 : 3;
    int wrong = 0;
    for (int y = 0; y < bitmap.Size().height; ++y) {
        const BYTE* const row = FreeImage_GetScanLine(read, y);
        for (std::size_t n = 0; n < static_cast<std::size_t>(bitmap.Size().width) * samples; ++n) {
            const std::size_t place = n % samples < 3 ? n - n % samples + 2 - n % samples : n;
            wrong += SampleAt<Sample>(row, n) == SampleAt<Sample>(bitmap.ScanLine(y).data(), place)
                         ? 0
                         : 1;
        }
    }
    EXPECT_EQ(wrong, 0);
}

void ExpectHolds(FREE_IMAGE_FORMAT type, QByteArray file, const Bitmap& bitmap) {
    const ImageLibraryMessages unheard;
    FIMEMORY* const memory =
        FreeImage_OpenMemory(reinterpret_cast<BYTE*>(file.data()), static_cast<DWORD>(file.size()));
    const LibraryBitmap read(FreeImage_LoadFromMemory(type, memory, 0));
    FreeImage_CloseMemory(memory);
    ASSERT_TRUE(read);
    const bool isFloat = SampleKindOf(bitmap.Format()) == SampleKind::Float;
    const bool alpha = HasAlpha(bitmap.Format());
    ASSERT_EQ(FreeImage_GetImageType(read.get()),
              isFloat ? (alpha ? FIT_RGBAF : FIT_RGBF) : (alpha ? FIT_RGBA16 : FIT_RGB16));
    ASSERT_EQ(SizeOf(read.get()).width, bitmap.Size().width);
    ASSERT_EQ(SizeOf(read.get()).height, bitmap.Size().height);
    if (isFloat) {
        ExpectSamples<float>(read.get(), bitmap);
    } else {
        ExpectSamples<std::uint16_t>(read.get(), bitmap);
    }
}

constexpr PixelFormat deepFormats[] = {PixelFormat::Bgr16, PixelFormat::Bgra16,
                                       PixelFormat::BgrFloat, PixelFormat::BgraFloat};
constexpr TiffCompression compressions[] = {TiffCompression::Usual, TiffCompression::Lzw,
                                            TiffCompression::Deflate, TiffCompression::Zstd,
                                            TiffCompression::None};

TEST(DeepTiff, ComesBackValueForValue) {
    for (const PixelFormat format : deepFormats) {
        for (const PixelSize size : {PixelSize{1, 1}, {3, 2}, {701, 503}}) {
            const BitmapHandle bitmap = Deep(size, format);
            for (const TiffCompression compression : compressions) {
                SCOPED_TRACE(Named("TIFF", format, compression));
                OutputEncoding encoding(OutputType::Tiff);
                encoding.compression = compression;
                testing::ShuffledRunner runner(5);
                const EncodedBitmap file =
                    EncodeBitmap(encoding, bitmap.get(), {.runner = &runner});
                EXPECT_EQ(file.samples, SampleKindOf(format));
                EXPECT_TRUE(file.note.isEmpty());
                ExpectHolds(FIF_TIFF, file.bytes, *bitmap);
            }
        }
    }
}

// A level asks for deflate where nothing else is said, also of 8 bits.
TEST(DeepTiff, HigherLevelsMakeSmallerFilesOfTheSameValues) {
    using enum TiffCompression;
    SerialRunner runner;
    const BitmapHandle slopes = testing::Painted({200, 103}, [](int x, int y) {
        return PixelColor{static_cast<BYTE>(x * y / 9), static_cast<BYTE>(x % 7 * y), 90, 0};
    });
    const BitmapHandle bitmaps[] = {InSamples(*slopes, SampleKind::Word, runner),
                                    Deep({200, 103}, PixelFormat::Bgr16),
                                    Deep({200, 103}, PixelFormat::BgraFloat)};
    for (const BitmapHandle& bitmap : bitmaps) {
        for (const TiffCompression compression : {Usual, Deflate, Zstd}) {
            OutputEncoding encoding(OutputType::Tiff);
            encoding.compression = compression;
            std::vector<qsizetype> sizes;
            for (encoding.level = 1; encoding.level <= OutputEncoding::mostLevel;
                 ++encoding.level) {
                SCOPED_TRACE(Named("TIFF", bitmap->Format(), compression) +
                             std::to_string(encoding.level));
                const QByteArray file = EncodeBitmap(encoding, bitmap.get()).bytes;
                ExpectHolds(FIF_TIFF, file, *bitmap);
                sizes.push_back(file.size());
                EXPECT_LE(file.size(), sizes.front());
            }
            const bool isNoise = bitmap != bitmaps[0];
            EXPECT_LE(sizes.back(), sizes.front() * (isNoise ? 100 : 95) / 100);
        }
    }
    OutputEncoding encoding(OutputType::Tiff);
    EXPECT_EQ(CompressionFor(encoding, SampleKind::Byte), Lzw);
    encoding.level = 1;
    EXPECT_EQ(CompressionFor(encoding, SampleKind::Byte), Deflate);
    encoding.compression = Lzw;
    EXPECT_EQ(CompressionFor(encoding, SampleKind::Byte), Lzw);
}

// The file has the order of the EXIF block that it begins with.
TEST(DeepTiff, KeepsTheOrderOfThePhotosExif) {
    using enum testing::TiffType;
    for (const testing::Order order : {testing::Order::Little, testing::Order::Big}) {
        for (const PixelFormat format : deepFormats) {
            for (const TiffCompression compression : compressions) {
                SCOPED_TRACE(Named("TIFF", format, compression));
                testing::TiffBytes tiff(order);
                const std::uint32_t first = tiff.Directory({{256, Short, {9}}, {65000, Long, {7}}});
                const BitmapHandle bitmap = Deep({60, 40}, format);
                bitmap->metadata.photo.exif.bytes = tiff.Finish(first);
                OutputEncoding encoding(OutputType::Tiff);
                encoding.compression = compression;
                const QByteArray file = EncodeBitmap(encoding, bitmap.get()).bytes;
                EXPECT_TRUE(file.startsWith(order == testing::Order::Big ? "MM" : "II"));
                ExpectHolds(FIF_TIFF, file, *bitmap);
            }
        }
    }
}

TEST(DeepPng, ComesBackValueForValue) {
    for (const PixelFormat format : {PixelFormat::Bgr16, PixelFormat::Bgra16}) {
        for (const PixelSize size : {PixelSize{1, 1}, {3, 2}, {701, 503}}) {
            SCOPED_TRACE(Named("PNG", format, TiffCompression::Usual));
            const BitmapHandle bitmap = Deep(size, format);
            testing::ShuffledRunner runner(5);
            const EncodedBitmap file =
                EncodeBitmap(OutputType::Png, bitmap.get(), {.runner = &runner});
            EXPECT_TRUE(file.note.isEmpty());
            ExpectHolds(FIF_PNG, file.bytes, *bitmap);
        }
    }
}

TEST(Exr, HoldsLinearLightValueForValue) {
    const OutputType exr = *OutputTypeByName(u"exr");
    for (const PixelFormat format : {PixelFormat::BgrFloat, PixelFormat::BgraFloat}) {
        const BitmapHandle bitmap = Deep({70, 50}, format);
        const EncodedBitmap file = EncodeBitmap(exr, bitmap.get());
        EXPECT_TRUE(file.note.isEmpty());
        ExpectHolds(FIF_EXR, file.bytes, *bitmap);
    }
    const EncodedBitmap light = EncodeBitmap(exr, Deep({30, 20}, PixelFormat::Bgr8).get());
    EXPECT_EQ(light.samples, SampleKind::Float);
    EXPECT_TRUE(light.note.isEmpty());
}

// One that cannot be used counts as sRGB's: then it is the light that it is without one.
TEST(Exr, TakesTheCurveOfTheProfileOut) {
    SerialRunner runner;
    const BitmapHandle plain = Deep({30, 20}, PixelFormat::Bgra16);
    const BitmapHandle described = CloneBitmap(plain.get());
    described->metadata.colourProfile = testing::ColourProfile();
    const BitmapHandle light = InSamples(*plain, SampleKind::Float, runner);
    const BitmapHandle byProfile =
        InLinearLight(*InSamples(*described, SampleKind::Float, runner), runner);
    EXPECT_TRUE(byProfile->metadata.colourProfile.isEmpty());
    double most = 0.0;
    for (int y = 0; y < 20; ++y) {
        for (std::size_t n = 0; n < 30 * 4; ++n) {
            most = std::max(
                most,
                std::fabs(static_cast<double>(SampleAt<float>(light->ScanLine(y).data(), n) -
                                              SampleAt<float>(byProfile->ScanLine(y).data(), n))));
        }
    }
    EXPECT_LT(most, 0.004);
}

TEST(EncodeBitmap, SaysWhatATypeCannotHold) {
    const auto fewer = [](int bits, const char16_t* type) {
        return Reason(ReasonCode::TypeHoldsFewerBits, qint64{bits}, QString::fromUtf16(type));
    };
    const Reason opaque(ReasonCode::TypeHoldsNoTransparency, QStringLiteral("JPEG"));
    const struct {
        PixelFormat format;
        OutputType type;
        OutputDepth depth;
        SampleKind samples;
        Reason note;
    } rows[] = {
        {PixelFormat::Bgr16, OutputType::Jpeg, OutputDepth::Own, SampleKind::Byte,
         fewer(8, u"JPEG")},
        {PixelFormat::Bgra16, OutputType::Jpeg, OutputDepth::Own, SampleKind::Byte,
         Joined({fewer(8, u"JPEG"), opaque})},
        {PixelFormat::BgrFloat, OutputType::Bmp, OutputDepth::Own, SampleKind::Byte,
         fewer(8, u"BMP")},
        {PixelFormat::BgrFloat, OutputType::Png, OutputDepth::Own, SampleKind::Word,
         fewer(16, u"PNG")},
        {PixelFormat::Bgr16, OutputType::Tiff, OutputDepth::Eight, SampleKind::Byte, {}},
        {PixelFormat::Bgr16, OutputType::Jpeg, OutputDepth::Eight, SampleKind::Byte, {}},
        {PixelFormat::Bgr8, OutputType::Png, OutputDepth::Sixteen, SampleKind::Word, {}},
        {PixelFormat::Bgra8, OutputType::Tiff, OutputDepth::Float, SampleKind::Float, {}},
        {PixelFormat::Bgr8, OutputType::Jpeg, OutputDepth::Own, SampleKind::Byte, {}},
        {PixelFormat::Bgra16, *OutputTypeByName(u"hdr"), OutputDepth::Own, SampleKind::Float,
         Reason(ReasonCode::TypeHoldsNoTransparency, QStringLiteral("HDR"))},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(Named(ToText(row.type).toUtf8(), row.format, TiffCompression::Usual));
        OutputEncoding encoding(row.type);
        encoding.depth = row.depth;
        const EncodedBitmap file = EncodeBitmap(encoding, Deep({30, 20}, row.format).get());
        EXPECT_FALSE(file.bytes.isEmpty());
        EXPECT_EQ(file.samples, row.samples);
        EXPECT_EQ(file.note, row.note);
    }
}

// 16 bits that are turned into linear light and back, and 8 that are made deeper, are the same.
TEST(InSamples, LosesNothingOnTheWayToDeeperOnesAndBack) {
    testing::ShuffledRunner runner(3);
    for (const bool profile : {false, true}) {
        BitmapHandle ramp = NewBitmap({256, 256}, PixelFormat::Bgra16);
        for (int n = 0; n < 65536; ++n) {
            for (const std::size_t place : {0, 1, 2, 3}) {
                PutSample(ramp->ScanLine(n / 256).data() + n % 256 * 8, place,
                          static_cast<std::uint16_t>(n * (place + 1)));
            }
        }
        ramp->metadata.colourProfile = profile ? QByteArray("curve") : QByteArray();
        const BitmapHandle light = InSamples(*ramp, SampleKind::Float, runner);
        EXPECT_EQ(light->Format(), PixelFormat::BgraFloat);
        EXPECT_EQ(light->metadata.colourProfile, ramp->metadata.colourProfile);
        EXPECT_TRUE(
            testing::SamePixels(InSamples(*light, SampleKind::Word, runner).get(), ramp.get()));
        const BitmapHandle bytes = InSamples(*ramp, SampleKind::Byte, runner);
        for (const SampleKind deeper : {SampleKind::Word, SampleKind::Float}) {
            const BitmapHandle back =
                InSamples(*InSamples(*bytes, deeper, runner), SampleKind::Byte, runner);
            EXPECT_TRUE(testing::SamePixels(back.get(), bytes.get()));
        }
    }
}

// Half the light is coded as 188 of 255 by sRGB's curve, and is half of what a profile means.
TEST(InSamples, CodesLinearLightAndCutsOffWhatIsBeyond) {
    const struct {
        float sample;
        int coded;
        int byProfile;
    } rows[] = {{0.5F, 188, 128}, {0.0F, 0, 0},          {1.0F, 255, 255}, {7.5F, 255, 255},
                {-0.2F, 0, 0},    {std::nanf(""), 0, 0}, {0.002F, 7, 1},   {INFINITY, 255, 255}};
    SerialRunner runner;
    for (const auto& row : rows) {
        for (const bool profile : {false, true}) {
            BitmapHandle pixel = NewBitmap({1, 1}, PixelFormat::BgrFloat);
            PutSample(pixel->Bits(), 1, row.sample);
            pixel->metadata.colourProfile = profile ? QByteArray("curve") : QByteArray();
            const BitmapHandle byte = InSamples(*pixel, SampleKind::Byte, runner);
            EXPECT_EQ(byte->Bits()[1], profile ? row.byProfile : row.coded) << row.sample;
        }
    }
}

}  // namespace
}  // namespace varnel
