// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/writing/film_writer.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <cerrno>

extern "C" {
#include <libavcodec/codec_id.h>
}

#include "base/error_text.h"
#include "files/file_operations.h"
#include "tests/film/support/films.h"
#include "tests/support/contents.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::NamesIn;
using testing::PlaneBytes;
using testing::Probe;
using testing::RunProgram;
using testing::SlopeFrame;
using testing::WarningsOn;
using testing::WriteFile;

// Times that no frame rate has.
constexpr std::array<std::int64_t, 12> times{0,   40,  81,  120, 163, 200,
                                             240, 300, 310, 360, 401, 440};

std::int64_t DurationOf(std::size_t n) {
    return n + 1 < times.size() ? times[n + 1] - times[n] : 33;
}

FrameFormat Format(ChromaLayout chroma, int bits, bool alpha = false) {
    FrameFormat format;
    format.size = {96, 64};
    format.chroma = chroma;
    format.bits = static_cast<std::uint8_t>(bits);
    format.alpha = alpha;
    format.primaries = 9;
    format.transfer = 16;
    format.matrix = 9;
    return format;
}

FilmToWrite Film(FilmContainer container, FilmCodec codec, const FrameFormat& format) {
    FilmToWrite film;
    film.encoding.container = container;
    film.encoding.codec = codec;
    film.encoding.threads = 2;
    film.format = format;
    film.timeBase = {1, 1000};
    film.sampleAspect = {4, 3};
    return film;
}

Reason WriteFrames(FilmWriter& writer, const FrameFormat& format, std::size_t count) {
    for (std::size_t n = 0; n < count; ++n) {
        const FrameBuffer frame = SlopeFrame(format, static_cast<int>(n));
        if (Reason error = writer.Write(frame.View(), times[n], DurationOf(n)); !error.isEmpty()) {
            return error;
        }
    }
    return {};
}

using enum ChromaLayout;
constexpr auto mp4 = FilmContainer::Mp4;
constexpr auto mkv = FilmContainer::Matroska;
constexpr auto mov = FilmContainer::QuickTime;

class FilmFolder {
  public:
    QString Path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }
    QStringList Names() const { return NamesIn(folder_.path()); }

  private:
    QTemporaryDir folder_;
};

struct Kind {
    const char* name;
    FilmContainer container;
    FilmCodec codec;
    FrameFormat format;
    const char* expected;  // codec and pixel format
};

std::ostream& operator<<(std::ostream& out, const Kind& kind) {
    return out << kind.name;
}

class WrittenKind : public ::testing::TestWithParam<Kind> {};

TEST_P(WrittenKind, PlaysWithEveryFrameAtItsTime) {
    const FilmFolder folder;
    const Kind& kind = GetParam();
    const QString path = folder.Path("film.") + ToText(kind.container);
    auto [writer, error] = NewFilmWriter(path, Film(kind.container, kind.codec, kind.format));
    ASSERT_TRUE(writer) << ErrorText(error).toStdString();
    ASSERT_EQ(ErrorText(WriteFrames(*writer, kind.format, times.size())), QString());
    EXPECT_FALSE(QFileInfo::exists(path));
    ASSERT_EQ(ErrorText(writer->Finish()), QString());
    EXPECT_EQ(folder.Names(), QStringList{QFileInfo(path).fileName()});
    EXPECT_EQ(WarningsOn(path), "");
    EXPECT_EQ(Probe(path, "stream=codec_name,pix_fmt"), kind.expected);
    std::string expected;
    for (const std::int64_t time : times) {
        expected += (expected.empty() ? "" : " ") +
                    QString::number(static_cast<double>(time) / 1000.0, 'f', 6).toStdString();
    }
    EXPECT_EQ(Probe(path, "frame=pts_time"), expected);
}

