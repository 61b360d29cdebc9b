// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/png_coder.h"

#include <gtest/gtest.h>
#include <zlib.h>

#include <QtEndian>
#include <algorithm>
#include <random>

#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/png_filter.h"
#include "tests/support/bitmaps.h"
#include "tests/support/runners.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

using testing::PngChunk;
using Bytes = std::vector<std::uint8_t>;

// All chunks but the pixels', with what is wrong with any of them; the pixels' data joined.
struct Parts {
    QByteArray others;
    QByteArray pixels;
    int pixelChunks = 0;
    bool sound = true;
};

Parts PartsOf(const QByteArray& file) {
    Parts parts{file.left(8), {}};
    for (qsizetype at = 8; at < file.size();) {
        const auto length = qFromBigEndian<qint32>(file.constData() + at);
        const QByteArray chunk = file.mid(at, length + 12);
        const QByteArray data = chunk.mid(8, length);
        const bool isPixels = chunk.mid(4, 4) == "IDAT";
        parts.sound = parts.sound && chunk == PngChunk(chunk.mid(4, 4).constData(), data);
        parts.pixelChunks += isPixels ? 1 : 0;
        (isPixels ? parts.pixels : parts.others) += isPixels ? data : chunk;
        at += chunk.size();
    }
    return parts;
}

// Stripes, a slope, noise and black, one below the other.
BitmapHandle Mixture(PixelSize size) {
    std::mt19937 random(7);
    return testing::Painted(size, [&](int x, int y) {
        const auto grain = static_cast<BYTE>(random());
        const PixelColor kinds[] = {
            {static_cast<BYTE>(x % 7 * 30), static_cast<BYTE>(x / 9), 200, 0},
            {static_cast<BYTE>(x), static_cast<BYTE>(y), 7, 0},
            {grain, static_cast<BYTE>(random()), 90, 0},
            {}};
        return kinds[y / 5 % 4];
    });
}

TEST(EncodePng, WritesThePixelsInSoundChunksWhateverTheRunner) {
    const struct {
        PixelSize size;
        int pixelChunks;  // one for each band of 512 kB, and the checksum
    } cases[] = {{{1, 1}, 2},      {{1, 40}, 2},     {{40, 1}, 2},     {{3, 2}, 2},
                 {{257, 129}, 2},  {{1000, 174}, 2}, {{1000, 175}, 3}, {{1000, 348}, 3},
                 {{1000, 349}, 4}, {{200000, 3}, 4}};
    for (const auto& [size, pixelChunks] : cases) {
        SCOPED_TRACE(::testing::Message() << size.width << " x " << size.height);
        const BitmapHandle bitmap = Mixture(size);
        const QByteArray file = EncodePng(bitmap.get(), OutputType::Png, {}).bytes;
        EXPECT_TRUE(testing::SamePixels(testing::FromFile(FIF_PNG, file).get(), bitmap.get()));
        const Parts parts = PartsOf(file);
        EXPECT_TRUE(parts.sound);
        EXPECT_EQ(parts.pixelChunks, pixelChunks);
        Bytes filtered(static_cast<std::size_t>(size.height) * (1 + 3 * size.width));
        uLongf length = filtered.size();
        // Looks at the checksum, which the library does not.
        EXPECT_EQ(uncompress(filtered.data(), &length,
                             reinterpret_cast<const Bytef*>(parts.pixels.constData()),
                             static_cast<uLong>(parts.pixels.size())),
                  Z_OK);
        EXPECT_EQ(length, filtered.size());
        testing::ShuffledRunner shuffled(3);
        ThreadRunner threads(3);
        EXPECT_EQ(EncodePng(bitmap.get(), OutputType::Png, {.runner = &shuffled}).bytes, file);
        EXPECT_EQ(EncodePng(bitmap.get(), OutputType::Png, {.runner = &threads}).bytes, file);
    }
}

// Each with a word that the library then writes beside the usual ones.
TEST(EncodePng, WritesTheOtherChunksAsTheLibraryDoes) {
    const struct {
        const char* word;
        BitmapMetadata metadata;
    } cases[] = {{"IEND", {}},
                 {"pHYs", {11811, 2835, {}, {}, {}, {}}},
                 {"iTXt", {2835, 2835, {}, {{"Comment", "seen from below"}}, {}, {}}},
                 {"iCCP", {2835, 2835, testing::ColourProfile(), {}, {}, {}}}};
    for (const auto& [word, metadata] : cases) {
        SCOPED_TRACE(word);
        const BitmapHandle bitmap = Mixture({70, 30});
        bitmap->metadata = metadata;
        const QByteArray file = EncodePng(bitmap.get(), OutputType::Png, {}).bytes;
        const QByteArray others = PartsOf(file).others;
        EXPECT_TRUE(others.contains(word));
        EXPECT_EQ(others, PartsOf(LibraryFile(FIF_PNG, bitmap.get(), 0).bytes).others);
    }
}

