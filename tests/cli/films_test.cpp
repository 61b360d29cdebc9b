// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films on the command line, by the real program.

#include <gtest/gtest.h>

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QThread>
#include <csignal>

#include "tests/film/reading/films.h"
#include "tests/film/support/films.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

using testing::NamesIn;
using testing::Probe;
using testing::Words;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

class Films : public ::testing::Test {
  protected:
    Films() { qputenv("XDG_CONFIG_HOME", folder_.Path("settings").toUtf8()); }
    static QStringList Gear() {
        return {Q("--camera=Canon/EOS 5D"), Q("--lens=Sigma/EX 8 mm f:3.5")};
    }
    testing::Ran Run(const QByteArray& words, const QStringList& files = {}) {
        return testing::RunProgram(Q(VARNEL_CONVERT), Gear() + Words(words) + files);
    }
    QString Film(const char* name, const char* seconds = "1") {
        return folder_.Make(name, QByteArray("-f lavfi -i testsrc2=s=128x96:r=25:d=") + seconds +
                                      " -f lavfi -i sine=d=" + seconds +
                                      " -pix_fmt yuv420p -preset ultrafast");
    }

    testing::FilmFolder folder_;
};

TEST_F(Films, AreToldFromPhotosAndNamedAsThey) {
    const QString film = Film("clip.mp4");
    ASSERT_TRUE(QFile::rename(Film("other.mkv"), folder_.Path("clip.jpg")));
    const testing::Ran ran =
        Run("--json --speed ultrafast --projection rectilinear,stereographic --size 64x48",
            {film, folder_.Path("clip.jpg")});
    EXPECT_EQ(ran.exitCode, 1) << "both clips have results of the same name";
    const QList<QByteArray> lines = ran.out.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 4);
    const QJsonObject line = QJsonDocument::fromJson(lines.first()).object();
    EXPECT_EQ(line[u"result"].toString(), folder_.Path("clip.Rectilinear.mp4"));
    EXPECT_EQ(line[u"frames"].toInt(), 25);
    EXPECT_EQ(line[u"width"].toInt(), 64);
    EXPECT_EQ(line[u"status"].toString(), Q("converted"));
    EXPECT_EQ(Probe(folder_.Path("clip.Stereographic.mp4"), "stream=width,height,nb_frames"),
              "64,48,25");
    const testing::Ran again = Run("--speed ultrafast --projection rectilinear", {film});
    EXPECT_EQ(again.exitCode, 1);
    EXPECT_TRUE(again.err.contains("exists")) << again.err.toStdString();
}

TEST_F(Films, AreSharedOutAndHaveTheirHashes) {
    const QString film = Film("clip.mp4", "0.2");
    ASSERT_TRUE(QFile::rename(Film("other.mp4", "0.2"), folder_.Path("clip.mov")));
    const QStringList films{film, Film("last.mp4", "0.2"), folder_.Path("clip.mov")};
    const testing::Ran second = Run("--json --speed ultrafast --type mp4 --shard 2/2", films);
    EXPECT_EQ(second.exitCode, 0) << second.err.toStdString();
    const QJsonObject line = QJsonDocument::fromJson(second.out.trimmed()).object();
    EXPECT_EQ(line[u"result"].toString(), folder_.Path("last.Varnel.mp4"));
    const QByteArray hash = QCryptographicHash::hash(
        testing::Contents(folder_.Path("last.Varnel.mp4")), QCryptographicHash::Sha256);
    EXPECT_EQ(line[u"sha256"].toString().toLatin1(), hash.toHex());
    // The third film's result has the name of the first one's, which another share converts.
    const testing::Ran third = Run("--speed ultrafast --type mp4 --shard 3/3", films);
    EXPECT_EQ(third.exitCode, 1);
    EXPECT_TRUE(third.err.contains("clip.mp4 of this command has the same"))
        << third.err.toStdString();
}

TEST_F(Films, NamesOfOtherEndingsAreCutAtTheDot) {
    for (const auto& [film, result] : {std::pair{"clip.webm", "clip.Varnel.mkv"},
                                       {"part.ts", "part.Varnel.mp4"},
                                       {"plain", "plain.Varnel.mp4"}}) {
        ASSERT_TRUE(QFile::rename(Film("made.mkv", "0.2"), folder_.Path(film)));
        EXPECT_EQ(Run("--speed ultrafast", {folder_.Path(film)}).out.trimmed(),
                  folder_.Path(result).toUtf8());
    }
}

TEST_F(Films, EachFrameIsAsAPictureOfItBecomes) {
    const QString film = folder_.Make(
        "film.mkv",
        "-f lavfi -i testsrc2=s=160x120:r=25:d=0.4,eq=saturation=0.3 -pix_fmt yuv444p -c:v ffv1");
    const QByteArray view = "--projection rectilinear --output-aov 100 ";
    ASSERT_EQ(Run(view + "--codec ffv1 --output", {folder_.Path("out.mkv"), film}).exitCode, 0);
    for (const char* const time : {"0", "0.2"}) {
        const QString picture = folder_.Path("frame.png");
        const QString drawn = folder_.Path("drawn.png");
        const QString plain = folder_.Path("plain.png");
        ASSERT_EQ(Run(view + "--force --frame " + time + " --output", {picture, film}).exitCode, 0);
        // The film's own frame, made a picture by the same conversion of colours.
        ASSERT_EQ(
            testing::RunProgram(Q("ffmpeg"), Words("-v error -y -ss") + Words(time) + Words("-i") +
                                                 QStringList{folder_.Path("out.mkv")} +
                                                 Words("-frames:v 1 -pix_fmt gray -vf "
                                                       "format=yuv444p,extractplanes=y") +
                                                 QStringList{drawn})
                .exitCode,
            0);
        const QImage frame(picture);
        const QImage luma(drawn);
        ASSERT_EQ(frame.size(), luma.size());
        int worst = 0;
        for (int y = 0; y < frame.height(); ++y) {
            for (int x = 0; x < frame.width(); ++x) {
                const QRgb c = frame.pixel(x, y);
                // BT.601, as films of this size are.
                const double expected =
                    16.0 + (65.481 * qRed(c) + 128.553 * qGreen(c) + 24.966 * qBlue(c)) / 255.0;
                worst = std::max(worst, std::abs(qRed(luma.pixel(x, y)) -
                                                 static_cast<int>(std::lround(expected))));
            }
        }
        EXPECT_LE(worst, 1) << time;
    }
}