INSTANTIATE_TEST_SUITE_P(
    All, WrittenKind,
    ::testing::Values(
        Kind{"H264", mp4, FilmCodec::H264, Format(C420, 8), "h264,yuv420p"},
        Kind{"H264InMov", mov, FilmCodec::H264, Format(C422, 10), "h264,yuv422p10le"},
        Kind{"H264OfNineBits", mkv, FilmCodec::H264, Format(C444, 9), "h264,yuv444p10le"},
        Kind{"H264OfGrey", mkv, FilmCodec::H264, Format(Grey, 10), "h264,yuv420p10le"},
        Kind{"H265", mp4, FilmCodec::H265, Format(C420, 10), "hevc,yuv420p10le"},
        Kind{"H265OfTwelveBits", mkv, FilmCodec::H265, Format(C422, 12), "hevc,yuv422p12le"},
        Kind{"Av1", mp4, FilmCodec::Av1, Format(C420, 10), "av1,yuv420p10le"},
        Kind{"Vp9", mp4, FilmCodec::Vp9, Format(C420, 8), "vp9,yuv420p"},
        Kind{"Vp9OfGrey", mkv, FilmCodec::Vp9, Format(Grey, 8), "vp9,yuv420p"},
        Kind{"Ffv1", mkv, FilmCodec::Ffv1, Format(C444, 10, true), "ffv1,yuva444p10le"},
        Kind{"ProRes", mov, FilmCodec::ProRes, Format(C420, 8), "prores,yuv422p10le"},
        Kind{"ProResOf444", mov, FilmCodec::ProRes, Format(C444, 10), "prores,yuv444p12le"}),
    [](const auto& param) { return std::string(param.param.name); });

TEST(FilmWriter, LosesNothingWhereTheCodecDoesNot) {
    for (const FrameFormat& format :
         {Format(Grey, 8), Format(C420, 8), Format(C422, 10), Format(C444, 12), Format(Grey, 16),
          Format(C420, 8, true), Format(Colours, 10)}) {
        const FilmFolder folder;
        const QString path = folder.Path("film.mkv");
        auto [writer, error] = NewFilmWriter(path, Film(mkv, FilmCodec::Ffv1, format));
        ASSERT_TRUE(writer) << ErrorText(error).toStdString();
        ASSERT_EQ(ErrorText(WriteFrames(*writer, format, 3)), QString());
        ASSERT_EQ(ErrorText(writer->Finish()), QString());
        QByteArray expected;
        for (int n = 0; n < 3; ++n) {
            expected += PlaneBytes(SlopeFrame(format, n).View());
        }
        const auto ran =
            RunProgram(QStringLiteral("ffmpeg"),
                       {QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-i"), path,
                        QStringLiteral("-vsync"), QStringLiteral("0"), QStringLiteral("-f"),
                        QStringLiteral("rawvideo"), QStringLiteral("-")});
        EXPECT_TRUE(ran.out == expected) << int(format.chroma) << ' ' << int(format.bits);
    }
}

TEST(FilmWriter, TellsColoursSiteAndShapeOfPixels) {
    const FilmFolder folder;
    FrameFormat format = Format(C420, 8);
    format.site = ChromaSite::TopLeft;
    format.fullRange = true;
    auto [writer, error] =
        NewFilmWriter(folder.Path("film.mp4"), Film(mp4, FilmCodec::H264, format));
    ASSERT_TRUE(writer) << ErrorText(error).toStdString();
    ASSERT_EQ(ErrorText(WriteFrames(*writer, format, 3)), QString());
    ASSERT_EQ(ErrorText(writer->Finish()), QString());
    EXPECT_EQ(Probe(folder.Path("film.mp4"),
                    "stream=sample_aspect_ratio,color_range,color_space,color_transfer,"
                    "color_primaries,chroma_location"),
              "4:3,pc,bt2020nc,smpte2084,bt2020,topleft");
}

