// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/picture_reader.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include "base/error_text.h"
#include "remap/encode/output_format.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::LoadPicture;
using testing::PictureFolder;
using testing::Text;

PixelSize SizeAt(const QString& path) {
    return ReadPicture(testing::Reader(), {path, ReadKind::Size, {}}).size;
}

TEST(PictureReader, EveryTypeComesAs24BitsByItsContentsWhateverItsName) {
    const PictureFolder folder;
    for (const OutputType type : AllOutputTypes()) {
        const QString path = folder.Picture(Text("Küste %1.jpg").arg(ToText(type)), type);
        const LoadedPicture picture = LoadPicture(path);
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << ErrorText(picture.reason).toStdString();
        EXPECT_EQ(picture.bitmap->Format(), PixelFormat::Bgr8);
        EXPECT_EQ(SizeOf(picture.bitmap.get()).width, 60);
        EXPECT_EQ(SizeAt(path).height, 40);
        const LoadedPicture small =
            ReadPicture(testing::Reader(), {path, ReadKind::Small, {30, 10}});
        EXPECT_EQ(SizeOf(small.bitmap.get()).width, 15);
        if (FormatOf(type).holds.leastBits == 8) {  // light is brought into the range
            EXPECT_NEAR(testing::PixelAt(picture.bitmap.get(), 30, 25).green, 25, 4);
        }
    }
}

TEST(PictureReader, WhatIsNoPictureIsRefusedWithItsReason) {
    const PictureFolder folder;
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.Path(Text("pipe.jpg"))).constData(), 0600), 0);
    QFile::link(folder.Path(Text("gone")), folder.Path(Text("link.jpg")));
    QFile::link(folder.Path(Text("loop.jpg")), folder.Path(Text("loop.jpg")));
    const LibraryBitmap wide(FreeImage_Allocate(32768, 1, 8));
    FreeImage_Save(FIF_PNG, wide.get(),
                   QFile::encodeName(folder.Path(Text("wide.png"))).constData());
    folder.Text(Text("text.jpg"));
    folder.Empty(Text("empty.jpg"));
    const std::pair<const char*, const char*> rows[] = {
        {"none.jpg", "there is no such file"},
        {"", "this is a folder, not a picture"},
        {"pipe.jpg", "this is no regular file"},
        {"link.jpg", "the link leads nowhere"},
        {"loop.jpg", "the link leads nowhere"},
        {"empty.jpg", "the file is empty"},
        {"text.jpg", "this is not a picture of a known type"},
        {"wide.png", "too large: 32768 x 1 pixels, a side may have 32767"}};
    for (const auto& [name, reason] : rows) {
        for (const ReadKind kind : {ReadKind::Whole, ReadKind::Size, ReadKind::Small}) {
            const LoadedPicture picture =
                ReadPicture(testing::Reader(), {folder.Path(Text(name)), kind, {108, 72}});
            EXPECT_EQ(picture.outcome, LoadOutcome::NotLoaded) << name;
            EXPECT_EQ(ErrorText(picture.reason).toStdString(), reason);
            EXPECT_FALSE(picture.bitmap);
        }
    }
}

TEST(PictureReader, AFileWithoutPermissionSaysSo) {
    const PictureFolder folder;
    const QString path = folder.Picture(Text("secret.png"), OutputType::Png);
    QFile::setPermissions(path, {});
    QFile::setPermissions(folder.Path({}), QFile::Permissions(0x7755));
    EXPECT_EXIT(
        {
            // The superuser may read everything, so become somebody else.
            if (geteuid() == 0 && setuid(65534) != 0) {
                std::_Exit(2);
            }
            const Reason reason = ReadPicture(*NewPictureReader(), {path}).reason;
            std::_Exit(reason.Is(ReasonCode::NoPermissionToRead) ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(PhotoLoader, TurnsPhotosAsTheSettingsSayAtThatMomentAndTheirCentreWithThem) {
    const PictureFolder folder;
    const QString path = folder.Picture(Text("a.png"), OutputType::Png);
    QByteArray file = testing::Contents(path);
    constexpr qsizetype afterHeader = 33;
    testing::TiffBytes exif(testing::Order::Big);
    const std::uint32_t place = exif.Directory({{274, testing::TiffType::Short, {6}}});
    testing::WriteFile(path,
                       file.insert(afterHeader, testing::PngChunk("eXIf", exif.Finish(place))));
    GeneralSettings settings;
    PhotoLoader photos(testing::Reader(), nullptr, &settings);
    ImageRecord image;
    image.OfsetX = 3.0F;
    image.OfsetY = -4.0F;
    const struct {
        bool autoOrient;
        int width, orientation;
        float x, y;
    } rows[] = {
        {true, 40, 6, 3.0F, -4.0F}, {false, 60, 1, -4.0F, -3.0F}, {true, 40, 6, 3.0F, -4.0F}};
    for (const auto& row : rows) {
        settings.AutoOrient = row.autoOrient;
        const LoadedPicture whole = photos.Load(path);
        ASSERT_TRUE(whole.bitmap);
        EXPECT_EQ(SizeOf(whole.bitmap.get()).width, row.width);
        EXPECT_EQ(whole.orientation, row.orientation);
        TakeSize(*photos.Size(path), image);
        EXPECT_EQ(image.Width, row.width);
        EXPECT_EQ(image.Landscape, row.width == 60);
        EXPECT_EQ(image.Orientation, row.orientation);
        EXPECT_EQ(image.OfsetX, row.x);
        EXPECT_EQ(image.OfsetY, row.y);
    }
}

TEST(TakeSize, LandscapeIsWidthAtLeastHeight) {
    for (const auto& [width, height, landscape] :
         {std::tuple{60, 40, true}, {40, 60, false}, {50, 50, true}}) {
        ImageRecord image;
        TakeSize({{width, height}}, image);
        EXPECT_EQ(image.Width, width);
        EXPECT_EQ(image.Height, height);
        EXPECT_EQ(image.Landscape, landscape);
    }
}

}  // namespace
}  // namespace varnel
