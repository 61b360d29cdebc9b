// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the program believes of its film decoder.
#include "film/reading/film_protocol.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <functional>
#include <limits>

#include "base/error_text.h"
#include "decoder/process/sandbox.h"
#include "film/reading/process_film_reader.h"
#include "tests/film/reading/films.h"
#include "tests/support/contents.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

FilmInfo SoundFilm() {
    FilmInfo film;
    film.container = "matroska,webm";
    StreamInfo stream;
    stream.kind = StreamKind::Video;
    stream.codec = "h264";
    stream.timeBase = {1, 1000};
    stream.extraData = QByteArray(100, 'e');
    stream.sideData = {{4, "side"}};
    stream.tags = {{"language", "eng"}};
    film.streams = {stream, stream};
    film.streams[1].index = 1;
    film.streams[1].kind = StreamKind::Audio;
    film.streams[1].channelMask = 0xF000'0000'0000'0003;
    film.chapters = {{7, {1, 1000}, -5, 900, {{"title", "Wood"}}}};
    film.tags = {{"title", "Trees"}};
    film.picture = 0;
    film.format = {.size = {1920, 1080}, .chroma = ChromaLayout::C422, .bits = 10, .matrix = 9};
    film.frameRate = {30000, 1001};
    film.sampleAspect = {0, 1};
    film.turnedBy = 270;
    film.start = -0.5;
    film.seconds = 12.5;
    film.frames = std::int64_t{1} << 40;
    return film;
}

