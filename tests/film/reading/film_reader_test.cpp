// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films as they come out of the confined decoder, against what the ffmpeg program makes of them.
#include "film/reading/film_reader.h"

#include <gtest/gtest.h>

#include "base/error_text.h"
#include "tests/film/reading/films.h"
#include "tests/support/contents.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::FilmFolder;
using testing::ReadFilm;
using testing::ReadWhole;
using testing::Run;
using testing::Words;

std::string TextOf(const Reason& reason) {
    return ErrorText(reason).toStdString();
}

// The picture stream's frames as the ffmpeg program decodes them.
QByteArray Decoded(const QString& path, const char* words = "") {
    return Run(QStringLiteral("ffmpeg"), Words("-v error -noautorotate -i") + QStringList{path} +
                                             Words("-map 0:v:0 -fps_mode passthrough -f rawvideo") +
                                             Words(words) + QStringList{QStringLiteral("-")});
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
        {"p010.nut", "-c:v rawvideo -pix_fmt p010", ChromaLayout::C420, 10, false,
         "-pix_fmt yuv420p10"},
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

}  // namespace
}  // namespace varnel
