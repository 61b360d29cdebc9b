// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/jpeg_coder.h"

#include <gtest/gtest.h>

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <vector>

#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/image/image_library.h"
#include "tests/support/bitmaps.h"
#include "tests/support/runners.h"
#include "tests/support/seeds/jpeg_files.h"

namespace varnel {
namespace {

using testing::FromFile;
using testing::Grainy;

// The marker segments up to the scan, without that of the restart interval.
std::vector<QByteArray> Segments(const QByteArray& file) {
    std::vector<QByteArray> segments;
    qsizetype at = 2;
    while (at + 4 < file.size() && (segments.empty() || !segments.back().startsWith("\xFF\xDA"))) {
        const int length = 2 + qFromBigEndian<quint16>(file.constData() + at + 2);
        segments.push_back(file.mid(at, length));
        at += length;
    }
    std::erase_if(segments, [](const QByteArray& one) { return one.startsWith("\xFF\xDD"); });
    return segments;
}

QByteArray ByLibrary(const Bitmap* bitmap, const OutputEncoding& encoding) {
    const int chroma = encoding.chroma444 ? JPEG_SUBSAMPLING_444 : 0;
    return LibraryFile(FIF_JPEG, bitmap, encoding.quality | chroma).bytes;
}

void ExpectLikeTheLibrarys(const Bitmap* bitmap, const OutputEncoding& encoding) {
    testing::ShuffledRunner runner(7);
    const QByteArray file = EncodeJpeg(bitmap, encoding, {.runner = &runner}).bytes;
    const QByteArray expected = ByLibrary(bitmap, encoding);
    EXPECT_EQ(Segments(file), Segments(expected));
    EXPECT_LE(file.size(), expected.size() * 101 / 100);
    const ImageLibraryMessages messages;  // one comes for a marker that is not where it should be
    const BitmapHandle picture = FromFile(FIF_JPEG, file, JPEG_ACCURATE);
    ASSERT_TRUE(picture);
    EXPECT_TRUE(
        testing::SamePixels(picture.get(), FromFile(FIF_JPEG, expected, JPEG_ACCURATE).get()));
    EXPECT_TRUE(messages.Lines().isEmpty()) << messages.Lines().first().toStdString();
}

TEST(EncodeJpeg, WritesALargePictureInBandsLikeTheLibrary) {
    const struct {
        PixelSize size;
        int quality;
    } rows[] = {{{1009, 1000}, 95}, {{1000, 1024}, 75},  {{8001, 129}, 75},
                {{4000, 256}, 50},  {{1600, 1025}, 100}, {{9, 65500}, 90},
                {{65500, 17}, 90},  {{2047, 1151}, 1},   {{1500, 900}, 30}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.size.width << " x " << row.size.height);
        for (const bool chroma444 : {false, true}) {
            ExpectLikeTheLibrarys(Grainy(row.size).get(),
                                  {OutputType::Jpeg, row.quality, chroma444});
        }
    }
}

TEST(EncodeJpeg, WritesASmallPictureByteForByteAsTheLibrary) {
    for (const PixelSize size : {PixelSize{1, 1}, {17, 33}, {16, 16}, {15, 127}, {33, 300}}) {
        const BitmapHandle bitmap = Grainy(size);
        for (int quality = 1; quality <= 100; ++quality) {
            for (const bool chroma444 : {false, true}) {
                const OutputEncoding encoding(OutputType::Jpeg, quality, chroma444);
                EXPECT_EQ(EncodeJpeg(bitmap.get(), encoding, {}).bytes,
                          ByLibrary(bitmap.get(), encoding))
                    << size.width << " x " << size.height << ", " << quality << ' ' << chroma444;
            }
        }
    }
}

TEST(EncodeJpeg, TakesEveryMetadataSegmentAlong) {
    const BitmapHandle large = Grainy({1200, 900});
    const BitmapHandle described = FromFile(
        FIF_JPEG, testing::Described(LibraryFile(FIF_JPEG, NewBitmap({8, 8}).get(), 90).bytes));
    ASSERT_FALSE(described->metadata.comments.isEmpty());
    large->metadata = described->metadata;
    large->metadata.dotsPerMetreY = 11811;
    ExpectLikeTheLibrarys(large.get(), {OutputType::Jpeg, 85});
    large->metadata.colourProfile = QByteArray(200'000, 'p');  // four segments
    ExpectLikeTheLibrarys(large.get(), {OutputType::Jpeg, 85});
}

TEST(EncodeJpeg, DoesNotDependOnTheRunner) {
    const BitmapHandle bitmap = Grainy({1201, 1000});
    SerialRunner serial;
    ThreadRunner threads(3);
    testing::ShuffledRunner shuffled(3);
    const auto file = [&](BlockRunner& runner) {
        return EncodeJpeg(bitmap.get(), {OutputType::Jpeg, 90}, {.runner = &runner}).bytes;
    };
    EXPECT_EQ(file(serial), file(threads));
    EXPECT_EQ(file(serial), file(shuffled));
}

TEST(EncodeJpeg, SaysWhatLibjpegRefuses) {
    for (const PixelSize size : {PixelSize{65501, 1}, {20, 65501}}) {
        const BitmapHandle bitmap = NewBitmap(size);
        const EncodedBitmap file = EncodeJpeg(bitmap.get(), OutputType::Jpeg, {});
        EXPECT_TRUE(file.bytes.isEmpty());
        EXPECT_EQ(file.reason, LibraryFile(FIF_JPEG, bitmap.get(), 90).reason);
    }
}

}  // namespace
}  // namespace varnel
