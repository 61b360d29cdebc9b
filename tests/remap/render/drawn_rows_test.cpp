// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/drawn_rows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <cstring>
#include <string>
#include <thread>

#include "base/run_time_error.h"
#include "base/thread_runner.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "tests/support/bitmaps.h"
#include "tests/support/deep_bitmaps.h"
#include "tests/support/records.h"
#include "tests/support/sinks.h"

namespace varnel {
namespace {

constexpr PixelSize photoSize{1300, 900};

// Gives it EXIF that has room for a thumbnail, and nothing else in it.
BitmapHandle WithExif(BitmapHandle photo) {
    constexpr std::uint32_t room = 6000;
    ExifBlock& exif = photo->metadata.photo.exif;
    exif.bytes = QByteArray("II*\0\0\0\0\0", 8) + QByteArray(12 + room, '\0');
    exif.width = 8;
    exif.height = 12;
    exif.thumbnailLength = 16;
    exif.thumbnail = 20;
    exif.thumbnailRoom = room;
    return photo;
}

QByteArray FileOfWhole(const Bitmap& photo, const ImageRecord& record,
                       const OutputEncoding& encoding, BlockRunner& runner) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::make_unique<Bitmap>(photo);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .runner = &runner, .keepsTransparency = true};
    Render(ProjectionFromIndex(record.Projection), record, SizeKind::Batch, silent, context);
    return EncodeBitmap(encoding, bitmaps.ResultBitmap.get(), {.runner = &runner}).bytes;
}

// Kept in memory, or put into a sink as it is made.
QByteArray FileOf(DrawnRows&& rows, const OutputEncoding& encoding, BlockRunner& runner,
                  testing::KeepingSink* sink) {
    const BitmapHandle frame = rows.WithoutPixels();
    EXPECT_TRUE(IsEncodedByRows(encoding, frame->Format(), photoSize));
    QByteArray file =
        EncodeBitmap(encoding, frame.get(), {.runner = &runner, .rows = &rows, .sink = sink}).bytes;
    EXPECT_EQ(rows.Done(), frame->Size().height);
    return file;
}

QByteArray FileOfRows(const Bitmap& photo, const ImageRecord& record,
                      const OutputEncoding& encoding, BlockRunner& runner,
                      testing::KeepingSink* sink = nullptr) {
    return FileOf(DrawnRows(ProjectionFromIndex(record.Projection), record, photo), encoding,
                  runner, sink);
}

// From a photo whose rows are not there when drawing begins.
QByteArray FileOfArrivingRows(const Bitmap& photo, const ImageRecord& record, BlockRunner& runner) {
    const BitmapHandle late = NewBitmap(photoSize);
    late->metadata = photo.metadata;
    std::memset(late->Bits(), 0x55, late->Pitch() * photoSize.height);
    const auto arriving = std::make_shared<ArrivingRows>(photoSize.height);
    const std::jthread decoder([&] {
        for (int y = photoSize.height - 1; y >= 0; --y) {
            std::ranges::copy(photo.ScanLine(y), late->ScanLine(y).begin());
            if (y % 60 == 0) {
                std::this_thread::sleep_for(std::chrono::microseconds(300));
                arriving->Came(y);
            }
        }
    });
    return FileOf(
        DrawnRows(ProjectionFromIndex(record.Projection), record, *late, {arriving, nullptr}),
        OutputType::Jpeg, runner, nullptr);
}

// Brightness and colours of anything.
std::shared_ptr<const PlanarPicture> Planes() {
    auto planes = std::make_shared<PlanarPicture>(photoSize);
    const BitmapHandle noise = testing::Noise(photoSize);
    for (int row = 0; row < photoSize.height; ++row) {
        const auto pixels = noise->ScanLine(row);
        for (std::size_t x = 0; x < static_cast<std::size_t>(photoSize.width); ++x) {
            planes->Brightness(row)[x] = pixels[3 * x];
        }
        if (row % 2 == 0) {
            planes->TakeColours(row / 2, pixels.data() + 700, pixels.data() + 1500);
        }
    }
    return planes;
}

void ExpectBandsOfTheWhole(Projection projection, const ImageRecord& record, const Bitmap& photo,
                           const std::string& name) {
    SCOPED_TRACE(name);
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::make_unique<Bitmap>(photo);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps};
    try {
        Render(projection, record, SizeKind::Batch, silent, context);
    } catch (const RunTimeError&) {
        EXPECT_THROW(DrawnRows(projection, record, photo).WithRows({0, 0}, [](const Bitmap&) {}),
                     RunTimeError);
        return;
    }
    const Bitmap& whole = *bitmaps.ResultBitmap;
    const DrawnRows rows(projection, record, photo);
    int first = 0;
    for (int height = 1; first < whole.Size().height; height = height * 3 + 1) {
        const LineRange band{first, std::min(first + height, whole.Size().height) - 1};
        rows.WithRows(band, [&](const Bitmap& drawn) {
            for (int row = band.first; row <= band.last; ++row) {
                ASSERT_TRUE(std::ranges::equal(drawn.ScanLine(row), whole.ScanLine(row)))
                    << "row " << row;
            }
        });
        first = band.last + 1;
    }
}

