// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/convert_film.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFileInfo>

#include "base/error_text.h"
#include "base/thread_runner.h"
#include "film/conversion/film_pictures.h"
#include "tests/film/reading/films.h"
#include "tests/film/support/films.h"
#include "tests/support/contents.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

using testing::FilmFolder;
using testing::NamesIn;
using testing::OutputOf;
using testing::Probe;
using testing::WarningsOn;
using testing::Words;

ImageRecord Fisheye(PixelSize size) {
    ImageRecord record = testing::FisheyeRecord();
    record.Width = static_cast<std::int16_t>(size.width);
    record.Height = static_cast<std::int16_t>(size.height);
    record.Projection = static_cast<std::int16_t>(Projection::Rectilinear);
    return record;
}

class FilmConversion : public ::testing::Test {
  protected:
    FilmOutcome Convert(const QString& film, const QString& target, FilmEncoding encoding = {},
                        const std::optional<FilmCourse>& course = {},
                        const std::function<bool(double)>& goesOn = {}) {
        const auto reader = NewFilmReader();
        if (Reason error = reader->Open(film); !error.isEmpty()) {
            return {error};
        }
        encoding.container = *FilmContainerFromText(QFileInfo(target).suffix());
        if (encoding.speed.isEmpty() && encoding.codec == FilmCodec::H264) {
            encoding.speed = QStringLiteral("ultrafast");
        }
        ImageRecord image = Fisheye(reader->Info().format.size);
        image.Film = course;
        return ConvertFilm(*reader, {target, image, encoding}, {runner_, nullptr, goesOn});
    }

    // As another program copies them, stream after stream.
    static QByteArray HashesOf(const QString& film, const char* streams) {
        return OutputOf(QStringLiteral("ffmpeg"), Words("-v error -i") + QStringList{film} +
                                                      Words("-map") + Words(streams) +
                                                      Words("-c copy -f streamhash -hash md5 -"));
    }

    FilmFolder folder_;
    ThreadRunner runner_{2};
};

TEST_F(FilmConversion, KeepsTimesSoundSubtitlesChaptersAndTags) {
    testing::WriteFile(folder_.Path("text.srt"), "1\n00:00:00,200 --> 00:00:00,900\nHello\n");
    testing::WriteFile(folder_.Path("facts"),
                       ";FFMETADATA1\ntitle=A walk\nlocation=+48.1-016.3/\n[CHAPTER]\n"
                       "TIMEBASE=1/1000\nSTART=0\nEND=500\ntitle=One\n[CHAPTER]\n"
                       "TIMEBASE=1/1000\nSTART=500\nEND=1000\ntitle=Two\n");
    const QString film = folder_.Make(
        "film.mp4", "-f lavfi -i testsrc2=s=160x120:r=30000/1001:d=1 -f lavfi -i sine=d=1 -i " +
                        folder_.Path("text.srt").toUtf8() + " -i " +
                        folder_.Path("facts").toUtf8() +
                        " -map 0 -map 1 -map 2 -map_metadata 3 -map_chapters 3 -c:s mov_text -c:a "
                        "aac -metadata creation_time=2020-02-03T04:05:06Z -pix_fmt yuv420p");
    for (const char* const name : {"result.mp4", "result.mov"}) {
        const QString target = folder_.Path(name);
        const FilmOutcome outcome = Convert(film, target);
        ASSERT_EQ(ErrorText(outcome.error), QString());
        EXPECT_EQ(outcome.notes, QStringList());
        EXPECT_EQ(outcome.frames, 30);
        EXPECT_EQ(WarningsOn(target), "");
        for (const char* const entries :
             {"frame=pts_time", "stream=nb_frames,duration,r_frame_rate", "format=duration"}) {
            EXPECT_EQ(Probe(target, entries), Probe(film, entries)) << entries;
        }
        EXPECT_EQ(Probe(target, "packet=pts_time,dts_time,size", "a"),
                  Probe(film, "packet=pts_time,dts_time,size", "a"));
        EXPECT_EQ(HashesOf(target, "0:a"), HashesOf(film, "0:a"));
        EXPECT_EQ(HashesOf(target, "0:s"), HashesOf(film, "0:s"));
        for (const char* const entries : {"format_tags=creation_time,title,location",
                                          "chapter=start_time,end_time:chapter_tags"}) {
            EXPECT_EQ(Probe(target, entries), Probe(film, entries)) << entries;
        }
    }
    const FilmOutcome outcome = Convert(film, folder_.Path("result.mkv"));
    EXPECT_EQ(outcome.notes.join(u'\n'),
              QStringLiteral("stream 2 (subtitle mov_text) is left out: mkv files cannot hold it"));
}

