// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films as they come out of the confined decoder, against what the ffmpeg program makes of them.
#include "film/reading/film_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "base/error_text.h"
#include "tests/film/reading/films.h"
#include "tests/support/contents.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::FilmFolder;
using testing::OutputOf;
using testing::ReadFilm;
using testing::ReadWhole;
using testing::Words;

std::string TextOf(const Reason& reason) {
    return ErrorText(reason).toStdString();
}

// The picture stream's frames as the ffmpeg program decodes them.
QByteArray Decoded(const QString& path, const QByteArray& words = {}) {
    return OutputOf(QStringLiteral("ffmpeg"),
                    Words("-v error -noautorotate -i") + QStringList{path} +
                        Words("-map 0:v:0 -fps_mode passthrough -f rawvideo") + Words(words) +
                        QStringList{QStringLiteral("-")});
}

TEST(FilmReader, FramesOfEveryFormatAreTheCodecsOwn) {
    const FilmFolder folder;
    const struct {
        const char* name;
        const char* words;
        ChromaLayout chroma;
        int bits;
        bool alpha;
        const char* decode;  // what ffmpeg is to make of them to have our planes
    } rows[] = {
        {"420.mp4", "-c:v libx264 -pix_fmt yuv420p", ChromaLayout::C420, 8, false, ""},
        {"420-10.mp4", "-c:v libx265 -x265-params log-level=none -pix_fmt yuv420p10",
         ChromaLayout::C420, 10, false, ""},
        {"422.mkv", "-c:v ffv1 -pix_fmt yuv422p", ChromaLayout::C422, 8, false, ""},
        {"422-10.mov", "-c:v prores_ks -pix_fmt yuv422p10", ChromaLayout::C422, 10, false, ""},
        {"444-12.mkv", "-c:v ffv1 -level 3 -strict -2 -pix_fmt yuv444p12", ChromaLayout::C444, 12,
         false, ""},
        {"444-16.mkv", "-c:v ffv1 -pix_fmt yuv444p16", ChromaLayout::C444, 16, false, ""},
        {"full.avi", "-c:v mjpeg -pix_fmt yuvj420p", ChromaLayout::C420, 8, false, ""},
        {"grey.mkv", "-c:v ffv1 -pix_fmt gray", ChromaLayout::Grey, 8, false, ""},
        {"grey16.mkv", "-c:v ffv1 -pix_fmt gray16", ChromaLayout::Grey, 16, false, ""},
        {"colours.mkv", "-c:v libx264rgb -crf 0 -pix_fmt rgb24", ChromaLayout::Colours, 8, false,
         ""},
        {"colours10.mkv", "-c:v ffv1 -pix_fmt gbrp10", ChromaLayout::Colours, 10, false, ""},
        {"alpha.mkv", "-c:v ffv1 -pix_fmt yuva420p", ChromaLayout::C420, 8, true, ""},
        {"nv12.nut", "-c:v rawvideo -pix_fmt nv12", ChromaLayout::C420, 8, false,
         "-pix_fmt yuv420p"},
        {"nv21.nut", "-c:v rawvideo -pix_fmt nv21", ChromaLayout::C420, 8, false,
         "-pix_fmt yuv420p"},
        {"yuyv.nut", "-c:v rawvideo -pix_fmt yuyv422", ChromaLayout::C422, 8, false,
         "-pix_fmt yuv422p"},
        {"rgb24.nut", "-c:v rawvideo -pix_fmt rgb24", ChromaLayout::Colours, 8, false,
         "-pix_fmt gbrp"},
        {"bgra.nut", "-c:v rawvideo -pix_fmt bgra", ChromaLayout::Colours, 8, true,
         "-pix_fmt gbrap"},
        {"rgb48be.nut", "-c:v rawvideo -pix_fmt rgb48be", ChromaLayout::Colours, 16, false,
         "-pix_fmt gbrp16"},
        {"ya8.nut", "-c:v rawvideo -pix_fmt ya8", ChromaLayout::Grey, 8, true, nullptr},
        {"pal8.nut", "-c:v rawvideo -pix_fmt pal8", ChromaLayout::Colours, 8, true,
         "-pix_fmt gbrap"},
        {"411.nut", "-c:v rawvideo -pix_fmt yuv411p", ChromaLayout::C422, 8, false, nullptr},
        {"440.nut", "-c:v rawvideo -pix_fmt yuv440p", ChromaLayout::C444, 8, false, nullptr},
    };
    for (const auto& row : rows) {
        const QByteArray words = QByteArray("-f lavfi -i testsrc2=s=66x50:d=0.4:r=25 ") + row.words;
        const QString path = folder.Make(row.name, words);
        ASSERT_FALSE(path.isEmpty()) << row.name;
        const ReadFilm film = ReadWhole(path);
        ASSERT_TRUE(film.error.isEmpty()) << row.name << ": " << TextOf(film.error);
        EXPECT_TRUE(film.end.isEmpty() && film.faults.empty()) << row.name << TextOf(film.end);
        EXPECT_EQ(film.frames.size(), 10U) << row.name;
        EXPECT_EQ(film.info.format.chroma, row.chroma) << row.name;
        EXPECT_EQ(film.info.format.bits, row.bits) << row.name;
        EXPECT_EQ(film.info.format.alpha, row.alpha) << row.name;
        if (row.decode != nullptr) {
            EXPECT_TRUE(film.AllFrames() == Decoded(path, row.decode)) << row.name;
        }
    }
}

