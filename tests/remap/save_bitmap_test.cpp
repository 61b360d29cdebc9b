// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/save_bitmap.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/support/bitmaps.h"
#include "tests/support/limits.h"

namespace varnel {
namespace {

QByteArray Contents(const QString& name) {
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SaveBitmap, EveryTypeReadsBackAndReplacesAnOlderFile) {
    const QTemporaryDir folder;
    const BitmapHandle bitmap = testing::PositionPicture({40, 30});
    for (const FREE_IMAGE_FORMAT format : {FIF_TIFF, FIF_JPEG, FIF_BMP, FIF_PNG}) {
        const QString name = folder.filePath(QStringLiteral("ä %1.x").arg(format));
        QFile older(name);
        ASSERT_TRUE(older.open(QIODevice::WriteOnly));
        older.write("older");
        older.close();
        const SaveResult saved = SaveBitmap(format, bitmap.get(), name, 0);
        EXPECT_TRUE(saved.ok) << saved.reason.toStdString();
        const QByteArray path = QFile::encodeName(name);
        EXPECT_EQ(FreeImage_GetFileType(path.constData(), 0), format);
        const BitmapHandle read(FreeImage_Load(format, path.constData(), 0));
        ASSERT_TRUE(read);
        EXPECT_NEAR(testing::PixelAt(read.get(), 25, 11).rgbGreen, 11, 3);
    }
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 4);
}

TEST(SaveBitmap, AFailureGivesItsReasonAndLeavesNothingBehind) {
    const QTemporaryDir folder;
    const BitmapHandle bitmap = testing::PositionPicture({4, 3});
    const SaveResult missing =
        SaveBitmap(FIF_PNG, bitmap.get(), folder.filePath(QStringLiteral("no/such.png")), 0);
    EXPECT_FALSE(missing.ok);
    EXPECT_FALSE(missing.reason.isEmpty());
    EXPECT_FALSE(SaveBitmap(FIF_PNG, bitmap.get(), folder.path(), 0).ok);  // a folder
    EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files).isEmpty());
}

TEST(SaveBitmap, ADeviceThatIsFullIsNoSuccessAndKeepsTheOlderFile) {
    // A limit on the file size stands in for a full disk.
    const QTemporaryDir folder;
    const QString name = folder.filePath(QStringLiteral("picture.bmp"));
    const BitmapHandle bitmap = testing::PositionPicture({400, 300});
    ASSERT_TRUE(SaveBitmap(FIF_BMP, testing::PositionPicture({4, 4}).get(), name, 0).ok);
    const QByteArray before = Contents(name);
    EXPECT_EXIT(
        {
            testing::LimitFileSize(10000);
            const SaveResult saved = SaveBitmap(FIF_BMP, bitmap.get(), name, 0);
            std::_Exit(saved.ok || saved.reason.isEmpty() ? 1 : 0);
        },
        ::testing::ExitedWithCode(0), "");
    EXPECT_EQ(Contents(name), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

}  // namespace
}  // namespace varnel