TEST_F(FilmConversion, KeepsTimesThatNoRateHas) {
    const QString film =
        folder_.Make("film.mp4",
                     "-f lavfi -i testsrc2=s=64x48:r=25:d=2 -vf "
                     "select=not(mod(n\\,3))+not(mod(n\\,7)),settb=1/90000 -fps_mode vfr "
                     "-enc_time_base 1/90000 -video_track_timescale 90000");
    ASSERT_FALSE(film.isEmpty());
    const FilmOutcome outcome = Convert(film, folder_.Path("result.mp4"));
    ASSERT_EQ(ErrorText(outcome.error), QString());
    for (const char* const entries : {"frame=pts", "stream=time_base,duration_ts,nb_frames"}) {
        EXPECT_EQ(Probe(folder_.Path("result.mp4"), entries), Probe(film, entries)) << entries;
    }
}

// Seconds of the first packet in the order of the file.
double FirstTime(const QString& film, const char* streams) {
    return std::stod(Probe(film, "packet=pts_time", streams));
}

TEST_F(FilmConversion, ABroadcastBeginsAtItsFirstSoundAndStaysInStep) {
    const QString film = folder_.Make(
        "film.ts",
        "-f lavfi -i testsrc2=s=64x48:r=25:d=1 -itsoffset 0.3 -f lavfi -i sine=d=1 -c:v libx264 "
        "-c:a aac -output_ts_offset 5000");
    const double apart = FirstTime(film, "a") - FirstTime(film, "v:0");
    ASSERT_GT(FirstTime(film, "v:0"), 5000.0);
    ASSERT_GT(apart, 0.2);
    for (const char* const name : {"result.mp4", "result.mkv", "result.mov"}) {
        const QString target = folder_.Path(name);
        ASSERT_EQ(ErrorText(Convert(film, target).error), QString());
        EXPECT_NEAR(FirstTime(target, "a") - FirstTime(target, "v:0"), apart, 0.0011) << name;
        EXPECT_NEAR(FirstTime(target, "v:0"), 0.0, 0.001) << name;
        EXPECT_EQ(WarningsOn(target), "") << name;
    }
}

TEST_F(FilmConversion, APartBeginsAndEndsAtItsFrames) {
    const QString film = folder_.Make(
        "film.mkv",
        "-f lavfi -i testsrc2=s=64x48:r=25:d=4 -f lavfi -i sine=d=4 -c:v libx264 -g 25 "
        "-c:a aac");
    FilmCourse course;
    course.in = 1.3;
    course.out = 2.5;
    const FilmOutcome outcome = Convert(film, folder_.Path("result.mkv"), {}, course);
    ASSERT_EQ(ErrorText(outcome.error), QString());
    EXPECT_EQ(outcome.frames, 30);  // at 1.32 to 2.48 seconds
    const std::string times = Probe(folder_.Path("result.mkv"), "frame=pts_time");
    EXPECT_TRUE(times.starts_with("0.000000 0.040000 ") && times.ends_with(" 1.160000")) << times;
    const std::string sound = Probe(folder_.Path("result.mkv"), "packet=pts_time", "a");
    EXPECT_EQ(sound.substr(0, 3), "0.0");
    EXPECT_EQ(WarningsOn(folder_.Path("result.mkv")), "");
    course = {};
    course.in = 9.0;
    EXPECT_TRUE(Convert(film, folder_.Path("none.mkv"), {}, course)
                    .error.Is(ReasonCode::NothingBetweenTimes));
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("none.mkv")));
}

TEST_F(FilmConversion, TenBitsAndTheirColoursStay) {
    const QString film =
        folder_.Make("film.mov",
                     "-f lavfi -i testsrc2=s=96x64:r=25:d=0.4 -pix_fmt yuv422p10le -c:v ffv1 "
                     "-color_range tv -colorspace bt2020nc -color_primaries bt2020 -color_trc "
                     "arib-std-b67 -f matroska");
    FilmEncoding encoding;
    encoding.codec = FilmCodec::Ffv1;
    const FilmOutcome outcome = Convert(film, folder_.Path("result.mkv"), encoding);
    ASSERT_EQ(ErrorText(outcome.error), QString());
    const char* const entries =
        "stream=codec_name,pix_fmt,color_range,color_space,color_transfer,color_primaries";
    EXPECT_EQ(Probe(folder_.Path("result.mkv"), entries),
              "ffv1,yuv422p10le,tv,bt2020nc,arib-std-b67,bt2020");
}

TEST_F(FilmConversion, UprightFramesHaveNoTurnLeft) {
    const QString flat = folder_.Make("flat.mp4", "-f lavfi -i testsrc2=s=128x64:r=25:d=0.4");
    const QString film =
        folder_.Make("film.mp4", "-i " + flat.toUtf8() + " -c copy -metadata:s:v rotate=90");
    ASSERT_NE(Probe(film, "stream_side_data=rotation"), "");
    const QString target = folder_.Path("result.mp4");
    ASSERT_EQ(ErrorText(Convert(film, target).error), QString());
    EXPECT_EQ(Probe(target, "stream_side_data=rotation"), "");
    EXPECT_EQ(Probe(target, "stream=width,height"), "64,128");
}

