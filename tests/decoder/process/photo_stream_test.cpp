// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <fcntl.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "decoder/process/photo_stream.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

// Both ways, in an order that has each follow a longer one, a shorter one and one in memory.
TEST(PhotoStream, ReadsFilesOfAnyLengthFromAnywhere) {
    constexpr auto most = static_cast<qsizetype>(PhotoStream::mostInMemory);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("photo"));
    PhotoStream stream;
    for (const qsizetype length : {most, most + 1, qsizetype{1}, qsizetype{5000}, qsizetype{0}}) {
        QByteArray bytes(length, '-');
        for (qsizetype n = 0; n < length; n += 7) {
            bytes[n] = static_cast<char>(n / 7);
        }
        testing::WriteFile(path, bytes);
        Descriptor file(open(QFile::encodeName(path).constData(), O_RDONLY));
        ASSERT_EQ(lseek(file.Get(), length / 2, SEEK_SET), length / 2);
        const FileHandle photo = stream.Open(std::move(file));
        ASSERT_TRUE(photo);
        const PictureFile picture(photo.get());
        EXPECT_EQ(picture.Length(), length);
        EXPECT_EQ(picture.Read(0, length + 1), bytes) << length;
        EXPECT_EQ(picture.Read(length / 3, 100), bytes.mid(length / 3, 100)) << length;
        EXPECT_EQ(picture.Read(length, 1), QByteArray());
    }
}

}  // namespace
}  // namespace varnel
