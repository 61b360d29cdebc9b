// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films that are damaged, cut short, of other kinds than is known, or made to do harm.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <algorithm>

#include "base/error_text.h"
#include "film/reading/process_film_reader.h"
#include "tests/film/reading/films.h"
#include "tests/support/contents.h"
#include "tests/support/seeds/mutate.h"

namespace varnel {
namespace {

using testing::FilmFolder;
using testing::ReadFilm;
using testing::ReadWhole;

std::string WhyNot(const QString& path) {
    const ReadFilm film = ReadWhole(path);
    return ErrorText(film.error.isEmpty() ? film.end : film.error).toStdString();
}

TEST(BadFilms, AreRefusedWithWhatIsWrong) {
    const FilmFolder folder;
    const QByteArray picture = "-f lavfi -i testsrc2=s=64x48:d=0.4 ";
    EXPECT_EQ(WhyNot(folder.Make("sound.mp4", "-f lavfi -i sine=d=1 -c:a aac")),
              "there is no video stream in the film");
    EXPECT_EQ(WhyNot(folder.Make("cover.mp4", "-f lavfi -i sine=d=1 " + picture +
                                                  "-frames:v 1 -c:v mjpeg -disposition:v "
                                                  "attached_pic")),
              "there is no video stream in the film");
    EXPECT_EQ(
        WhyNot(folder.Make("secret.mp4",
                           picture + "-c:v libx264 -encryption_scheme cenc-aes-ctr -encryption_key "
                                     "76a6c65c5ea762046bd749a2e632ccbb -encryption_kid "
                                     "a7e61c373e219033c21091fa607bf3b8")),
        "the film is encrypted");
    EXPECT_EQ(WhyNot(folder.Make("wide.nut", "-f lavfi -i color=s=32770x16:d=0.1 -c:v rawvideo")),
              "too large: 32770 x 16 pixels, a side may have 32767");
    const QString sound = folder.Make("a.mp4", picture + "-c:v libx264");
    testing::WriteFile(folder.Path("other.mp4"), testing::Contents(sound).replace("avc1", "zzzz"));
    EXPECT_EQ(WhyNot(folder.Path("other.mp4")), "the film's codec cannot be decoded: zzzz");
    testing::WriteFile(folder.Path("empty.mp4"), "");
    EXPECT_EQ(WhyNot(folder.Path("empty.mp4")), "the file is empty");
    testing::WriteFile(folder.Path("text.mp4"), "this is no film");
    EXPECT_EQ(WhyNot(folder.Path("text.mp4")), "this is not a film of a known type");
    EXPECT_EQ(WhyNot(folder.Path("none.mp4")), "there is no such file");
    testing::WriteFile(folder.Path("head.mp4"), testing::Contents(sound).left(100));
    EXPECT_EQ(WhyNot(folder.Path("head.mp4")), "damaged: the file is cut short");
}

TEST(BadFilms, ThatHoldTooMuchBeforeTheirPictureAreNotKeptInMemory) {
    const FilmFolder folder;
    const QString path = folder.Make("late.mkv",
                                     "-f lavfi -i sine=d=31 -itsoffset 30 -f lavfi -i "
                                     "testsrc2=s=64x48:d=1 -c:a pcm_s16le -ac 2 -c:v libx264");
    EXPECT_EQ(WhyNot(path), "");
    ProcessFilmReader reader({.memory = 16 << 20});
    EXPECT_EQ(ErrorText(ReadWhole(reader, path).error).toStdString(),
              "damaged: more than 4 MB of sound and other data come before the film's picture");
}

TEST(BadFilms, ThatAreCutShortEndEarlyAndSaySo) {
    const FilmFolder folder;
    for (const auto& [name, words] :
         {std::pair{"a.mp4", "-c:v libx264 -movflags +faststart"}, std::pair{"a.mkv", "-c:v mpeg4"},
          std::pair{"a.avi", "-c:v mpeg4"}}) {
        const QString path =
            folder.Make(name, QByteArray("-f lavfi -i testsrc2=s=64x48:d=6 -bf 0 ") + words);
        const QByteArray whole = testing::Contents(path);
        testing::WriteFile(path, whole.left(whole.size() * 6 / 10));
        const ReadFilm film = ReadWhole(path);
        EXPECT_GT(film.frames.size(), 40U) << name;
        EXPECT_LT(film.frames.size(), 140U) << name;
        EXPECT_TRUE(film.end.Is(ReasonCode::FileCutShort)) << name;
    }
}

TEST(BadFilms, ThatChangeTheirSizeEndThereAndTellTheTime) {
    const FilmFolder folder;
    for (const char* size : {"64x48", "80x48"}) {
        folder.Make((QByteArray(size) + ".ts").constData(),
                    QByteArray("-f lavfi -i testsrc2=d=1:s=") + size + " -c:v mpeg2video -bf 0");
    }
    testing::WriteFile(folder.Path("both.ts"), testing::Contents(folder.Path("64x48.ts")) +
                                                   testing::Contents(folder.Path("80x48.ts")));
    const ReadFilm film = ReadWhole(folder.Path("both.ts"));
    // The codec may keep its last one back.
    EXPECT_GE(film.frames.size(), 24U);
    EXPECT_LE(film.frames.size(), 25U);
    EXPECT_TRUE(ErrorText(film.end).endsWith(
        QStringLiteral("on the film's pictures have another size or pixel format")))
        << ErrorText(film.end).toStdString();
}

// Where in the file the picture's packets are, and how long: "place,length".
QList<QByteArray> Packets(const QString& path) {
    return testing::OutputOf(QStringLiteral("ffprobe"),
                             testing::Words("-v error -of csv=p=0 -select_streams v -show_entries "
                                            "packet=pos,size") +
                                 QStringList{path})
        .trimmed()
        .split('\n');
}

TEST(BadFilms, LostPicturesAreToldAndTheLastGoodOneIsShownInTheirPlace) {
    const FilmFolder folder;
    for (const char* words :
         {"-c:v libx264 -bf 0", "-c:v libx264 -bf 3", "-c:v libx265 -x265-params log-level=none",
          "-c:v mpeg4", "-c:v mjpeg", "-c:v ffv1 -level 3"}) {
        const QString path =
            folder.Make("a.mkv", QByteArray("-f lavfi -i testsrc2=s=128x96:d=2 ") + words);
        const ReadFilm whole = ReadWhole(path);
        ASSERT_TRUE(whole.end.isEmpty() && whole.faults.empty()) << words;
        const QList<QByteArray> packet = Packets(path).at(20).split(',');
        const auto length = packet.at(0).toLongLong();
        QByteArray bytes = testing::Contents(path);
        // The block's bytes behind its own head.
        const auto place = packet.at(1).toLongLong() + 24;
        bytes.replace(place, length - 32, QByteArray(length - 32, '\xFF'));
        testing::WriteFile(path, bytes);
        const ReadFilm film = ReadWhole(path);
        EXPECT_EQ(film.times, whole.times) << words;
        EXPECT_EQ(film.faults.size(), 1U) << words;
        for (const FilmFault& fault : film.faults) {
            const auto at = static_cast<std::size_t>(
                std::find(film.times.begin(), film.times.end(), fault.pts) - film.times.begin());
            ASSERT_LT(at, film.frames.size()) << words;
            EXPECT_EQ(film.frames[at], film.frames[at - 1]) << words;
            EXPECT_TRUE(fault.reason.Is(ReasonCode::FrameLost) ||
                        fault.reason.Is(ReasonCode::FrameDamaged));
        }
    }
}

// Part 0 to 3. More of them by the environment, for a long run.
class DamagedFilms : public ::testing::TestWithParam<int> {};

TEST_P(DamagedFilms, GetAnAnswerInTime) {
    const FilmFolder folder;
    std::vector<QByteArray> films;
    for (const auto& [name, words] :
         {std::pair{"a.mp4", "-c:v libx264 -c:a aac"}, std::pair{"a.mkv", "-c:v libx264 -bf 3"},
          std::pair{"b.mp4", "-c:v libx265 -x265-params log-level=none"},
          std::pair{"b.mkv", "-c:v ffv1"}, std::pair{"a.avi", "-c:v mpeg4 -c:a mp3"},
          std::pair{"a.ts", "-c:v mpeg2video"}, std::pair{"a.webm", "-c:v libvpx-vp9"},
          std::pair{"a.mov", "-c:v prores_ks"}, std::pair{"a.wmv", "-c:v wmv2"},
          std::pair{"a.ogv", "-c:v libtheora"}, std::pair{"a.flv", "-c:v flv1"},
          std::pair{"a.mxf", "-c:v mpeg2video -ar 48000"}}) {
        films.push_back(testing::Contents(folder.Make(
            name,
            QByteArray("-f lavfi -i testsrc2=s=64x48:d=0.4 -f lavfi -i sine=d=0.4 ") + words)));
        ASSERT_FALSE(films.back().isEmpty()) << name;
    }
    const int count = qEnvironmentVariableIntValue("VARNEL_DAMAGED_FILMS");
    const QString path = folder.Path("damaged");
    for (int n = 0; n < (count > 0 ? count : 60); ++n) {
        testing::Mutator mutator(static_cast<std::uint64_t>(GetParam()) << 32 | n);
        const auto kinds = static_cast<qint64>(films.size());
        const QByteArray& film = films[static_cast<std::size_t>(n % kinds)];
        const QByteArray& other = films[static_cast<std::size_t>(mutator.Below(kinds))];
        testing::WriteFile(path + u'n', mutator.Damaged(film, other));
        ASSERT_EQ(rename((path + u'n').toUtf8(), path.toUtf8()), 0);
        QElapsedTimer timer;
        timer.start();
        ProcessFilmReader reader({.secondsPerItem = 10});
        const ReadFilm read = ReadWhole(reader, path);
        EXPECT_LT(timer.elapsed(), 30'000) << n;
        EXPECT_EQ(read.error.isEmpty(), !read.frames.empty()) << n;
        // A film is never at fault for what is forbidden, nor for what makes no sense.
        for (const Reason& reason : {read.error, read.end}) {
            EXPECT_FALSE(reason.Is(ReasonCode::DecoderTriedForbidden)) << n;
            EXPECT_FALSE(reason.Is(ReasonCode::DecoderMakesNoSense)) << n;
            EXPECT_FALSE(reason.Is(ReasonCode::DecoderDied))
                << n << ErrorText(reason).toStdString();
        }
        EXPECT_TRUE(std::ranges::is_sorted(read.times)) << n;
    }
}

INSTANTIATE_TEST_SUITE_P(Parts, DamagedFilms, ::testing::Range(0, 4));

}  // namespace
}  // namespace varnel