// Numbers as ffprobe lists them, one or several to a line.
std::string Probed(const QString& path, const QByteArray& words) {
    const QByteArray all =
        OutputOf(QStringLiteral("ffprobe"),
                 Words("-v error -of csv=p=0") + Words(words) + QStringList{path});
    std::string lines;
    for (QByteArray line : all.split('\n')) {
        while (line.endsWith(',')) {
            line.chop(1);
        }
        lines += line.isEmpty() ? "" : line.toStdString() + '\n';
    }
    return lines;
}

std::string Lines(const std::vector<std::int64_t>& numbers) {
    std::string lines;
    for (const std::int64_t number : numbers) {
        lines += std::to_string(number) + '\n';
    }
    return lines;
}

std::string Listed(const FilmPacket& packet) {
    return std::to_string(packet.pts) + ',' + std::to_string(packet.dts) + ',' +
           std::to_string(packet.bytes.size()) + '\n';
}

TEST(FilmReader, OtherStreamsComeToTheByteWithTheirTimesTagsAndChapters) {
    const FilmFolder folder;
    testing::WriteFile(folder.Path("words.srt"),
                       "1\n00:00:00,200 --> 00:00:01,000\nA tree\n\n"
                       "2\n00:00:01,100 --> 00:00:01,600\nA lake\n");
    testing::WriteFile(folder.Path("chapters"),
                       ";FFMETADATA1\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=0\n"
                       "END=900\ntitle=Wood\n[CHAPTER]\nTIMEBASE=1/1000\nSTART=900\nEND=2000\n"
                       "title=Lake\n");
    const QByteArray inputs = "-f lavfi -i testsrc2=s=64x48:d=2 -f lavfi -i sine=d=2 -i " +
                              folder.Path("words.srt").toUtf8() + " -i " +
                              folder.Path("chapters").toUtf8() + " -map 0 -map 1 -map 2 ";
    for (const auto& [name, words] : {std::pair{"a.mkv", "-c:a libvorbis -c:s srt"},
                                      std::pair{"a.mp4", "-c:a aac -c:s mov_text"},
                                      std::pair{"a.mov", "-c:a pcm_s16le -c:s mov_text"}}) {
        const QString path = folder.Make(
            name,
            inputs + words +
                " -metadata:s:a:0 language=eng -metadata title=Places -metadata creation_time="
                "2026-05-04T03:02:01Z");
        const ReadFilm film = ReadWhole(path);
        ASSERT_TRUE(film.error.isEmpty()) << name << TextOf(film.error);
        EXPECT_EQ(film.frames.size(), 50U) << name;
        ASSERT_GE(film.info.streams.size(), 3U) << name;
        for (std::size_t n = 1; n < film.info.streams.size(); ++n) {
            QByteArray bytes;
            std::string listed;
            for (const FilmPacket& packet : film.packets) {
                if (packet.stream == static_cast<int>(n)) {
                    bytes += packet.bytes;
                    listed += Listed(packet);
                }
            }
            const QByteArray index = QByteArray::number(static_cast<int>(n));
            EXPECT_TRUE(bytes ==
                        OutputOf(QStringLiteral("ffmpeg"),
                                 Words("-v error -i") + QStringList{path} +
                                     Words(("-c copy -f data -map 0:" + index + " -").constData())))
                << name << index.constData();
            EXPECT_EQ(listed,
                      Probed(path, "-show_entries packet=pts,dts,size -select_streams " + index))
                << name;
        }
        const FilmInfo& info = film.info;
        EXPECT_EQ(info.streams[1].kind, StreamKind::Audio);
        EXPECT_EQ(info.streams[1].sampleRate, 44100);
        EXPECT_EQ(info.streams[1].channels, 1);
        EXPECT_TRUE(info.streams[1].tags.contains({"language", "eng"})) << name;
        EXPECT_EQ(info.streams[2].kind, StreamKind::Subtitle);
        EXPECT_TRUE(info.tags.contains({"title", "Places"})) << name;
        EXPECT_TRUE(info.tags.contains({"creation_time", "2026-05-04T03:02:01.000000Z"})) << name;
        ASSERT_EQ(info.chapters.size(), 2U) << name;
        EXPECT_TRUE(info.chapters[1].tags.contains({"title", "Lake"}));
        EXPECT_EQ(info.frameRate.num, 25 * info.frameRate.den);
        EXPECT_NEAR(info.seconds, 2.0, 0.05) << name;
    }
}

