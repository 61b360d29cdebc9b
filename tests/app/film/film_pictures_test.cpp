// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films where the window reads photos: what stands for them in the list and what their gear is read
// from.

#include <gtest/gtest.h>

#include "app/films/films.h"
#include "film/conversion/film_pictures.h"
#include "pipeline/photos/photo_survey.h"
#include "tests/film/reading/films.h"

namespace varnel {
namespace {

class FilmPicturesTest : public ::testing::Test {
  protected:
    // 320 x 240, 5 seconds, all of them key frames; a disc of that radius, by the time T.
    QString Film(const QByteArray& radius, const QByteArray& words = {}) const {
        return folder_.Make(
            "film.mkv",
            "-f lavfi -i color=black:s=320x240:r=4:d=5 -vf "
            "geq=lum='if(lt(hypot(X-170,Y-110)," +
                radius + "),200,16)':cb=128:cr=128 -c:v libx264 -preset ultrafast -crf 10 -g 1 " +
                words);
    }
    static double RadiusIn(const QString& film) {
        const auto reader = NewGearReader();
        const auto found = Survey(*reader, film, true, {});
        return found && found->circle ? found->circle->radius : 0.0;
    }

    testing::FilmFolder folder_;
};

TEST_F(FilmPicturesTest, TheCircleIsTheMiddleOneOfFiveFrames) {
    const struct {
        const char* radius;
        double found;
    } rows[] = {
        {"90*gt(T,1.2)", 90.0},           // nothing is seen at first
        {"60+15*floor(T)", 90.0},         // 60, 75, 90, 105, 120
        {"90*between(T,1.9,3.1)", 0.0},   // of three frames nothing is seen
        {"if(lt(T,2.1),50,100)", 100.0},  // two of the five are smaller
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(RadiusIn(Film(row.radius)), row.found, 1.0) << row.radius;
    }
}

TEST_F(FilmPicturesTest, TheListShowsTheFirstFrameAndTheCameraIsTold) {
    const QString film = Film("90*gt(T,1.2)", "-metadata make=Canon -metadata model=EOS");
    ASSERT_FALSE(film.isEmpty());
    const auto brightest = [](const LoadedPicture& picture) {
        int most = 0;
        for (int y = 0; y < picture.bitmap->Size().height; ++y) {
            most = std::max<int>(most, ScanLine(picture.bitmap.get(), y)[3 * 170]);
        }
        return most;
    };
    const auto first = NewReaderWithFilms();
    const auto typical = NewGearReader();
    for (PictureReader* const reader : {first.get(), typical.get()}) {
        const LoadedPicture whole = ReadPicture(*reader, {.path = film});
        ASSERT_TRUE(whole.bitmap);
        EXPECT_EQ(brightest(whole) > 150, reader == typical.get());
        EXPECT_EQ(whole.bitmap->metadata.photo.origin.Make, QStringLiteral("Canon"));
        const LoadedPicture facts = ReadPicture(*reader, {.path = film, .kind = ReadKind::Facts});
        EXPECT_EQ(facts.facts.origin.Model, QStringLiteral("EOS"));
    }
}

TEST_F(FilmPicturesTest, LookingIsGivenUpBetweenTwoFrames) {
    const QString film = Film("90");
    const auto reader = NewFilmReader();
    ASSERT_TRUE(reader->Open(film).isEmpty());
    SerialRunner runner;
    int asked = 0;
    const auto frame = TypicalFrame(*reader, runner, [&asked] { return ++asked < 3; });
    ASSERT_TRUE(std::holds_alternative<Reason>(frame));
    EXPECT_TRUE(std::get<Reason>(frame).Is(ReasonCode::Cancelled));
    EXPECT_EQ(asked, 3);
}

}  // namespace
}  // namespace varnel
