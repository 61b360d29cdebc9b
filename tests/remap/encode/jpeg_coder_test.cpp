// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/jpeg_coder.h"

#include <gtest/gtest.h>

#include <QtEndian>
#include <algorithm>
#include <cstring>
#include <vector>

#include "base/thread_runner.h"
#include "remap/encode/freeimage_encoder.h"
#include "remap/image/library_messages.h"
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

void ExpectLikeTheLibrarys(const Bitmap* bitmap, int flags) {
    testing::ShuffledRunner runner(7);
    const std::optional<QByteArray> file = EncodeJpeg(bitmap, flags, runner);
    const QByteArray expected = LibraryFile(FIF_JPEG, bitmap, flags).bytes;
    ASSERT_TRUE(file);
    EXPECT_EQ(Segments(*file), Segments(expected));
    EXPECT_LE(file->size(), expected.size() * 101 / 100);
    const LibraryMessages messages;  // one comes for a marker that is not where it should be
    const BitmapHandle picture = FromFile(FIF_JPEG, *file, JPEG_ACCURATE);
    ASSERT_TRUE(picture);
    EXPECT_TRUE(
        testing::SamePixels(picture.get(), FromFile(FIF_JPEG, expected, JPEG_ACCURATE).get()));
    EXPECT_TRUE(messages.Lines().isEmpty()) << messages.Lines().first().toStdString();
}

TEST(EncodeJpeg, WritesALargePictureInBandsLikeTheLibrary) {
    const struct {
        PixelSize size;
        int quality;
    } rows[] = {{{1009, 1000}, 95}, {{1000, 1024}, 75},  {{8001, 129}, 0},
                {{4000, 256}, 50},  {{1600, 1025}, 100}, {{9, 65500}, 90},
                {{65500, 17}, 90},  {{2047, 1151}, 1},   {{1500, 900}, 30}};
    for (const auto& row : rows) {
        SCOPED_TRACE(::testing::Message() << row.size.width << " x " << row.size.height);
        for (const int chroma : {0, JPEG_SUBSAMPLING_444}) {
            ExpectLikeTheLibrarys(Grainy(row.size).get(), row.quality | chroma);
        }
    }
}

TEST(EncodeJpeg, WritesASmallPictureByteForByteAsTheLibrary) {
    for (const PixelSize size : {PixelSize{1, 1}, {17, 33}, {16, 16}, {15, 127}, {33, 300}}) {
        const BitmapHandle bitmap = Grainy(size);
        for (int quality = 0; quality <= 100; ++quality) {
            for (const int flags : {quality, quality | JPEG_SUBSAMPLING_444}) {
                SerialRunner runner;
                EXPECT_EQ(EncodeJpeg(bitmap.get(), flags, runner),
                          LibraryFile(FIF_JPEG, bitmap.get(), flags).bytes)
                    << size.width << " x " << size.height << ", " << flags;
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
    ExpectLikeTheLibrarys(large.get(), 85);
    large->metadata.colourProfile = QByteArray(200'000, 'p');  // four segments
    ExpectLikeTheLibrarys(large.get(), 85);
}

TEST(EncodeJpeg, DoesNotDependOnTheRunner) {
    const BitmapHandle bitmap = Grainy({1201, 1000});
    SerialRunner serial;
    ThreadRunner threads(3);
    testing::ShuffledRunner shuffled(3);
    const std::optional<QByteArray> file = EncodeJpeg(bitmap.get(), 90, serial);
    EXPECT_EQ(file, EncodeJpeg(bitmap.get(), 90, threads));
    EXPECT_EQ(file, EncodeJpeg(bitmap.get(), 90, shuffled));
}

TEST(EncodeJpeg, LeavesToTheLibraryWhatItDoesNotKnow) {
    SerialRunner runner;
    const BitmapHandle bitmap = NewBitmap({8, 8});
    for (const int flags : {-1, 101, JPEG_QUALITYSUPERB, JPEG_PROGRESSIVE | 90,
                            JPEG_SUBSAMPLING_422 | 90, JPEG_SUBSAMPLING_444 | 101}) {
        EXPECT_FALSE(EncodeJpeg(bitmap.get(), flags, runner)) << flags;
    }
    const BitmapHandle wide = NewBitmap({65501, 1});
    EXPECT_FALSE(EncodeJpeg(wide.get(), 90, runner));
}

}  // namespace
}  // namespace varnel