// Sound without end, and no picture.
class SoundOnly : public FilmReader {
  public:
    SoundOnly() {
        info_.streams.resize(2);
        info_.streams[1].index = 1;
        info_.streams[0].timeBase = info_.streams[1].timeBase = {1, 25};
        info_.picture = 0;
        info_.format.size = {64, 48};
    }
    Reason Open(const QString& /*path*/, const FilmReadChoices& /*choices*/) override { return {}; }
    const FilmInfo& Info() const override { return info_; }
    FilmItem Next() override {
        if (++packets > 1000) {
            return FilmEnd{};
        }
        FilmPacket packet;
        packet.stream = 1;
        packet.pts = packets;
        packet.bytes = megabyte_;  // shared
        return packet;
    }
    Reason Seek(double /*seconds*/) override { return {}; }

    int packets = 0;

  private:
    FilmInfo info_;
    QByteArray megabyte_ = QByteArray(1 << 20, 'a');
};

TEST_F(FilmConversion, SoundWithoutEndBeforeThePictureIsNotKept) {
    SoundOnly reader;
    ImageRecord image = Fisheye({64, 48});
    const FilmOutcome whole =
        ConvertFilm(reader, {folder_.Path("a.mp4"), image, {}}, {runner_, nullptr, {}});
    EXPECT_EQ(whole.error, TooMuchBeforePicture(mostBeforePicture));
    EXPECT_EQ(reader.packets, 256);
    // What is before a part is nothing to be kept.
    reader.packets = 0;
    image.Film = FilmCourse{};
    image.Film->in = 1000.0;
    const FilmOutcome part =
        ConvertFilm(reader, {folder_.Path("a.mp4"), image, {}}, {runner_, nullptr, {}});
    EXPECT_TRUE(part.error.Is(ReasonCode::NothingBetweenTimes));
}

TEST_F(FilmConversion, StoppedOrBadFilmsLeaveNothing) {
    const QString film = folder_.Make("film.mp4", "-f lavfi -i testsrc2=s=64x48:r=25:d=2");
    testing::WriteFile(folder_.Path("old.mp4"), "older");
    int asked = 0;
    const FilmOutcome stopped =
        Convert(film, folder_.Path("old.mp4"), {}, {}, [&](double) { return ++asked < 9; });
    EXPECT_TRUE(stopped.error.Is(ReasonCode::Cancelled));
    EXPECT_EQ(testing::Contents(folder_.Path("old.mp4")), "older");
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("old.mp4.part")));
    FilmEncoding kept;
    kept.keepPart = true;
    asked = 0;
    Convert(film, folder_.Path("new.mp4"), kept, {}, [&](double) { return ++asked < 19; });
    EXPECT_FALSE(QFileInfo::exists(folder_.Path("new.mp4")));
    EXPECT_EQ(WarningsOn(folder_.Path("new.mp4.part")), "");
}

// Encoders with threads of their own have been seen to wait for frames that never come.
TEST_F(FilmConversion, AStopInTheMiddleEndsEveryEncoderAtOnce) {
    const QString film = folder_.Make("film.mp4", "-f lavfi -i testsrc2=s=96x64:r=25:d=4");
    for (const FilmCodec codec :
         {FilmCodec::H264, FilmCodec::H265, FilmCodec::Av1, FilmCodec::Vp9, FilmCodec::Ffv1}) {
        for (const int items : {2, 60}) {
            FilmEncoding encoding;
            encoding.codec = codec;
            QElapsedTimer clock;
            int asked = 0;
            const FilmOutcome stopped =
                Convert(film, folder_.Path("out.mkv"), encoding, {}, [&](double) {
                    clock.start();
                    return ++asked < items;
                });
            EXPECT_TRUE(stopped.error.Is(ReasonCode::Cancelled)) << ToText(codec).toStdString();
            EXPECT_LT(clock.elapsed(), 30'000) << ToText(codec).toStdString() << items;
            EXPECT_FALSE(QFileInfo::exists(folder_.Path("out.mkv.part")));
        }
    }
}

TEST_F(FilmConversion, AFrameIsTheOneThatIsShownThen) {
    const QString film = folder_.Make("film.mkv",
                                      "-f lavfi -i color=black:s=64x48:r=10:d=2 -vf "
                                      "geq=lum='16+10*N':cb=128:cr=128 -c:v ffv1 -g 1");
    const auto reader = NewFilmReader();
    ASSERT_EQ(ErrorText(reader->Open(film)), QString());
    for (const auto& [time, n] : {std::pair{0.0, 0}, {0.05, 0}, {1.0, 10}, {1.29, 12}, {7.0, 19}}) {
        auto picture = FilmFrameAt(*reader, time, runner_, true);
        ASSERT_TRUE(std::holds_alternative<BitmapHandle>(picture)) << time;
        const int level = std::get<BitmapHandle>(picture)->ScanLine(5)[30];
        EXPECT_NEAR(level, n * 10 * 255 / 219, 1) << time;
    }
}

}  // namespace
}  // namespace varnel
