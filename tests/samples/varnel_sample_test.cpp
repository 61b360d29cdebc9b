// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

#include "remap/image/freeimage_bitmap.h"

namespace varnel {
namespace {

struct Outcome {
    int exitCode;
    QString out;
    QString err;
};

Outcome RunSample(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(VARNEL_SAMPLE), arguments);
    process.waitForFinished(120000);
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

PixelSize SizeOfFile(const QString& fileName) {
    const LibraryBitmap picture(FreeImage_Load(FIF_JPEG, fileName.toLocal8Bit().constData(), 0));
    return picture ? SizeOf(picture.get()) : PixelSize{};
}

TEST(VarnelSample, WritesTheFourFramesAndNamesThem) {
    const QTemporaryDir folder;
    const Outcome outcome =
        RunSample({folder.path(), QStringLiteral("--width"), QStringLiteral("90")});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.err.toStdString();
    // 90 x 23.9 / 35.8 = 60.1 and 90 x 15.8 / 23.6 = 60.3
    const struct {
        QString name;
        PixelSize size;
    } rows[] = {{QStringLiteral("sample-circular.jpg"), {90, 60}},
                {QStringLiteral("sample-circular-upright.jpg"), {60, 90}},
                {QStringLiteral("sample-fullframe.jpg"), {90, 60}},
                {QStringLiteral("sample-fullframe-upright.jpg"), {60, 90}}};
    QString names;
    for (const auto& row : rows) {
        const QString fileName = folder.filePath(row.name);
        names += fileName + u'\n';
        EXPECT_EQ(SizeOfFile(fileName).width, row.size.width) << row.name.toStdString();
        EXPECT_EQ(SizeOfFile(fileName).height, row.size.height) << row.name.toStdString();
    }
    EXPECT_EQ(outcome.out, names);
}

TEST(VarnelSample, WritesOneThatIsAskedFor) {
    const QTemporaryDir folder;
    const QString name = QStringLiteral("sample-fullframe.jpg");
    const Outcome outcome = RunSample({folder.path(), QStringLiteral("--only"), name,
                                       QStringLiteral("--width"), QStringLiteral("90")});
    EXPECT_EQ(outcome.exitCode, 0);
    EXPECT_EQ(outcome.out, folder.filePath(name) + u'\n');
}

TEST(VarnelSample, WrongArgumentsGiveOneLineAndExitTwo) {
    const QString folder = QDir::tempPath();
    const QStringList rows[] = {{},
                                {folder, folder},
                                {folder, QStringLiteral("--width")},
                                {folder, QStringLiteral("--width"), QStringLiteral("15")},
                                {folder, QStringLiteral("--width"), QStringLiteral("32768")},
                                {folder, QStringLiteral("--width"), QStringLiteral("90x")},
                                {folder, QStringLiteral("--only"), QStringLiteral("sample.jpg")},
                                {folder, QStringLiteral("--wide")},
                                {QString()}};
    for (const QStringList& arguments : rows) {
        const Outcome outcome = RunSample(arguments);
        EXPECT_EQ(outcome.exitCode, 2) << arguments.join(u' ').toStdString();
        EXPECT_EQ(outcome.err.count(u'\n'), 1);
        EXPECT_EQ(outcome.out, QString());
    }
}

TEST(VarnelSample, AFolderThatIsNotThereIsNamedAndExitsOne) {
    const QTemporaryDir folder;
    const Outcome outcome = RunSample(
        {folder.filePath(QStringLiteral("none")), QStringLiteral("--width"), QStringLiteral("16")});
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.err.count(u'\n'), 4);
    EXPECT_TRUE(outcome.err.contains(folder.filePath(QStringLiteral("none/sample-circular.jpg"))));
    EXPECT_EQ(outcome.out, QString());
}

}  // namespace
}  // namespace varnel