TEST(FilmWriter, DataTracksOfCamerasGoAlong) {
    const FilmFolder folder;
    FilmInfo source;
    source.picture = 0;
    source.streams.resize(2);
    source.streams[1].index = 1;
    source.streams[1].codecId = AV_CODEC_ID_BIN_DATA;
    source.streams[1].codec = "bin_data";
    source.streams[1].codecTag = 'g' | 'p' << 8 | 'm' << 16 | 'd' << 24;
    source.streams[1].timeBase = {1, 1000};
    for (const FilmContainer container : {mp4, mov, mkv}) {
        const QString path = folder.Path("film.") + ToText(container);
        FilmToWrite film = Film(container, FilmCodec::H264, Format(C420, 8));
        film.source = &source;
        auto [writer, error] = NewFilmWriter(path, film);
        ASSERT_TRUE(writer) << ErrorText(error).toStdString();
        if (container == mkv) {
            EXPECT_EQ(writer->Notes().join(u'\n').toStdString(),
                      "stream 1 (data bin_data) is left out: mkv files cannot hold it");
            continue;
        }
        EXPECT_EQ(writer->Notes(), QStringList());
        ASSERT_EQ(ErrorText(writer->Write(FilmPacket{1, 0, 0, 100, 1, "telemetry", {}})),
                  QString());
        ASSERT_EQ(ErrorText(WriteFrames(*writer, film.format, 5)), QString());
        ASSERT_EQ(ErrorText(writer->Write(FilmPacket{1, 100, 100, 63, 1, "more", {}})), QString());
        ASSERT_EQ(ErrorText(writer->Finish()), QString());
        EXPECT_EQ(Probe(path, "stream=codec_tag_string:packet=pts_time,size", "d"),
                  "0.000000,9 0.100000,4 gpmd");
    }
}

struct BadWish {
    const char* name;
    FilmContainer container;
    FilmCodec codec;
    FrameFormat format;
    std::optional<int> crf;
    const char16_t* speed;
    const char* file;
    const char* expected;  // part of the error
};

TEST(FilmWriter, SaysWhatDoesNotGoAndLeavesNoFile) {
    const FrameFormat plain = Format(C420, 8);
    const BadWish wishes[] = {
        {"crf", mp4, FilmCodec::H264, plain, 99, u"", "film.mp4",
         "no crf \"99\"; it takes: 0 to 51"},
        {"no crf", mkv, FilmCodec::Ffv1, plain, 5, u"", "film.mkv", "no crf \"5\"; it takes: none"},
        {"no speed",
         mkv,
         FilmCodec::Ffv1,
         plain,
         {},
         u"fast",
         "film.mkv",
         "no speed \"fast\"; it takes: none"},
        {"speed", mp4, FilmCodec::H265, plain, {}, u"hasty", "film.mp4", "it takes: ultrafast"},
        {"number", mp4, FilmCodec::Vp9, plain, {}, u"fast", "film.mp4", "it takes: 0 to 8"},
        {"container",
         mp4,
         FilmCodec::ProRes,
         plain,
         {},
         u"",
         "film.mp4",
         "mp4 files cannot hold prores; these can: mkv, mov"},
        {"alpha",
         mp4,
         FilmCodec::H264,
         Format(C420, 8, true),
         {},
         u"",
         "film.mp4",
         "takes no pictures of yuva420p; these do: vp9, ffv1"},
        {"folder", mp4, FilmCodec::H264, plain, {}, u"", "none/film.mp4", "No such file"},
    };
    for (const BadWish& wish : wishes) {
        const FilmFolder folder;
        FilmToWrite film = Film(wish.container, wish.codec, wish.format);
        film.encoding.crf = wish.crf;
        film.encoding.speed = QString::fromUtf16(wish.speed);
        film.encoding.keepPart = true;  // nothing was written, so nothing is kept
        const auto [writer, error] = NewFilmWriter(folder.Path(wish.file), film);
        EXPECT_FALSE(writer) << wish.name;
        EXPECT_TRUE(ErrorText(error).contains(QString::fromUtf8(wish.expected)))
            << wish.name << ": " << ErrorText(error).toStdString();
        EXPECT_EQ(folder.Names(), QStringList()) << wish.name;
    }
}

