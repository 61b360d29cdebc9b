// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "film/reading/film_reader.h"
#include "tests/film/reading/films.h"
#include "tests/support/contents.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

bool IsFilmOf(const testing::FilmFolder& folder, const QByteArray& bytes) {
    const QString path = folder.Path("file");
    testing::WriteFile(path, bytes);
    return IsFilm(path);
}

QByteArray Brand(const char* brand) {
    return QByteArray("\0\0\0\x1C", 4) + "ftyp" + brand + QByteArray(16, '\0') + "mp41isom";
}

TEST(IsFilm, PhotosAreNone) {
    const testing::FilmFolder folder;
    for (const testing::SeedFile& seed : testing::SeedFiles()) {
        EXPECT_FALSE(IsFilmOf(folder, seed.bytes)) << seed.name;
    }
    for (const char* brand :
         {"heic", "heix", "hevc", "hevx", "mif1", "msf1", "avif", "avis", "crx ", "jxl ", "miaf"}) {
        EXPECT_FALSE(IsFilmOf(folder, Brand(brand))) << brand;
    }
    EXPECT_FALSE(IsFilmOf(folder, "RIFF\x24\x1\x1\x1WEBPVP8 "));
    EXPECT_FALSE(IsFilmOf(folder, "RIFF\x24\x1\x1\x1WAVEfmt "));
    EXPECT_FALSE(IsFilmOf(folder, ""));
    EXPECT_FALSE(IsFilmOf(folder, "G"));
    EXPECT_FALSE(IsFilmOf(folder, QByteArray(5000, 'A')));
    EXPECT_FALSE(IsFilm(folder.Path("none")));
    EXPECT_FALSE(IsFilm(folder.Path("")));
}

TEST(IsFilm, FilmsAreWhateverTheirNames) {
    const testing::FilmFolder folder;
    for (const char* brand : {"isom", "mp42", "qt  ", "avc1", "dash", "3gp5", "M4V ", "XAVC"}) {
        EXPECT_TRUE(IsFilmOf(folder, Brand(brand))) << brand;
    }
    const std::pair<const char*, const char*> rows[] = {
        {"mp4", "-c:v libx264"},
        {"mov", "-c:v prores_ks"},
        {"matroska", "-c:v ffv1"},
        {"webm", "-c:v libvpx"},
        {"avi", "-c:v mjpeg"},
        {"mpegts", "-c:v mpeg2video"},
        {"mpeg", "-c:v mpeg1video"},
        {"asf", "-c:v wmv2"},
        {"flv", "-c:v flv1"},
        {"ogg", "-c:v libtheora"},
        {"mxf", "-c:v mpeg2video"},
        {"ivf", "-c:v libvpx"},
        {"nut", "-c:v mpeg4"},
        {"yuv4mpegpipe", ""},
        {"ismv", "-c:v libx264"},
        {"3gp", "-c:v mpeg4"},
        {"mpegts -mpegts_m2ts_mode 1", "-c:v libx264"},
        {"vob", "-c:v mpeg2video"},
    };
    for (const auto& [format, codec] : rows) {
        const QString path =
            folder.Make("film.jpg", QByteArray("-f lavfi -i testsrc2=s=64x48:d=0.4 ") + codec +
                                        " -f " + format);
        EXPECT_TRUE(IsFilm(path)) << format;
        const testing::ReadFilm film = testing::ReadWhole(path);
        // Theora leaves frames out that are like others.
        EXPECT_GE(film.frames.size(), 8U) << format;
    }
}

}  // namespace
}  // namespace varnel
