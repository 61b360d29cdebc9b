// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/stills_film.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>

#include "film/conversion/morph_films.h"
#include "tests/film/support/films.h"
#include "tests/support/files.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(FrameRateOf, KnowsTheRatesOfTelevision) {
    const struct {
        double rate;
        int num, den;
    } rows[] = {{25.0, 25, 1},        {23.976, 24000, 1001}, {29.97, 30000, 1001},
                {59.94, 60000, 1001}, {12.5, 12500, 1000},   {1.0, 1, 1}};
    for (const auto& row : rows) {
        const TimeBase rate = FrameRateOf(row.rate);
        EXPECT_EQ((std::pair{rate.num, rate.den}), (std::pair{row.num, row.den})) << row.rate;
    }
}

class MorphFilmsTest : public ::testing::Test {
  protected:
    MorphFilmsTest() {
        film.image = testing::FisheyeRecord();
        const QFileInfo photo(folder.Picture(Text("a.bmp"), OutputType::Bmp, {121, 80}));
        film.image.Folder = photo.path();
        film.image.FileName = photo.fileName();
        film.image.Width = 121;
        film.image.Height = 80;
        film.ends = EndsFrom(film.image);
        film.ends.end.RotateY = 20.0F;
        film.frames = 12;
        film.framesPerSecond = 29.97;
        film.path = folder.Path(Text("morph.mp4"));
    }
    Reason Make(const std::function<bool(int)>& goesOn = [](int) { return true; }) {
        return MorphFilms([] { return NewPictureReader(); }, pool, [] { return true; }, output)
            .Make(film, goesOn);
    }

    testing::PictureFolder folder;
    ThreadRunner pool;
    MorphFilm film;
    FilmOutput output;
};

TEST_F(MorphFilmsTest, IsWrittenAsFilmsOfTheListAre) {
    output = {QStringLiteral("ffv1"), {}, {}};
    film.path = folder.Path(Text("morph.mkv"));
    ASSERT_TRUE(Make().isEmpty());
    EXPECT_EQ(testing::Probe(film.path, "stream=codec_name:format=format_name"),
              "ffv1 \"matroska,webm\"");
}

TEST_F(MorphFilmsTest, EveryPictureOfTheSequenceIsAFrame) {
    std::vector<int> told;
    const Reason reason = Make([&told](int frames) {
        told.push_back(frames);
        return true;
    });
    ASSERT_TRUE(reason.isEmpty());
    EXPECT_EQ(told.back(), 12);
    EXPECT_EQ(
        testing::Probe(film.path, "stream=codec_name,width,height,pix_fmt,r_frame_rate,nb_frames"),
        "h264,120,80,yuv420p,30000/1001,12");
    EXPECT_EQ(testing::WarningsOn(film.path), "");
}

TEST_F(MorphFilmsTest, NothingIsLeftOfOneThatWasGivenUpOrCannotBe) {
    EXPECT_TRUE(Make([](int frames) { return frames < 3; }).Is(ReasonCode::Cancelled));
    film.image.FileName = Text("gone.bmp");
    EXPECT_FALSE(Make().isEmpty());
    film.image.FileName = Text("a.bmp");
    film.path = folder.Path(Text("no such folder/morph.mp4"));
    EXPECT_FALSE(Make().isEmpty());
    EXPECT_EQ(QDir(folder.Path(Text("."))).entryList(QDir::Files), QStringList{Text("a.bmp")});
}

TEST_F(MorphFilmsTest, StillsHaveOneSize) {
    SerialRunner runner;
    StillsFilm stills(film.path, {}, {25, 1});
    EXPECT_TRUE(stills.Add(*NewBitmap({64, 48}), runner).isEmpty());
    EXPECT_TRUE(stills.Add(*NewBitmap({64, 50}), runner).Is(ReasonCode::StillOfOtherSize));
}

}  // namespace
}  // namespace varnel