TEST_F(Films, StillsAndMorphsBecomeOne) {
    QStringList photos;
    for (const char* const name : {"a.png", "b.png", "c.png"}) {
        photos.append(folder_.Make(name, "-f lavfi -i testsrc2=s=96x64 -frames:v 1"));
    }
    const QString film = folder_.Path("film.mkv");
    EXPECT_EQ(Run("--fps 30000/1001 --film", QStringList{film} + photos).exitCode, 0);
    EXPECT_EQ(Probe(film, "stream=r_frame_rate,width,height"), "96,64,30000/1001");
    EXPECT_EQ(testing::WarningsOn(film), "");
    EXPECT_EQ(Run("--force --fps 10 --projection rectilinear --morph 12 --to RotateY=20 --film",
                  {film, photos.first()})
                  .exitCode,
              0);
    EXPECT_EQ(Probe(film, "frame=pts_time").substr(0, 17), "0.000000 0.100000");
    photos.append(folder_.Make("d.png", "-f lavfi -i testsrc2=s=64x64 -frames:v 1"));
    const testing::Ran odd = Run("--film", QStringList{folder_.Path("odd.mp4")} + photos);
    EXPECT_EQ(odd.exitCode, 1);
    EXPECT_TRUE(odd.err.contains("64 x 64")) << odd.err.toStdString();
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("odd.mp4")));
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("odd.mp4.part")));
}

TEST_F(Films, StoppedBatchesAreTakenUp) {
    const QStringList films{Film("a.mp4", "3"), Film("b.mp4", "3"), Film("c.mp4", "3")};
    QProcess program;
    program.start(Q(VARNEL_CONVERT), Gear() + Words("--speed slow") + films);
    QElapsedTimer clock;
    clock.start();
    while (!QFileInfo::exists(folder_.Path("b.Varnel.mp4.part")) && clock.elapsed() < 60'000) {
        QThread::msleep(5);
    }
    ::kill(static_cast<pid_t>(program.processId()), SIGINT);
    program.waitForFinished(60'000);
    EXPECT_NE(program.exitStatus() == QProcess::NormalExit ? program.exitCode() : 130, 0);
    EXPECT_TRUE(QFileInfo::exists(folder_.Path("a.Varnel.mp4")));
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("b.Varnel.mp4")));
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("b.Varnel.mp4.part")));
    EXPECT_EQ(Run("--speed ultrafast --skip-existing", films).exitCode, 0);
    for (const char* const name : {"a.Varnel.mp4", "b.Varnel.mp4", "c.Varnel.mp4"}) {
        EXPECT_EQ(testing::WarningsOn(folder_.Path(name)), "") << name;
        EXPECT_EQ(Probe(folder_.Path(name), "stream=nb_frames"), "75");
    }
}

TEST_F(Films, WhatIsWrongIsNamedAndTheOthersGoOn) {
    const QString film = Film("clip.mp4", "0.4");
    testing::WriteFile(folder_.Path("keys.json"), R"({"keys":[{"time":-1,"set":{}}]})");
    const QString sound = folder_.Make("sound.mp4", "-f lavfi -i sine=d=1");
    const struct {
        QByteArray words;
        QStringList files;
        int exitCode;
        const char* said;
    } rows[] = {
        {"--codec prores", {film}, 1, "mp4 files cannot hold prores"},
        {"--crf 64", {film}, 2, "--crf needs a whole number from 0 to 63"},
        {"--codec mpeg2", {film}, 2, "--codec needs h264"},
        {"--from-time 1:2:3:4", {film}, 2, "--from-time needs a time"},
        {"--from-time 3 --to-time 0:02", {film}, 2, "--to-time has to be behind"},
        {"--from-time 3", {film}, 1, "no picture from 3.000"},
        {"--keys", {folder_.Path("keys.json"), film}, 2, "keys.json: "},
        {"--fps 25", {film}, 2, "--fps goes with --film"},
        {"--morph 5", {film}, 2, "--keys FILE moves"},
        {"--film", {folder_.Path("x.mp4"), film}, 2, "leave the films out"},
        {"--output", {folder_.Path("x.png"), film}, 2, "films are written as .mp4"},
        {"--force --speed ultrafast", {sound, film}, 1, "no video stream"},
    };
    for (const auto& row : rows) {
        const testing::Ran ran = Run(row.words, row.files);
        EXPECT_EQ(ran.exitCode, row.exitCode) << row.words.toStdString() << ran.err.toStdString();
        EXPECT_TRUE(ran.err.contains(row.said))
            << row.words.toStdString() << ": " << ran.err.toStdString();
    }
    EXPECT_EQ(testing::WarningsOn(folder_.Path("clip.Varnel.mp4")), "");
}

}  // namespace
}  // namespace varnel
