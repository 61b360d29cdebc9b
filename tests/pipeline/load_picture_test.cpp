// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/load_picture.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>

#include "pipeline/picture_size.h"
#include "tests/support/files.h"

namespace varnel {
namespace {

using testing::PictureFolder;

QString Save(const PictureFolder& folder, const QString& name, FREE_IMAGE_FORMAT format,
             FIBITMAP* bitmap) {
    const QString path = folder.Path(name);
    FreeImage_Save(format, bitmap, QFile::encodeName(path).constData(), 0);
    return path;
}

TEST(LoadPicture, EveryTypeComesAs24BitsByItsContentsWhateverItsName) {
    const PictureFolder folder;
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_JPEG, FIF_BMP, FIF_PNG}) {
        const LoadedPicture picture =
            LoadPicture(folder.Picture(QStringLiteral("Küste %1.jpg").arg(format), format));
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded) << picture.reason.toStdString();
        EXPECT_EQ(FreeImage_GetBPP(picture.bitmap.get()), 24U);
        EXPECT_EQ(SizeOf(picture.bitmap.get()).width, 60);
        EXPECT_EQ(ReadPictureSize(folder.Path(QStringLiteral("Küste %1.jpg").arg(format)))->height,
                  40);
        EXPECT_NEAR(testing::PixelAt(picture.bitmap.get(), 30, 25).rgbGreen, 25, 4);
    }
}

TEST(LoadPicture, OtherDepthsAreConverted) {
    const PictureFolder folder;
    struct {
        FREE_IMAGE_TYPE type;
        int depth;
    } const rows[] = {{FIT_BITMAP, 8}, {FIT_BITMAP, 32}, {FIT_UINT16, 16},
                      {FIT_RGB16, 48}, {FIT_RGBA16, 64}, {FIT_FLOAT, 32}};
    for (const auto& row : rows) {
        const BitmapHandle bitmap(FreeImage_AllocateT(row.type, 20, 30, row.depth));
        ASSERT_TRUE(bitmap);
        const QString path = Save(folder, QStringLiteral("%1-%2.tif").arg(row.type).arg(row.depth),
                                  FIF_TIFF, bitmap.get());
        const LoadedPicture picture = LoadPicture(path);
        ASSERT_EQ(picture.outcome, LoadOutcome::Loaded)
            << path.toStdString() << ": " << picture.reason.toStdString();
        EXPECT_EQ(FreeImage_GetBPP(picture.bitmap.get()), 24U);
        EXPECT_EQ(SizeOf(picture.bitmap.get()).height, 30);
    }
}

TEST(LoadPicture, WhatIsNoPictureIsRefusedWithItsReason) {
    const PictureFolder folder;
    ASSERT_EQ(mkfifo(QFile::encodeName(folder.Path(QStringLiteral("pipe.jpg"))).constData(), 0600),
              0);
    QFile::link(folder.Path(QStringLiteral("gone")), folder.Path(QStringLiteral("link.jpg")));
    const BitmapHandle wide(FreeImage_Allocate(32768, 1, 8));
    struct {
        QString path;
        const char* reason;
    } const rows[] = {
        {folder.Path(QStringLiteral("none.jpg")), "there is no such file"},
        {folder.Path(QString()), "this is a folder, not a picture"},
        {folder.Path(QStringLiteral("pipe.jpg")), "this is no regular file"},
        {folder.Path(QStringLiteral("link.jpg")), "the link leads nowhere"},
        {folder.Empty(QStringLiteral("empty.jpg")), "the file is empty"},
        {folder.Text(QStringLiteral("text.jpg")), "this is not a picture of a known type"},
        {Save(folder, QStringLiteral("wide.png"), FIF_PNG, wide.get()),
         "too large: 32768 x 1 pixels, a side may have 32767"},
    };
    for (const auto& row : rows) {
        const LoadedPicture picture = LoadPicture(row.path);
        EXPECT_EQ(picture.outcome, LoadOutcome::NotLoaded) << row.path.toStdString();
        EXPECT_EQ(picture.reason.toStdString(), row.reason);
        EXPECT_FALSE(picture.bitmap);
        EXPECT_FALSE(ReadPictureSize(row.path));
    }
}

TEST(LoadPicture, AFileWithoutPermissionSaysSo) {
    const PictureFolder folder;
    const QString path = folder.Picture(QStringLiteral("secret.png"), FIF_PNG);
    QFile::setPermissions(path, {});
    QFile::setPermissions(folder.Path({}), QFile::Permissions(0x7755));
    EXPECT_EXIT(
        {
            // The superuser may read everything, so become somebody else.
            if (geteuid() == 0 && setuid(65534) != 0) {
                std::_Exit(2);
            }
            const QString reason = LoadPicture(path).reason;
            std::_Exit(reason == QStringLiteral("no permission to read it") ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

TEST(LoadPicture, CutFilesNeverPassAsSound) {
    const PictureFolder folder;
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_JPEG, FIF_BMP, FIF_PNG}) {
        const QString whole = folder.Picture(QStringLiteral("whole"), format, {200, 150});
        for (const int percent : {1, 10, 30, 50, 70, 90, 99}) {
            const LoadedPicture picture =
                LoadPicture(folder.Cut(QStringLiteral("cut"), whole, percent));
            EXPECT_NE(picture.outcome, LoadOutcome::Loaded) << format << " at " << percent;
            EXPECT_FALSE(picture.reason.isEmpty());
        }
    }
}

TEST(TakeSize, LandscapeIsWidthAtLeastHeight) {
    for (const auto& [width, height, landscape] :
         {std::tuple{60, 40, true}, {40, 60, false}, {50, 50, true}}) {
        ImageRecord image;
        TakeSize({width, height}, image);
        EXPECT_EQ(image.Width, width);
        EXPECT_EQ(image.Height, height);
        EXPECT_EQ(image.Landscape, landscape);
    }
}

}  // namespace
}  // namespace varnel