TEST(FilmReader, PacketsThatNobodyWantsStayAway) {
    const FilmFolder folder;
    const QString path = folder.Make(
        "a.mp4", "-f lavfi -i testsrc2=s=64x48:d=1 -f lavfi -i sine=d=1 -c:v libx264 -c:a aac");
    const ReadFilm film = ReadWhole(path, {.packets = false});
    EXPECT_EQ(film.frames.size(), 25U);
    EXPECT_TRUE(film.packets.empty());
}

TEST(FilmReader, TimesAreTheFilmsToTheTick) {
    const FilmFolder folder;
    const QByteArray source = "-f lavfi -i testsrc2=s=64x48:d=2 ";
    folder.Make("gop.mp4", source + "-c:v libx264 -g 20 -bf 3");
    const QByteArray copy = "-i " + folder.Path("gop.mp4").toUtf8() + " -c copy ";
    const struct {
        const char* name;
        QByteArray words;
    } rows[] = {
        {"plain.mp4", source + "-c:v libx264 -bf 3"},
        {"ntsc.mov", source + "-r 30000/1001 -c:v libx264"},
        {"varies.mkv", source + "-vf select='not(mod(n*n,7))' -fps_mode vfr -c:v libx264"},
        {"varies.mp4", source + "-vf select='not(mod(n*n,7))' -fps_mode vfr -c:v libx264"},
        {"edited.mp4", "-ss 0.5 " + copy},
        {"offset.mp4", "-itsoffset -0.7 " + copy + "-avoid_negative_ts disabled -copyts"},
        {"a.ts", source + "-c:v mpeg2video -bf 2"},
        {"a.avi", source + "-c:v mpeg4"},
        {"a.mpg", source + "-c:v mpeg1video"},
        {"a.flv", source + "-c:v flv1"},
        {"a.wmv", source + "-c:v wmv2"},
        {"a.webm", source + "-c:v libvpx-vp9 -deadline realtime"},
        {"vp8.webm", source + "-c:v libvpx -auto-alt-ref 1 -lag-in-frames 16"},
        {"a.ogv", source + "-c:v libtheora"},
        {"a.mxf", source + "-c:v mpeg2video"},
        {"a.ivf", source + "-c:v libvpx"},
        {"a.y4m", source},
    };
    for (const auto& row : rows) {
        const QString path = folder.Make(row.name, row.words);
        ASSERT_FALSE(path.isEmpty()) << row.name;
        const ReadFilm film = ReadWhole(path);
        ASSERT_TRUE(film.error.isEmpty()) << row.name << TextOf(film.error);
        EXPECT_TRUE(film.end.isEmpty() && film.faults.empty()) << row.name << TextOf(film.end);
        ASSERT_FALSE(film.times.empty()) << row.name;
        EXPECT_EQ(Lines(film.times),
                  Probed(path, "-select_streams v -show_entries frame=best_effort_timestamp"))
            << row.name;
        EXPECT_TRUE(film.AllFrames() == Decoded(path)) << row.name;
    }
}

