// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/small_picture.h"

#include <gtest/gtest.h>

#include <QFile>

#include "tests/support/files.h"

namespace varnel {
namespace {

using testing::PictureFolder;

TEST(SmallPicture, FitsTheBoxWithItsLowerRowsBelow) {
    const PictureFolder folder;
    const struct {
        PixelSize picture, expected;
    } cases[] = {{{1080, 720}, {108, 72}}, {{720, 1080}, {48, 72}}, {{60, 40}, {60, 40}}};
    for (const auto& c : cases) {
        const BitmapHandle halves = testing::Painted(c.picture, [&](int, int y) {
            return y < c.picture.height / 2 ? RGBQUAD{250, 0, 0, 0} : RGBQUAD{0, 0, 250, 0};
        });
        for (const FREE_IMAGE_FORMAT format : {FIF_JPEG, FIF_PNG}) {
            const QString path = folder.Path(QStringLiteral("halves"));
            SaveBitmap(format, halves.get(), path, 0);
            const BitmapHandle small = SmallPicture(path, {108, 72});
            ASSERT_TRUE(small);
            EXPECT_EQ(SizeOf(small.get()).width, c.expected.width);
            EXPECT_EQ(SizeOf(small.get()).height, c.expected.height);
            EXPECT_EQ(FreeImage_GetBPP(small.get()), 24U);
            EXPECT_GT(testing::PixelAt(small.get(), 5, 5).rgbBlue, 200);
            EXPECT_GT(testing::PixelAt(small.get(), 5, c.expected.height - 5).rgbRed, 200);
        }
    }
}

TEST(SmallPicture, IsEmptyForWhatIsNoPictureOrTooLarge) {
    const PictureFolder folder;
    const BitmapHandle large(FreeImage_Allocate(8000, 8000, 1));
    const QString largePath = folder.Path(QStringLiteral("large.png"));
    FreeImage_Save(FIF_PNG, large.get(), QFile::encodeName(largePath).constData(), 0);
    for (const QString& path :
         {folder.Text(QStringLiteral("text.jpg")), folder.Empty(QStringLiteral("empty.png")),
          folder.Path(QStringLiteral("none.jpg")), largePath}) {
        EXPECT_FALSE(SmallPicture(path, {108, 72})) << path.toStdString();
    }
}

}  // namespace
}  // namespace varnel