TEST(FilmWriter, UnfinishedLeavesTheOlderFileAlone) {
    const FilmFolder folder;
    WriteFile(folder.Path("film.mp4"), "older");
    WriteFile(folder.Path("film.mp4.part"), "of a run that was killed");
    {
        auto [writer, error] =
            NewFilmWriter(folder.Path("film.mp4"), Film(mp4, FilmCodec::H264, Format(C420, 8)));
        ASSERT_TRUE(writer) << ErrorText(error).toStdString();
        EXPECT_EQ(ErrorText(WriteFrames(*writer, Format(C420, 8), 5)), QString());
        const auto second =
            NewFilmWriter(folder.Path("film.mp4"), Film(mp4, FilmCodec::H264, Format(C420, 8)));
        EXPECT_TRUE(second.error.Is(ReasonCode::FilmIsBeingWritten));
    }
    EXPECT_EQ(folder.Names(), QStringList{QStringLiteral("film.mp4")});
    EXPECT_EQ(Contents(folder.Path("film.mp4")), "older");
}

TEST(FilmWriter, KeepsThePermissionsOfTheFileThatALinkLeadsTo) {
    const FilmFolder folder;
    WriteFile(folder.Path("real.mp4"), "older");
    ::chmod(folder.Path("real.mp4").toUtf8().constData(), 0640);
    ASSERT_TRUE(QFile::link(folder.Path("real.mp4"), folder.Path("film.mp4")));
    auto [writer, error] =
        NewFilmWriter(folder.Path("film.mp4"), Film(mp4, FilmCodec::H264, Format(C420, 8)));
    ASSERT_TRUE(writer) << ErrorText(error).toStdString();
    ASSERT_EQ(ErrorText(WriteFrames(*writer, Format(C420, 8), 2)), QString());
    ASSERT_EQ(ErrorText(writer->Finish()), QString());
    struct stat file {};
    ::stat(folder.Path("real.mp4").toUtf8().constData(), &file);
    EXPECT_EQ(file.st_mode & 0777U, 0640U);
    EXPECT_TRUE(QFileInfo(folder.Path("film.mp4")).isSymLink());
    EXPECT_EQ(WarningsOn(folder.Path("film.mp4")), "");
}

TEST(FilmWriter, WhatIsKeptPlays) {
    for (const FilmContainer container : {mp4, mkv, mov}) {
        const FilmFolder folder;
        FilmToWrite film = Film(container, FilmCodec::H264, Format(C420, 8));
        film.encoding.keepPart = true;
        const QString path = folder.Path("film");
        {
            auto [writer, error] = NewFilmWriter(path, film);
            ASSERT_TRUE(writer) << ErrorText(error).toStdString();
            EXPECT_EQ(ErrorText(WriteFrames(*writer, film.format, 7)), QString());
        }
        EXPECT_EQ(folder.Names(), QStringList{QStringLiteral("film.part")});
        EXPECT_EQ(WarningsOn(path + QStringLiteral(".part")), "");
        EXPECT_EQ(Probe(path + QStringLiteral(".part"), "frame=pts_time"),
                  "0.000000 0.040000 0.081000 0.120000 0.163000 0.200000 0.240000");
    }
}

// So many bytes go onto the disk, and then no more.
class FullDisk : public FileOperations {
  public:
    explicit FullDisk(qint64 room) : room_(room) {}
    qint64 Write(int file, const char* bytes, qint64 length) override {
        errno = ENOSPC;
        room_ -= length;
        return room_ < 0 ? -1 : FileOperations::Write(file, bytes, length);
    }

  private:
    qint64 room_;
};

TEST(FilmWriter, AFullDiskIsNamedAndLeavesNoHalfFile) {
    for (const qint64 room : {0, 30'000}) {
        const FilmFolder folder;
        WriteFile(folder.Path("film.mkv"), "older");
        FullDisk disk(room);
        const FrameFormat format = Format(C444, 16);
        auto [writer, error] =
            NewFilmWriter(folder.Path("film.mkv"), Film(mkv, FilmCodec::Ffv1, format), &disk);
        if (writer) {
            error = WriteFrames(*writer, format, times.size());
            error = error.isEmpty() ? writer->Finish() : error;
        }
        EXPECT_TRUE(error.IsBy(ENOSPC)) << ErrorText(error).toStdString();
        writer.reset();
        EXPECT_EQ(folder.Names(), QStringList{QStringLiteral("film.mkv")});
        EXPECT_EQ(Contents(folder.Path("film.mkv")), "older");
    }
}

}  // namespace
}  // namespace varnel