struct Change {
    const char* name;
    void (*make)(ImageRecord& record);
};

// In every projection, as it is and with all that moves or cuts the frame: the files are the same,
// thumbnails included.
TEST(DrawnRows, GiveTheFileOfTheWholeResult) {
    constexpr Change changes[] = {
        {"plain", [](ImageRecord&) {}},
        {"turned and shifted",
         [](ImageRecord& record) {
             record.RotateX = 20.0F;
             record.RotateY = -15.0F;
             record.TranslateX = 5.0F;
         }},
        {"very wide, turned upside down",  // few nodes stand for the map, the last rows come first
         [](ImageRecord& record) {
             record.OutputAOV = 165.0F;
             record.RotateZ = 180.0F;
         }},
        {"part of the effect", [](ImageRecord& record) { record.EffectVarnel = 40.0F; }},
        {"another size, cut",
         [](ImageRecord& record) {
             record.OutputWidth = 1000;
             record.OutputHeight = 1100;
             record.CropLeft = 0.1F;
             record.CropTop = 0.2F;
             record.CropWidth = 0.7F;
             record.CropHeight = 0.6F;
         }},
        {"marked", [](ImageRecord& record) { record.Marks = true; }},
    };
    ThreadRunner runner(3);
    const BitmapHandle photo = WithExif(testing::Grainy(photoSize));
    for (const Projection projection : AllProjections()) {
        for (const Change& change : changes) {
            ImageRecord record = testing::FisheyeRecord();
            record.Projection = static_cast<std::int16_t>(projection);
            change.make(record);
            const QByteArray whole = FileOfWhole(*photo, record, OutputType::Jpeg, runner);
            ASSERT_FALSE(whole.isEmpty());
            testing::KeepingSink sink;
            EXPECT_TRUE(FileOfRows(*photo, record, OutputType::Jpeg, runner, &sink).isEmpty());
            EXPECT_EQ(sink.bytes, whole);
            EXPECT_EQ(FileOfRows(*photo, record, OutputType::Jpeg, runner), whole)
                << ToText(projection).toStdString() << ", " << change.name;
            EXPECT_EQ(FileOfArrivingRows(*photo, record, runner), whole)
                << ToText(projection).toStdString() << ", " << change.name << ", arriving";
        }
    }
}

// Bands of all heights, also where rows are black, come from no radius or several radii share one.
TEST(DrawnRows, HaveTheWholeResultsPixelsInBandsOfAllHeights) {
    struct Case {
        const char* name;
        PixelSize size;
        void (*change)(ImageRecord& record);
    };
    const Case cases[] = {
        {"wide", {301, 200}, [](ImageRecord&) {}},
        {"upright", {150, 401}, [](ImageRecord&) {}},
        {"off centre", {301, 200}, [](ImageRecord& r) { r.OfsetX = 60.0F, r.OfsetY = -71.0F; }},
        {"a centre beside the photo", {120, 200}, [](ImageRecord& r) { r.OfsetX = -180.0F; }},
        {"a small circle", {301, 200}, [](ImageRecord& r) { r.Ratio = 30.0F; }},
        {"reduced", {600, 400}, [](ImageRecord& r) { r.OutputWidth = 97, r.OutputHeight = 65; }},
        {"enlarged", {120, 80}, [](ImageRecord& r) { r.OutputWidth = 900, r.OutputHeight = 600; }},
        {"one column", {1, 40}, [](ImageRecord&) {}},
    };
    for (const Case& c : cases) {
        const BitmapHandle photo = testing::Grainy(c.size);
        ImageRecord record = testing::FisheyeRecord();
        record.Landscape = c.size.width >= c.size.height;
        c.change(record);
        for (const Projection projection : AllProjections()) {
            ExpectBandsOfTheWhole(projection, record, *photo,
                                  std::string(c.name) + ", " + ToText(projection).toStdString());
        }
    }
}

// Rows of a planar photo are those of its pixels, through all kinds of engines.
TEST(DrawnRows, ReadPlanarPhotosAsTheirPixels) {
    SerialRunner runner;
    const std::shared_ptr<const PlanarPicture> planes = Planes();
    const BitmapHandle pixels = planes->Pixels();
    const Bitmap without(PixelFormat::Bgr8, photoSize, nullptr);
    for (const Projection projection : AllProjections()) {
        for (const float turn : {0.0F, 25.0F, 180.0F}) {
            ImageRecord record = testing::FisheyeRecord();
            record.Projection = static_cast<std::int16_t>(projection);
            record.RotateX = std::min(turn, 25.0F);
            if (turn > 90.0F) {  // most pixels are worked out one by one
                record.OutputAOV = 165.0F;
            }
            const DrawnRows rows(projection, record, without, {nullptr, planes});
            const DrawnRows known(projection, record, *pixels);
            const LineRange all{0, rows.WithoutPixels()->Size().height - 1};
            rows.WithRows(all, [&](const Bitmap& drawn) {
                known.WithRows(all, [&](const Bitmap& expected) {
                    EXPECT_TRUE(testing::SamePixels(&drawn, &expected))
                        << ToText(projection).toStdString() << ", " << turn;
                });
            });
        }
    }
}