TEST(FilmReader, SeeksToTheKeyFrameAtOrBefore) {
    const FilmFolder folder;
    const struct {
        const char* name;
        const char* words;
    } rows[] = {
        {"a.mp4", "-c:v libx264 -g 15 -bf 2"},
        {"a.mkv", "-c:v libx265 -x265-params log-level=none:keyint=15:open-gop=1"},
        {"a.avi", "-c:v mpeg4 -g 15"},
        {"a.ts", "-c:v libx264 -g 15 -bf 2"},
        {"a.y4m", "-pix_fmt yuv420p"},
    };
    for (const auto& row : rows) {
        const QString path = folder.Make(
            row.name, QByteArray("-f lavfi -i testsrc2=s=64x48:d=4 -f lavfi -i sine=d=4 ") +
                          row.words + (QByteArray(row.name) == "a.y4m" ? " -map 0" : ""));
        const auto reader = NewFilmReader();
        const ReadFilm whole = ReadWhole(*reader, path);
        ASSERT_EQ(whole.frames.size(), 100U) << row.name << TextOf(whole.error);
        for (const double seconds : {3.9, 0.0, 1.0, 2.399, 2.401, 0.61, 100.0, -1.0}) {
            const Reason error = reader->Seek(seconds);
            ASSERT_TRUE(error.isEmpty()) << row.name << TextOf(error);
            ReadFilm rest;
            testing::TakeItems(*reader, rest);
            ASSERT_FALSE(rest.frames.empty()) << row.name << seconds << TextOf(rest.end);
            const auto skipped = whole.frames.size() - rest.frames.size();
            EXPECT_EQ(rest.times.front(), whole.times[skipped]) << row.name << seconds;
            EXPECT_TRUE(std::equal(rest.frames.begin(), rest.frames.end(),
                                   whole.frames.begin() + static_cast<std::ptrdiff_t>(skipped)))
                << row.name << seconds;
            // Where there is an index, to the last one.
            const auto at =
                static_cast<std::size_t>(std::clamp(std::floor(seconds * 25.0 + 1e-9), 0.0, 99.0));
            EXPECT_LE(skipped, at) << row.name << seconds;
            const bool isExact = QByteArray(row.name) == "a.mp4" || QByteArray(row.name) == "a.mkv";
            EXPECT_TRUE(!isExact || skipped == at / 15 * 15) << row.name << seconds << skipped;
        }
    }
}

// As cameras do: the matrix stands in the track's head, 40 bytes behind its name.
void Turn(const QString& path, int degrees) {
    QByteArray bytes = testing::Contents(path);
    const qsizetype place = bytes.indexOf("tkhd") + 4 + 40;
    const QByteArray one("\0\1\0\0", 4);
    const QByteArray less("\xFF\xFF\0\0", 4);
    const QByteArray none(4, '\0');
    const QByteArray a = degrees == 0 ? one : degrees == 180 ? less : none;
    const QByteArray b = degrees == 90 ? one : degrees == 270 ? less : none;
    const QByteArray c = degrees == 90 ? less : degrees == 270 ? one : none;
    bytes.replace(place, 20, a + b + none + c + a);
    testing::WriteFile(path, bytes);
}

TEST(FilmReader, FramesComeUprightAndTheTurnIsTold) {
    const FilmFolder folder;
    const struct {
        int degrees;
        const char* pixels;
        ChromaLayout chroma;
    } rows[] = {
        {0, "yuv420p", ChromaLayout::C420},   {90, "yuv420p", ChromaLayout::C420},
        {180, "yuv420p", ChromaLayout::C420}, {270, "yuv420p", ChromaLayout::C420},
        {90, "yuv444p", ChromaLayout::C444},  {270, "yuv420p10", ChromaLayout::C420},
        {90, "yuv422p", ChromaLayout::C444},
    };
    for (const auto& row : rows) {
        const QByteArray name = QByteArray::number(row.degrees) + row.pixels + ".mp4";
        const QString path = folder.Make(
            name.constData(),
            QByteArray("-f lavfi -i testsrc2=s=66x48:d=0.2 -vf setsar=4/3 -c:v libx264 -pix_fmt ") +
                row.pixels);
        Turn(path, row.degrees);
        const ReadFilm film = ReadWhole(path);
        ASSERT_TRUE(film.error.isEmpty()) << name.constData() << TextOf(film.error);
        const bool isSideways = row.degrees % 180 == 90;
        EXPECT_EQ(film.info.turnedBy, row.degrees);
        EXPECT_EQ(film.info.format.size.width, isSideways ? 48 : 66);
        EXPECT_EQ(film.info.format.chroma, row.chroma) << name.constData();
        EXPECT_EQ(film.info.sampleAspect.num, isSideways ? 3 : 4);
        EXPECT_TRUE(film.info.streams[0].sideData.empty()) << name.constData();
        if (row.pixels != QByteArray("yuv422p")) {
            EXPECT_TRUE(film.AllFrames() ==
                        OutputOf(QStringLiteral("ffmpeg"),
                                 Words("-v error -i") + QStringList{path} +
                                     Words("-fps_mode passthrough -f rawvideo -")))
                << name.constData();
        }
        const ReadFilm asItIs = ReadWhole(path, {.upright = false});
        EXPECT_EQ(asItIs.info.turnedBy, 0);
        EXPECT_TRUE(asItIs.AllFrames() == Decoded(path)) << name.constData();
    }
}

}  // namespace
}  // namespace varnel