TEST(FilmProtocol, FilmsComeAcrossWholeOrNotAtAll) {
    const QByteArray block = Pack(SoundFilm());
    const std::optional<FilmInfo> film = UnpackFilm(block);
    ASSERT_TRUE(film);
    EXPECT_EQ(Pack(*film), block);
    EXPECT_EQ(film->streams[1].channelMask, 0xF000'0000'0000'0003);
    EXPECT_EQ(film->chapters[0].start, -5);
    EXPECT_EQ(film->format, SoundFilm().format);
    for (qsizetype length = 0; length < block.size(); ++length) {
        EXPECT_FALSE(UnpackFilm(block.left(length))) << length;
    }
    EXPECT_FALSE(UnpackFilm(block + 'a'));
    // A number of elements that nobody has memory for.
    for (qsizetype place = 0; place + 4 <= block.size(); ++place) {
        QByteArray damaged = block;
        damaged.replace(place, 4, "\xFF\xFF\xFF\xF0");
        (void)UnpackFilm(damaged);
    }
}

TEST(FilmProtocol, NumbersBeyondTheirRangesAreNotBelieved) {
    const std::pair<const char*, std::function<void(FilmInfo&)>> rows[] = {
        {"no width", [](FilmInfo& film) { film.format.size.width = 0; }},
        {"height", [](FilmInfo& film) { film.format.size.height = 32768; }},
        {"bits", [](FilmInfo& film) { film.format.bits = 17; }},
        {"few bits", [](FilmInfo& film) { film.format.bits = 1; }},
        {"layout", [](FilmInfo& film) { film.format.chroma = static_cast<ChromaLayout>(5); }},
        {"site", [](FilmInfo& film) { film.format.site = static_cast<ChromaSite>(6); }},
        {"no picture", [](FilmInfo& film) { film.picture = -1; }},
        {"picture", [](FilmInfo& film) { film.picture = 2; }},
        {"sound as picture", [](FilmInfo& film) { film.picture = 1; }},
        {"index", [](FilmInfo& film) { film.streams[1].index = 0; }},
        {"time base", [](FilmInfo& film) { film.streams[1].timeBase.den = 0; }},
        {"chapter's", [](FilmInfo& film) { film.chapters[0].timeBase.num = -1; }},
        {"channels", [](FilmInfo& film) { film.streams[1].channels = -1; }},
        {"kind", [](FilmInfo& film) { film.streams[1].kind = static_cast<StreamKind>(5); }},
        {"rate", [](FilmInfo& film) { film.frameRate.den = 0; }},
        {"aspect", [](FilmInfo& film) { film.sampleAspect.num = -4; }},
        {"turn", [](FilmInfo& film) { film.turnedBy = 45; }},
        {"start", [](FilmInfo& film) { film.start = std::numeric_limits<double>::infinity(); }},
        {"length", [](FilmInfo& film) { film.seconds = std::nan(""); }},
        {"frames", [](FilmInfo& film) { film.frames = -1; }},
    };
    for (const auto& [name, change] : rows) {
        FilmInfo film = SoundFilm();
        change(film);
        EXPECT_FALSE(UnpackFilm(Pack(film))) << name;
    }
}

std::string FateOf(const char* order) {
    const testing::FilmFolder folder;
    const QString path = folder.Path("film");
    testing::WriteFile(path, QByteArray("YUV4MPEG2 ") + order);
    ProcessFilmReader reader(
        {.program = QStringLiteral(VARNEL_HOSTILE_FILM_DECODER), .secondsPerItem = 1});
    const testing::ReadFilm film = testing::ReadWhole(reader, path);
    return ErrorText(film.error.isEmpty() ? film.end : film.error).toStdString();
}

TEST(FilmProtocol, AHostileDecodersAnswersEndTheFilm) {
    EXPECT_EQ(FateOf("sound"), "");
    // It never hears that its frames are free again.
    EXPECT_EQ(FateOf("flood"), "");
    for (const char* order : {"refused without reason", "film cut short", "no slots", "odd slots",
                              "slot", "last slot", "offset", "overflow", "pitch", "packet",
                              "picture packet", "fault without reason", "kind", "endless"}) {
        EXPECT_EQ(FateOf(order), "damaged: the decoder's answer makes no sense") << order;
    }
    EXPECT_EQ(FateOf("short"), "damaged: the decoder gave up on it");
    EXPECT_EQ(FateOf("half"), "damaged: the decoder gave up on it");
    EXPECT_EQ(FateOf("hang"), "took too long (more than 1 seconds)");
    EXPECT_EQ(FateOf("die"), "damaged: the decoder died of it (signal 11)");
    if (!sanitized) {
        EXPECT_EQ(FateOf("forbidden"), "damaged: the decoder tried something forbidden");
    }
}

QByteArray ProcessFile(pid_t id, const char* name) {
    QFile file(QStringLiteral("/proc/%1/").arg(id) + QString::fromUtf8(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(FilmDecoder, DecodesBehindTheWalls) {
    if (sanitized) {
        GTEST_SKIP() << "sanitized builds have no walls";
    }
    const testing::FilmFolder folder;
    const QString path = folder.Make("a.mp4",
                                     "-f lavfi -i testsrc2=s=320x240:d=2 -c:v libx265 -x265-params "
                                     "log-level=none");
    ProcessFilmReader reader({});
    ASSERT_TRUE(reader.Open(path, {}).isEmpty());
    const QByteArray status = ProcessFile(reader.ProcessId(), "status");
    EXPECT_TRUE(status.contains("NoNewPrivs:\t1"));
    EXPECT_TRUE(status.contains("Seccomp:\t2") || status.contains("Seccomp:\t0\n"));
    EXPECT_TRUE(status.contains("CapEff:\t0000000000000000"));
    EXPECT_FALSE(
        ProcessFile(reader.ProcessId(), "limits").contains("Max address space         unl"));
    EXPECT_FALSE(ProcessFile(reader.ProcessId(), "environ").contains("PATH="));
    testing::ReadFilm film;
    testing::TakeItems(reader, film);
    EXPECT_EQ(film.frames.size(), 50U);
    EXPECT_TRUE(film.end.isEmpty());
}

TEST(FilmDecoder, KilledItEndsTheFilmAndANewOneGoesOn) {
    const testing::FilmFolder folder;
    const QString path =
        folder.Make("a.mp4", "-f lavfi -i testsrc2=s=320x240:d=4 -c:v libx264 -g 25 -bf 0");
    ProcessFilmReader reader({});
    ASSERT_TRUE(reader.Open(path, {}).isEmpty());
    const FilmItem first = reader.Next();
    const auto& frame = std::get<std::shared_ptr<const FilmFrame>>(first);
    const QByteArray bytes = testing::BytesOf(frame->view);
    kill(reader.ProcessId(), SIGKILL);
    testing::ReadFilm film;
    testing::TakeItems(reader, film);
    EXPECT_TRUE(film.end.Is(ReasonCode::DecoderEndedBySystem)) << ErrorText(film.end).toStdString();
    EXPECT_LT(film.frames.size(), 100U);
    EXPECT_EQ(testing::BytesOf(frame->view), bytes);
    ASSERT_TRUE(reader.Seek(2.5).isEmpty());
    testing::ReadFilm rest;
    testing::TakeItems(reader, rest);
    EXPECT_EQ(rest.frames.size(), 50U);
    EXPECT_TRUE(rest.end.isEmpty());
}

}  // namespace
}  // namespace varnel