// A grey photo's three equal channels are no runs; black and noise are nothing but runs.
TEST(EncodePng, GrowsTheFileByLessThanATenth) {
    std::mt19937 random(5);
    const PixelSize size{700, 500};
    const BitmapHandle photos[] = {
        testing::Painted(size,
                         [&](int x, int y) {
                             const auto grey = static_cast<BYTE>((x + y) / 6 + random() % 3);
                             return PixelColor{grey, grey, grey, 0};
                         }),
        testing::Painted(size, [&](int x, int y) {
            const auto noise = [&] { return static_cast<BYTE>(x / 4 + random() % 6); };
            return y < 250 ? black : PixelColor{noise(), noise(), noise(), 0};
        })};
    for (const BitmapHandle& photo : photos) {
        const auto ours =
            static_cast<double>(EncodePng(photo.get(), OutputType::Png, {}).bytes.size());
        EXPECT_LT(ours,
                  1.1 * static_cast<double>(LibraryFile(FIF_PNG, photo.get(), 0).bytes.size()));
    }
}

TEST(EncodePng, HigherLevelsMakeSmallerFilesOfTheSamePixels) {
    const BitmapHandle bitmap = Mixture({700, 420});
    OutputEncoding encoding(OutputType::Png);
    const QByteArray usual = EncodePng(bitmap.get(), encoding, {}).bytes;
    qsizetype before = 0;
    for (const int level : {1, 2, 5, 9}) {
        SCOPED_TRACE(level);
        encoding.level = level;
        testing::ShuffledRunner shuffled(3);
        const QByteArray file = EncodePng(bitmap.get(), encoding, {.runner = &shuffled}).bytes;
        EXPECT_TRUE(testing::SamePixels(testing::FromFile(FIF_PNG, file).get(), bitmap.get()));
        EXPECT_TRUE(PartsOf(file).sound);
        if (level == 1) {
            EXPECT_GE(file.size(), usual.size());
        } else {
            EXPECT_LT(file.size(), before);
        }
        before = file.size();
    }
    EXPECT_LT(before, usual.size());
}

// Rows so long that filters are chosen by a part of them: each half asks for another filter, and so
// do rows that differ between the samples only.
TEST(EncodePng, WritesLongRowsWhicheverFilterTheyGet) {
    const BitmapHandle bitmap = testing::Painted({5003, 9}, [](int x, int y) {
        const auto slope = static_cast<BYTE>((x < 2500 ? x : y) * 3);
        return PixelColor{slope, static_cast<BYTE>(x * y), static_cast<BYTE>(x % 512 < 130), 0};
    });
    const QByteArray file = EncodePng(bitmap.get(), OutputType::Png, {}).bytes;
    EXPECT_TRUE(testing::SamePixels(testing::FromFile(FIF_PNG, file).get(), bitmap.get()));
}

TEST(EncodePng, SaysWhatLibpngRefuses) {
    const BitmapHandle wide = NewBitmap({1'000'001, 1});
    const EncodedBitmap file = EncodePng(wide.get(), OutputType::Png, {});
    EXPECT_TRUE(file.bytes.isEmpty());
    EXPECT_EQ(file.reason, LibraryFile(FIF_PNG, wide.get(), 0).reason);
}

// Pixels from red to blue, as they are thought of, to blue first, as they are stored.
Bytes Stored(Bytes pixels) {
    for (std::size_t i = 0; i < pixels.size(); i += 3) {
        std::swap(pixels[i], pixels[i + 2]);
    }
    return pixels;
}

TEST(PngFilter, TakesTheFirstOfTheFiltersThatLeaveLeast) {
    const struct {
        Bytes above;
        Bytes row;
        Bytes filtered;
    } cases[] = {
        {{100, 100, 100, 100, 100, 100}, {1, 2, 3, 255, 1, 2}, {0, 1, 2, 3, 255, 1, 2}},
        {{}, {100, 110, 120, 101, 109, 122}, {1, 100, 110, 120, 1, 255, 2}},
        {{10, 200, 90, 180, 20, 250}, {11, 201, 91, 181, 21, 251}, {2, 1, 1, 1, 1, 1, 1}},
        {{100, 101, 100, 50, 60, 71}, {50, 50, 51, 50, 55, 60}, {3, 0, 0, 1, 0, 0, 255}},
        {{10, 10, 20, 50, 50, 50, 50, 50, 50},
         {10, 11, 20, 80, 80, 81, 80, 80, 80},
         {4, 0, 1, 0, 30, 30, 31, 0, 0, 255}},
    };
    for (const auto& [above, row, filtered] : cases) {
        PngFilter filter(row.size(), Stored(above));
        EXPECT_TRUE(std::ranges::equal(filter.Next(Stored(row)), filtered)) << int{filtered[0]};
    }
}

}  // namespace
}  // namespace varnel
