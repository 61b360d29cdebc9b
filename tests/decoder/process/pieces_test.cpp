// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Large photos come from the decoder piece by piece: the same pictures, whatever goes wrong.
#include <gtest/gtest.h>

#include <csignal>
#include <future>
#include <string_view>

#include "base/error_text.h"
#include "decoder/process/decoder_reader.h"
#include "decoder/process/protocol.h"
#include "decoder/process/sandbox.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::PictureFolder;
using testing::Text;

constexpr PixelSize size{1501, 1001};

QByteArray TurnedJpeg(const PictureFolder& folder, int orientation) {
    QByteArray file =
        testing::Contents(folder.Picture(Text("upright.jpg"), {OutputType::Jpeg, 90}, size));
    const QByteArray exif =
        QByteArray("Exif\0\0II*\0\x08\0\0\0\x01\0\x12\x01\x03\0\x01\0\0\0", 24) +
        static_cast<char>(orientation) + QByteArray(7, '\0');
    return file.insert(2, QByteArray("\xFF\xE1\0", 3) + static_cast<char>(exif.size() + 2) + exif);
}

// The same photo as one that does not go on asking gets it.
LoadedPicture AtOnce(PictureReader& reader, const QString& path) {
    reader.Begin({path});
    while (!reader.Wait(50)) {
    }
    return reader.Take();
}

void ExpectSame(const LoadedPicture& pieces, const LoadedPicture& whole) {
    EXPECT_EQ(pieces.outcome, whole.outcome);
    EXPECT_EQ(ErrorText(pieces.reason).toStdString(), ErrorText(whole.reason).toStdString());
    EXPECT_EQ(pieces.orientation, whole.orientation);
    EXPECT_FALSE(pieces.arriving);
    ASSERT_EQ(pieces.bitmap == nullptr, whole.bitmap == nullptr);
    if (pieces.bitmap) {
        EXPECT_TRUE(testing::SamePixels(pieces.bitmap.get(), whole.bitmap.get()));
        EXPECT_EQ(pieces.bitmap->metadata, whole.bitmap->metadata);
    }
}

TEST(PiecedPicture, IsThePictureAsItComesAtOnce) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("photo.jpg"));
    DecoderReader reader({});
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        testing::WriteFile(path, TurnedJpeg(folder, orientation));
        bool begun = false;
        const LoadedPicture pieces =
            ReadPicture(reader, {.path = path, .begun = [&](const LoadedPicture& picture) {
                                     begun = picture.arriving != nullptr;
                                     EXPECT_EQ(picture.orientation, orientation);
                                 }});
        EXPECT_TRUE(begun);
        ExpectSame(pieces, AtOnce(reader, path));
    }
}

// Planes give the pixels that the decoder gives, at all edges and for the strongest colours.
TEST(PiecedPicture, PlanesHaveThePixelsOfTheDecoder) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("photo.jpg"));
    DecoderReader reader({});
    for (const PixelSize odd : {PixelSize{1500, 1000}, {1501, 1001}, {1503, 1000}, {1488, 1007}}) {
        SCOPED_TRACE(odd.width);
        ASSERT_TRUE(SaveBitmap({OutputType::Jpeg, 95}, testing::Noise(odd).get(), path));
        std::shared_ptr<const PlanarPicture> early;
        LoadedPicture planes =
            ReadPicture(reader, {.path = path, .planar = true, .begun = [&](LoadedPicture begun) {
                                     early = begun.planar;
                                 }});
        ASSERT_TRUE(planes.planar);
        EXPECT_EQ(early, planes.planar);
        EXPECT_EQ(planes.bitmap->Bits(), nullptr);
        const LoadedPicture whole = AtOnce(reader, path);
        BitmapHandle pixels = planes.planar->Pixels();
        pixels->metadata = planes.bitmap->metadata;
        for (const int x : {0, 1, odd.width / 2, odd.width - 2, odd.width - 1}) {
            for (int y = 0; y < odd.height; ++y) {
                const PixelColor one = planes.planar->At(x, y);
                const PixelColor other = testing::PixelAt(whole.bitmap.get(), x, y);
                ASSERT_TRUE(testing::operator==(one, other)) << x << ' ' << y;
            }
        }
        planes.bitmap = std::move(pixels);
        ExpectSame(planes, whole);
    }
}

TEST(PiecedPicture, OnlyUprightPhotosOfHalvedColoursArePlanar) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("photo.jpg"));
    DecoderReader reader({});
    OutputEncoding full{OutputType::Jpeg, 90};
    full.chroma444 = true;
    const QByteArray rows[] = {TurnedJpeg(folder, 6),
                               testing::Contents(folder.Picture(Text("full.jpg"), full, size))};
    for (const QByteArray& file : rows) {
        testing::WriteFile(path, file);
        const LoadedPicture picture = ReadPicture(reader, {.path = path, .planar = true});
        EXPECT_FALSE(picture.planar);
        ExpectSame(picture, AtOnce(reader, path));
    }
}

