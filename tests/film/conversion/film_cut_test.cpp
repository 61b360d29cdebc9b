// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/conversion/film_cut.h"

#include <gtest/gtest.h>

namespace varnel {
namespace {

FilmInfo Film() {
    FilmInfo film;
    film.picture = 0;
    film.streams.resize(3);
    film.streams[0].timeBase = {1001, 30000};
    film.streams[1].index = 1;
    film.streams[1].timeBase = {1, 48000};
    film.streams[2].index = 2;
    film.streams[2].timeBase = {1, 90000};
    film.streams[2].disposition = 0x400;
    film.chapters = {{1, {1, 1000}, 0, 2000, {}}, {2, {1, 1000}, 2000, 9000, {}}};
    film.tags = {{"timecode", "01:00:00:00"}, {"title", "A walk"}};
    return film;
}

FilmPacket Packet(int stream, std::int64_t pts) {
    FilmPacket packet;
    packet.stream = stream;
    packet.pts = packet.dts = pts;
    return packet;
}

TEST(FilmCut, AWholeFilmKeepsItsTimes) {
    const FilmInfo film = Film();
    FilmCut cut(film, FilmCourse{});
    cut.Begin(7);
    EXPECT_EQ(cut.Moved(7), 7);
    EXPECT_EQ(cut.Moved(Packet(1, -1024))->pts, -1024);
    EXPECT_EQ(cut.Info().chapters.size(), 2U);
    EXPECT_EQ(cut.Info().tags.size(), 2);
}

TEST(FilmCut, ABroadcastBeginsWithItsFirstStream) {
    FilmInfo film = Film();
    film.container = "mpegts";
    film.streams[0].startTime = 3000;                 // 100.1 seconds
    film.streams[1].startTime = 100 * 48000;          // before it
    film.streams[2].startTime = 100 * 90000 + 45000;  // behind
    FilmCut cut(film, std::nullopt);
    cut.Begin(3000);
    EXPECT_EQ(cut.Moved(3000), 3);
    // 2997 frames, the last whole one before 100 seconds.
    EXPECT_EQ(cut.Moved(Packet(1, 100 * 48000))->pts, 100 * 48000 - 2997 * 48048 / 30);
    EXPECT_EQ(cut.Moved(Packet(1, noTime))->pts, noTime);
    FilmCourse course;
    course.in = 1.0;
    FilmCut part(film, course);
    part.Begin(3030);
    EXPECT_EQ(part.Moved(3030), 0);
}

TEST(FilmCut, StreamsOfAPartMoveBySameTime) {
    const FilmInfo film = Film();
    FilmCourse course;
    course.in = 1.0;
    course.out = 3.0;
    FilmCut cut(film, course);
    EXPECT_TRUE(cut.IsBefore(cut.Seconds(0, 29)));
    EXPECT_FALSE(cut.IsBefore(cut.Seconds(0, 30)));
    EXPECT_TRUE(cut.IsLost(Packet(1, 47999)) && cut.IsLost(Packet(1, noTime)));
    EXPECT_FALSE(cut.IsLost(Packet(1, 48000)) || cut.IsLost(Packet(2, 0)));
    cut.Begin(30);  // 1.001 seconds
    EXPECT_EQ(cut.Moved(30), 0);
    EXPECT_FALSE(cut.Moved(Packet(1, 48000)));
    EXPECT_EQ(cut.Moved(Packet(1, 48048))->pts, 0);
    EXPECT_EQ(cut.Moved(Packet(1, 143999))->dts, 95951);
    EXPECT_FALSE(cut.Moved(Packet(1, 144000)));
    EXPECT_EQ(cut.Moved(Packet(2, 0))->pts, 0) << "a cover has no time";
    const FilmInfo part = cut.Info();
    ASSERT_EQ(part.chapters.size(), 2U);
    EXPECT_EQ(part.chapters[0].start, 0);
    EXPECT_EQ(part.chapters[0].end, 999);
    EXPECT_EQ(part.chapters[1].end, 1999);
    EXPECT_EQ(part.tags.size(), 1);
}

}  // namespace
}  // namespace varnel
