// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/orientation.h"

#include <gtest/gtest.h>

#include <string>

#include "base/error_text.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/image/exif_orientation.h"
#include "tests/decoder/formats/decoding.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/jpeg_files.h"

namespace varnel {
namespace {

using testing::Decode;
using testing::Order;
using testing::TiffBytes;
using testing::TiffType;

QByteArray Exif(int orientation, Order order = Order::Big) {
    TiffBytes tiff(order);
    const auto number = static_cast<std::uint32_t>(orientation);
    return tiff.Finish(tiff.Directory(
        {{271, TiffType::Text, {}, QByteArray("Varnel", 7)}, {274, TiffType::Short, {number}}}));
}

QByteArray Jpeg(const Bitmap* bitmap, int orientation, int flags) {
    const QByteArray mark("Exif\0\0", 6);
    return LibraryFile(FIF_JPEG, bitmap, flags)
        .bytes.insert(2, testing::JpegSegment(0xE1, "http://ns.adobe.com/xap/1.0/") +
                             testing::JpegSegment(0xE1, mark + Exif(orientation)));
}

// The block behind the pixels, where it may be, too.
QByteArray Png(const Bitmap* bitmap, int orientation) {
    QByteArray file = LibraryFile(FIF_PNG, bitmap, 0).bytes;
    return file.insert(file.size() - 12, testing::PngChunk("eXIf", Exif(orientation)));
}

QByteArray Webp(const Bitmap* bitmap, int orientation) {
    using testing::Number;
    const QByteArray exif = Exif(orientation, Order::Little);
    const PixelSize size = SizeOf(bitmap);
    const QByteArray chunks = "WEBPVP8X" + Number(10, 4) + Number(8, 4) +
                              Number(size.width - 1, 3) + Number(size.height - 1, 3) +
                              LibraryFile(FIF_WEBP, bitmap, WEBP_LOSSLESS).bytes.mid(12) + "EXIF" +
                              Number(exif.size(), 4) + exif;
    return "RIFF" + Number(chunks.size(), 4) + chunks;
}

// Grey in 8 bits a sample; as luminance and colour the library has another way of reading it.
QByteArray Tiff(const Bitmap* bitmap, int orientation, bool ycc) {
    QByteArray pixels;
    for (int y = SizeOf(bitmap).height - 1; y >= 0; --y) {
        for (int x = 0; x < SizeOf(bitmap).width; ++x) {
            const auto grey = static_cast<char>(testing::PixelAt(bitmap, x, y).red);
            const char noColour = ycc ? '\x80' : grey;
            const char samples[] = {grey, noColour, noColour};
            pixels.append(samples, 3);
        }
    }
    using enum TiffType;
    const auto width = static_cast<std::uint32_t>(SizeOf(bitmap).width);
    const auto height = static_cast<std::uint32_t>(SizeOf(bitmap).height);
    return testing::StripTiff({{256, Long, {width}},
                               {257, Long, {height}},
                               {258, Short, {8, 8, 8}},
                               {259, Short, {1}},
                               {262, Short, {ycc ? 6U : 2U}},
                               {274, Short, {static_cast<std::uint32_t>(orientation)}},
                               {277, Short, {3}},
                               {278, Long, {height}},
                               {284, Short, {1}},
                               {530, Short, {1, 1}}},
                              pixels);
}

// Greys as letters, from the top row.
BitmapHandle Lettered(const std::vector<std::string>& rows) {
    const auto height = static_cast<int>(rows.size());
    return testing::Painted({static_cast<int>(rows[0].size()), height}, [&](int x, int y) {
        const auto grey = static_cast<BYTE>(rows[height - 1 - y][x]);
        return PixelColor{grey, grey, grey, 0};
    });
}

std::string Letters(const Bitmap* bitmap) {
    std::string letters;
    for (int y = SizeOf(bitmap).height - 1; y >= 0; --y) {
        for (int x = 0; x < SizeOf(bitmap).width; ++x) {
            letters += static_cast<char>(testing::PixelAt(bitmap, x, y).green);
        }
        letters += y > 0 ? "/" : "";
    }
    return letters;
}

TEST(DecodePicture, TurnsEveryTypeOnceAndSaysSo) {
    const char* const shown[] = {"abc/def",  "cba/fed",  "fed/cba",  "def/abc",
                                 "ad/be/cf", "da/eb/fc", "fc/eb/da", "cf/be/ad"};
    const BitmapHandle stored = Lettered({"abc", "def"});
    stored->metadata.dotsPerMetreX = 3000;
    stored->metadata.dotsPerMetreY = 4000;
    for (int orientation = 1; orientation <= 8; ++orientation) {
        const QByteArray files[] = {Png(stored.get(), orientation), Webp(stored.get(), orientation),
                                    Tiff(stored.get(), orientation, false),
                                    Tiff(stored.get(), orientation, true)};
        for (const QByteArray& file : files) {
            SCOPED_TRACE(::testing::Message() << orientation << file.left(4).constData());
            const LoadedPicture picture = Decode(file, {});
            ASSERT_TRUE(picture.bitmap) << ErrorText(picture.reason).toStdString();
            EXPECT_EQ(Letters(picture.bitmap.get()), shown[orientation - 1]);
            EXPECT_EQ(picture.orientation, orientation);
            EXPECT_EQ(picture.size.height, orientation < 5 ? 2 : 3);
            EXPECT_EQ(Decode(file, {{}, ReadKind::Size}).size.width, orientation < 5 ? 3 : 2);
            const LoadedPicture asStored = Decode(file, {{}, ReadKind::Whole, {}, false});
            EXPECT_EQ(Letters(asStored.bitmap.get()), shown[0]);
            EXPECT_EQ(asStored.orientation, 1);
        }
        EXPECT_EQ(Decode(files[0], {}).bitmap->metadata.dotsPerMetreX,
                  orientation < 5 ? 3000U : 4000U);
    }
}

// By the library's own means. The picture is higher than a band of the decoder.
TEST(DecodePicture, TurnsJpegAsItIsDecoded) {
    const struct {
        bool mirrored;
        int turned;  // degrees counter-clockwise, after that
    } rows[] = {{false, 0}, {true, 0},    {false, 180}, {true, 180},
                {true, 90}, {false, -90}, {true, -90},  {false, 90}};
    const BitmapHandle stored = testing::PositionPicture({45, 83});
    for (int orientation = 1; orientation <= 8; ++orientation) {
        for (const int flags : {90, 90 | JPEG_PROGRESSIVE}) {
            const QByteArray file = Jpeg(stored.get(), orientation, flags);
            const LoadedPicture plain = Decode(file, {{}, ReadKind::Whole, {}, false});
            const auto& row = rows[orientation - 1];
            const LibraryBitmap mirrored = testing::InLibrary(*plain.bitmap);
            if (row.mirrored) {
                FreeImage_FlipHorizontal(mirrored.get());
            }
            const BitmapHandle expected =
                TakeOver(LibraryBitmap(FreeImage_Rotate(mirrored.get(), row.turned)));
            const LoadedPicture picture = Decode(file, {});
            ASSERT_EQ(SizeOf(picture.bitmap.get()).width, SizeOf(expected.get()).width);
            EXPECT_TRUE(testing::SamePixels(picture.bitmap.get(), expected.get()))
                << orientation << ' ' << flags;
            const LoadedPicture small = Decode(file, {{}, ReadKind::Small, {20, 10}});
            EXPECT_EQ(SizeOf(small.bitmap.get()).width, orientation < 5 ? 6 : 18);
            EXPECT_EQ(SizeOf(small.bitmap.get()).height, 10);
            EXPECT_EQ(small.size.width, orientation < 5 ? 45 : 83);
        }
    }
}

// Those are developed upright, whatever is asked.
TEST(DecodePicture, TellsHowARawPhotoWasTurnedAndLeavesItAlone) {
    for (const bool upright : {true, false}) {
        for (const ReadKind kind : {ReadKind::Whole, ReadKind::Size}) {
            for (const int orientation : {1, 3, 6, 8}) {
                const LoadedPicture picture =
                    Decode(testing::RawPhoto(false, orientation), {{}, kind, {}, upright});
                EXPECT_EQ(picture.size.width, orientation < 5 ? 64 : 48);
                EXPECT_EQ(picture.orientation, upright ? orientation : 1);
            }
        }
    }
}

TEST(OrientationInExif, IsOneWhateverElseTheBlockSays) {
    const QByteArray mark("Exif\0\0", 6);
    for (const Order order : {Order::Little, Order::Big}) {
        const QByteArray good = Exif(6, order);
        ASSERT_EQ(OrientationInExif(good), 6);
        ASSERT_EQ(OrientationInExif(mark + good), 6);
        for (const int number : {0, 9, 0x0106, 0x0600, 0xFFFF}) {
            EXPECT_EQ(OrientationInExif(Exif(number, order)), 1) << number;
        }
        const qsizetype valueEnd = good.lastIndexOf('\6') + (order == Order::Little ? 2 : 1);
        for (qsizetype length = 0; length < good.size(); ++length) {
            EXPECT_EQ(OrientationInExif(good.left(length)), length < valueEnd ? 1 : 6) << length;
        }
        for (qsizetype place = 0; place < good.size(); ++place) {
            for (const char value : {'\0', '\x7F', '\xFF'}) {
                const int told = OrientationInExif(QByteArray(good).replace(place, 1, &value, 1));
                EXPECT_TRUE(told == 1 || told == 6) << place;
            }
        }
    }
}

}  // namespace
}  // namespace varnel