TEST(PiecedPicture, DamageIsToldAsOfAPictureAtOnce) {
    const PictureFolder folder;
    const QByteArray sound = TurnedJpeg(folder, 1);
    const QString path = folder.Path(Text("photo.jpg"));
    const qsizetype half = sound.size() / 2;
    const QByteArray rows[] = {sound.left(half), sound.left(sound.size() - 2),
                               QByteArray(sound).replace(half, 40, "\xFF\xC4"),
                               QByteArray(sound).replace(half, 200, QByteArray(200, '\xFF')),
                               sound.left(1200)};
    DecoderReader reader({});
    for (const QByteArray& file : rows) {
        SCOPED_TRACE(file.size());
        testing::WriteFile(path, file);
        std::shared_ptr<ArrivingPicture> arriving;
        const LoadedPicture pieces = ReadPicture(
            reader, {.path = path,
                     .begun = [&](const LoadedPicture& picture) { arriving = picture.arriving; }});
        if (arriving) {
            arriving->rows.WaitFor(0);  // comes to an end at any rate
            EXPECT_EQ(arriving->isSound.load(), pieces.outcome == LoadOutcome::Loaded);
        }
        ExpectSame(pieces, AtOnce(reader, path));
    }
}

TEST(PiecedPicture, RowsThatAreWaitedForAreThere) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("photo.jpg"));
    testing::WriteFile(path, TurnedJpeg(folder, 1));
    DecoderReader reader({});
    const LoadedPicture whole = AtOnce(reader, path);
    std::future<int> wrong;
    const ReadRequest request{
        .path = path, .begun = [&](LoadedPicture begun) {
            wrong = std::async(std::launch::async, [&whole, begun = std::move(begun)] {
                int rows = 0;
                for (int y = size.height - 1; y >= 0; --y) {
                    begun.arriving->rows.WaitFor(y);
                    rows += std::ranges::equal(ScanLine(begun.bitmap.get(), y),
                                               ScanLine(whole.bitmap.get(), y))
                                ? 0
                                : 1;
                }
                return begun.arriving->isSound ? rows : -1;
            });
        }};
    ReadPicture(reader, request);
    ASSERT_TRUE(wrong.valid());
    EXPECT_EQ(wrong.get(), 0);
}

TEST(PiecedPicture, DecodersThatDieOrLieCostNoMoreThanTheyHaveTo) {
    const PictureFolder folder;
    const QString photo = folder.Path(Text("photo"));
    const struct {
        const char* order;   // what the decoder does after it has begun
        const char* reason;  // empty: asked as a whole, the picture comes
    } rows[] = {
        {"pieces signal 6", ""},
        {"pieces forbidden", ""},
        {"pieces other number", ""},
        {"pieces length 99999999999", ""},
        {"pieces stutter", ""},
        {"rows given up", ""},
        {"rows signal 6", "damaged: the decoder died of it (signal 6)"},
        {"rows too many", "damaged: the decoder's answer makes no sense"},
        {"rows missing", "damaged: the decoder's answer makes no sense"},
        {"rows too large", "damaged: the decoder's answer makes no sense"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.order);
        if (sanitized && row.order == std::string_view("pieces forbidden")) {
            continue;  // there are no walls then
        }
        testing::WriteFile(photo, row.order);
        DecoderReader reader({.program = QStringLiteral(VARNEL_DYING_DECODER)});
        const LoadedPicture picture = ReadPicture(reader, {photo});
        EXPECT_EQ(ErrorText(picture.reason).toStdString(), row.reason);
        EXPECT_EQ(picture.size.width, *row.reason == '\0' ? 4 : 0);
    }
}

TEST(PiecedPicture, KilledAtRandomMomentsTheDecoderIsReplacedAndThePhotoComes) {
    const PictureFolder folder;
    const QString path = folder.Path(Text("photo.jpg"));
    testing::WriteFile(path, TurnedJpeg(folder, 3));
    DecoderReader reader({});
    const LoadedPicture whole = AtOnce(reader, path);
    for (int n = 0; n < 60; ++n) {
        const pid_t victim = reader.ProcessId();
        reader.Begin({.path = path, .inPieces = true});
        reader.Wait(n * 37 % 12);
        if (reader.ProcessId() == victim) {
            kill(victim, SIGKILL);
        }
        while (!reader.Wait(50)) {
        }
        const LoadedPicture picture = reader.Take();
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << n;
        ASSERT_TRUE(testing::SamePixels(picture.bitmap.get(), whole.bitmap.get())) << n;
    }
}

}  // namespace
}  // namespace varnel
