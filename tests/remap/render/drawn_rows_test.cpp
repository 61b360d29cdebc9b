// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/drawn_rows.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstring>
#include <thread>

#include "base/thread_runner.h"
#include "remap/encode/encode_bitmap.h"
#include "remap/projection/projection_info.h"
#include "remap/render/render.h"
#include "tests/support/bitmaps.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

constexpr PixelSize photoSize{1300, 900};

// With EXIF that has room for a thumbnail, and nothing else in it.
BitmapHandle Photo() {
    constexpr std::uint32_t room = 6000;
    BitmapHandle photo = testing::Grainy(photoSize);
    ExifBlock& exif = photo->metadata.photo.exif;
    exif.bytes = QByteArray("II*\0\0\0\0\0", 8) + QByteArray(12 + room, '\0');
    exif.width = 8;
    exif.height = 12;
    exif.thumbnailLength = 16;
    exif.thumbnail = 20;
    exif.thumbnailRoom = room;
    return photo;
}

QByteArray FileOfWhole(const Bitmap& photo, const ImageRecord& record, BlockRunner& runner) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = std::make_unique<Bitmap>(photo);
    SilentProgress silent;
    RenderContext context{.bitmaps = bitmaps, .runner = &runner, .keepsTransparency = true};
    Render(ProjectionFromIndex(record.Projection), record, SizeKind::Batch, silent, context);
    return EncodeBitmap(OutputType::Jpeg, bitmaps.ResultBitmap.get(), {.runner = &runner}).bytes;
}

QByteArray FileOfRows(const Bitmap& photo, const ImageRecord& record, BlockRunner& runner,
                      const std::shared_ptr<const ArrivingRows>& arriving = nullptr) {
    DrawnRows rows(ProjectionFromIndex(record.Projection), record, photo, arriving);
    const BitmapHandle frame = rows.WithoutPixels();
    EXPECT_TRUE(IsEncodedByRows(OutputType::Jpeg, frame->Format(), photoSize));
    QByteArray file =
        EncodeBitmap(OutputType::Jpeg, frame.get(), {.runner = &runner, .rows = &rows}).bytes;
    EXPECT_EQ(rows.Done(), frame->Size().height);
    return file;
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
    return FileOfRows(*late, record, runner, arriving);
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
    const BitmapHandle photo = Photo();
    for (const Projection projection : AllProjections()) {
        for (const Change& change : changes) {
            ImageRecord record = testing::FisheyeRecord();
            record.Projection = static_cast<std::int16_t>(projection);
            change.make(record);
            const QByteArray whole = FileOfWhole(*photo, record, runner);
            ASSERT_FALSE(whole.isEmpty());
            EXPECT_EQ(FileOfRows(*photo, record, runner), whole)
                << ToText(projection).toStdString() << ", " << change.name;
            EXPECT_EQ(FileOfArrivingRows(*photo, record, runner), whole)
                << ToText(projection).toStdString() << ", " << change.name << ", arriving";
        }
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
    const BitmapHandle photo = Photo();
    EXPECT_THROW(DrawnRows(Projection::Rectilinear, record, *photo), std::exception);
}

}  // namespace
}  // namespace varnel
