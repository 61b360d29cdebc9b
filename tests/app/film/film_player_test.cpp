// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/film/film_player.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>

#include "tests/app/film/fake_film.h"

namespace varnel {
namespace {

class FilmPlayerTest : public ::testing::Test {
  protected:
    FilmPlayerTest() {
        QObject::connect(&player, &FilmPlayer::FrameReady,
                         [this](double seconds) { shown.push_back(std::lround(seconds * 10.0)); });
        player.Open(QStringLiteral("film"));
    }
    bool Settle() {
        return QTest::qWaitFor([this] { return player.IsThere(); });
    }

    testing::FakeFilm film;
    FilmPlayer player{film};
    std::vector<long> shown;  // numbers of frames
};

TEST_F(FilmPlayerTest, ShowsTheKeyFrameAtOnceAndThenTheExactOne) {
    player.GoTo(2.71);
    EXPECT_EQ(shown, (std::vector<long>{20}));
    ASSERT_TRUE(Settle());
    EXPECT_EQ(shown, (std::vector<long>{20, 27}));
    EXPECT_DOUBLE_EQ(player.Wanted(), 2.7);
    player.GoTo(2.8);  // the next one is decoded, not sought
    ASSERT_TRUE(Settle());
    EXPECT_EQ(shown, (std::vector<long>{20, 27, 28}));
    EXPECT_EQ(film.seeks, 1);
    player.GoTo(2.7);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(shown, (std::vector<long>{20, 27, 28, 20, 27}));
    shown.clear();
    player.GoTo(99.0);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(shown.back(), 49);
    player.GoTo(-1.0);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(shown.back(), 0);
}

TEST_F(FilmPlayerTest, ScrubbingOnGivesUpWhatWasOnItsWay) {
    film.slow = 15;
    player.GoTo(1.9);
    QTest::qWait(30);
    player.GoTo(3.1);
    ASSERT_TRUE(Settle());
    EXPECT_EQ(shown, (std::vector<long>{10, 30, 31}));
}

TEST_F(FilmPlayerTest, PlaysByTheClockAndStopsAtTheEnd) {
    player.GoTo(1.0);
    ASSERT_TRUE(Settle());
    shown.clear();
    QElapsedTimer since;
    since.start();
    player.Play(1.5);
    EXPECT_TRUE(player.IsPlaying());
    ASSERT_TRUE(QTest::qWaitFor([this] { return !player.IsPlaying(); }, 2000));
    EXPECT_EQ(shown.back(), 14);
    EXPECT_GE(since.elapsed(), 300);
    EXPECT_TRUE(std::ranges::is_sorted(shown));
}

// A frame takes two frames' time to be shown: about every third one is seen, in the film's time.
TEST_F(FilmPlayerTest, DropsFramesRatherThanLag) {
    player.GoTo(0.0);
    ASSERT_TRUE(Settle());
    shown.clear();
    QObject::connect(&player, &FilmPlayer::FrameReady, [] { QThread::msleep(200); });
    QElapsedTimer since;
    since.start();
    player.Play(3.0);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !player.IsPlaying(); }, 9000));
    EXPECT_LE(shown.size(), 17U);
    EXPECT_GE(shown.size(), 5U);
    EXPECT_LE(since.elapsed(), 6000);
}

}  // namespace
}  // namespace varnel