// Of every type and depth that is made by rows, in the photo's samples and in others: kept and put
// into a sink, with the photo's own entries and without.
TEST(DrawnRows, GiveEveryTypesFilePieceByPiece) {
    const auto tiff = [](TiffCompression compression, int level = 0) {
        OutputEncoding encoding(OutputType::Tiff);
        encoding.compression = compression;
        encoding.level = level;
        return encoding;
    };
    OutputEncoding smallPng(OutputType::Png);
    smallPng.level = 4;
    OutputEncoding flat = tiff(TiffCompression::Lzw);
    flat.depth = OutputDepth::Eight;
    OutputEncoding flatPng(OutputType::Png);
    flatPng.depth = OutputDepth::Eight;
    const OutputEncoding encodings[] = {OutputType::Jpeg,
                                        flat,
                                        flatPng,
                                        tiff(TiffCompression::Lzw),
                                        tiff(TiffCompression::None),
                                        tiff(TiffCompression::Deflate, 6),
                                        tiff(TiffCompression::Zstd),
                                        OutputType::Png,
                                        smallPng};
    ThreadRunner runner(3);
    const ImageRecord record = testing::FisheyeRecord();
    for (const PixelFormat format : {PixelFormat::Bgr8, PixelFormat::Bgra8, PixelFormat::Bgr16,
                                     PixelFormat::Bgra16, PixelFormat::BgrFloat}) {
        const BitmapHandle photo = WithExif(testing::Deep(photoSize, format));
        photo->metadata.colourProfile = QByteArray(300, 'c');
        photo->metadata.photo.tiffEntries =
            QByteArray("\x0f\x01\x02\0\x04\0\0\0abc\0", 12);  // the camera's maker
        for (const OutputEncoding& encoding : encodings) {
            if (encoding.type == OutputType::Jpeg && HasAlpha(format)) {
                EXPECT_FALSE(IsEncodedByRows(encoding, format, photoSize));
                continue;
            }
            SCOPED_TRACE(::testing::Message()
                         << static_cast<int>(format) << ' ' << static_cast<int>(encoding.type)
                         << ' ' << ToText(encoding.compression).toStdString());
            const QByteArray whole = FileOfWhole(*photo, record, encoding, runner);
            ASSERT_FALSE(whole.isEmpty());
            EXPECT_EQ(FileOfRows(*photo, record, encoding, runner), whole);
            testing::KeepingSink sink;
            EXPECT_EQ(FileOfRows(*photo, record, encoding, runner, &sink), QByteArray());
            EXPECT_EQ(sink.bytes, whole);
            EXPECT_EQ(sink.begun, 1);
            EXPECT_GT(sink.pieces, 5);
        }
    }
}

TEST(DrawnRows, EndWhereTheirFileHasNoPlace) {
    ThreadRunner runner(3);
    const BitmapHandle photo = testing::Grainy(photoSize);
    for (const OutputType type : {OutputType::Tiff, OutputType::Png, OutputType::Jpeg}) {
        for (const qint64 room : {qint64{3}, qint64{100'000}}) {
            testing::KeepingSink sink(room);
            DrawnRows rows(Projection::Varnel, testing::FisheyeRecord(), *photo);
            const EncodedBitmap file =
                EncodeBitmap(type, rows.WithoutPixels().get(),
                             {.runner = &runner, .rows = &rows, .sink = &sink});
            EXPECT_EQ(file.reason, Reason(ReasonCode::NotRegular));
            EXPECT_EQ(sink.begun, 1);  // not tried again without metadata
        }
        testing::KeepingSink sink;
        const EncodedBitmap large =
            EncodeBitmap(type, photo.get(), {.largest = 100'000, .sink = &sink});
        EXPECT_EQ(large.reason, Reason(ReasonCode::FileTooLarge, qint64{100'000}));
    }
}

TEST(DrawnRows, AreForWhatIsBlackBesideThePhotoOnly) {
    ImageRecord record = testing::FisheyeRecord();
    EXPECT_TRUE(DrawnRows::CanDraw(record));
    record.Outside.kind = OutsideFill::Kind::Colour;
    EXPECT_FALSE(DrawnRows::CanDraw(record));
    record = testing::FisheyeRecord();
    record.Sampling = SamplingKind::Fine;
    EXPECT_FALSE(DrawnRows::CanDraw(record));
}

// As the conversion of the whole would, and before anything is drawn.
TEST(DrawnRows, RefuseImpossibleNumbersAtOnce) {
    ImageRecord record = testing::FisheyeRecord();
    record.Projection = static_cast<std::int16_t>(Projection::Rectilinear);
    record.SensorWidth = 0.0F;
    const BitmapHandle photo = WithExif(testing::Grainy(photoSize));
    EXPECT_THROW(DrawnRows(Projection::Rectilinear, record, *photo), std::exception);
}

}  // namespace
}  // namespace varnel
