// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The real program, which loads the image library only when it needs it, beside the same code
// linked with the library.

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <sstream>

#include "cli/convert.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::Text;

QStringList Arguments(const QString& photo, const QString& result, const QStringList& more) {
    return QStringList{Text("--camera=Canon/EOS 5D"),
                       Text("--lens=Sigma/EX 8 mm f:3.5"),
                       Text("--projection=rectilinear"),
                       Text("--force"),
                       Text("--output"),
                       result,
                       photo} +
           more;
}

// Returns what it says on stderr.
QString Said(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60'000));
    return QString::fromUtf8(process.readAllStandardError());
}

TEST(LateLibrary, FilesAreTheSameAsOfProgramsThatAreLinkedWithIt) {
    const testing::PictureFolder folder;
    const QString photo = folder.Picture(Text("photo.jpg"), OutputType::Jpeg, {90, 60});
    const struct {
        const char* ending;
        QStringList more;
    } rows[] = {{"bmp", {}},
                {"exr", {}},
                {"hdr", {}},
                {"png", {Text("--preview=40x40")}},
                {"jpg", {Text("--preview=40x40"), Text("--no-metadata")}}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.ending);
        const QString result = folder.Path(Text("result.") + Text(row.ending));
        MemoryStore store;
        std::ostringstream out, err;
        const QStringList arguments = Arguments(photo, result, row.more);
        ASSERT_EQ(
            RunConvert(QStringList{Text("varnel-convert")} + arguments, store, {out, err, false}),
            exitAllWritten)
            << err.str();
        const QByteArray linked = Contents(result);
        QFile::remove(result);
        Said(Text(VARNEL_CONVERT), arguments);
        EXPECT_TRUE(Contents(result) == linked && !linked.isEmpty());
    }
}

TEST(LateLibrary, AnInstallationWithoutItSaysSoAndConvertsTheRest) {
    const testing::PictureFolder folder;
    const QString photo = folder.Picture(Text("photo.jpg"), OutputType::Jpeg, {90, 60});
    for (const char* name : {"varnel-convert", "varnel-convert.so", "varnel-jpeg-decoder"}) {
        const QFileInfo program(QFileInfo(Text(VARNEL_CONVERT)).dir().filePath(Text(name)));
        ASSERT_TRUE(QFile::copy(program.filePath(), folder.Path(Text(name))));
    }
    const QString program = folder.Path(Text("varnel-convert"));
    const QString bmp = folder.Path(Text("result.bmp"));
    const QString jpeg = folder.Path(Text("result.jpg"));
    EXPECT_TRUE(Said(program, Arguments(photo, bmp, {})).contains(Text("varnel-picture-library")));
    EXPECT_FALSE(QFileInfo::exists(bmp));
    EXPECT_TRUE(Said(program, Arguments(photo, jpeg, {})).isEmpty());
    EXPECT_TRUE(QFileInfo::exists(jpeg));
}

TEST(LateLibrary, AProgramWithoutItsModuleSaysSo) {
    const testing::PictureFolder folder;
    const QString program = folder.Path(Text("varnel-convert"));
    ASSERT_TRUE(QFile::copy(Text(VARNEL_CONVERT), program));
    QProcess process;
    process.start(program, {Text("photo.jpg")});
    ASSERT_TRUE(process.waitForFinished(60'000));
    EXPECT_EQ(process.exitCode(), exitUsage);
    EXPECT_TRUE(process.readAllStandardError().startsWith("varnel-convert: "));
}

}  // namespace
}  // namespace varnel
