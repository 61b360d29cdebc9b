// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>
#include <zlib.h>

#include <algorithm>
#include <array>
#include <functional>
#include <numeric>
#include <random>

#include "remap/encode/coders/deflate/deflate_matches.h"
#include "remap/encode/coders/deflate/deflate_runs.h"
#include "remap/encode/coders/deflate/prefix_code.h"

namespace varnel {
namespace {

using Bytes = std::vector<std::uint8_t>;

// By zlib; empty unless the codes are one whole stream.
Bytes Decoded(Bytes codes, std::size_t length) {
    Bytes bytes(length + 1);
    z_stream stream{};
    inflateInit2(&stream, -15);
    stream.next_in = codes.data();
    stream.avail_in = static_cast<uInt>(codes.size());
    stream.next_out = bytes.data();
    stream.avail_out = static_cast<uInt>(bytes.size());
    const bool isWhole = inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.avail_in == 0;
    bytes.resize(isWhole ? stream.total_out : 0);
    inflateEnd(&stream);
    return bytes;
}

// Runs of up to a length of bytes of so many levels, rarer ones rarer.
Bytes Noise(std::size_t length, unsigned levels, unsigned run, unsigned seed) {
    std::mt19937 random(seed);
    Bytes bytes(length);
    for (std::size_t n = 0; n < length;) {
        const auto level = static_cast<std::uint8_t>(random() % levels * (random() % 256) / 255);
        for (std::size_t end = n + 1 + random() % run; n < std::min(end, length); ++n) {
            bytes[n] = level;
        }
    }
    return bytes;
}

std::vector<Bytes> Kinds() {
    std::vector<Bytes> kinds;
    // Of all lengths about those of a run's codes and of the steps it is looked for in.
    for (std::size_t length = 1; length < 30; ++length) {
        kinds.push_back(Noise(length, 3, 9, 1));
    }
    for (const std::size_t run : {4, 5, 258, 259, 262, 263, 516, 519, 521, 3000}) {
        Bytes& kind = kinds.emplace_back(Noise(50, 256, 1, 2));
        kind.insert(kind.end(), run, 77);
        kind.insert(kind.end(), run + 1, 78);
        kind.push_back(79);
    }
    for (const std::size_t length : {131071, 131072, 131073}) {
        kinds.push_back(Noise(length, 256, 1, 3));
        kinds.push_back(Noise(length, 1, 1, 4));
        kinds.push_back(Noise(length, 60, 30, 5));
        kinds.push_back(Noise(length, 256, 700, 6));
    }
    return kinds;
}

TEST(Deflate, PiecesOneBehindTheOtherAreOneStream) {
    using Coder = std::function<void(const Bytes&, bool, Bytes&)>;
    std::vector<Coder> coders{
        [](const Bytes& bytes, bool last, Bytes& target) { DeflateRuns(bytes, last, target); }};
    for (const int level : {1, 9}) {
        coders.emplace_back([level](const Bytes& bytes, bool last, Bytes& target) {
            EXPECT_TRUE(DeflateMatches(bytes, level, last, target));
        });
    }
    Bytes all;
    for (const Bytes& kind : Kinds()) {
        all.insert(all.end(), kind.begin(), kind.end());
    }
    for (const Coder& coder : coders) {
        Bytes joined;
        for (const Bytes& kind : Kinds()) {
            coder(kind, false, joined);
            Bytes alone;
            coder(kind, true, alone);
            ASSERT_EQ(Decoded(alone, kind.size()), kind) << kind.size();
        }
        Bytes one;
        coder({9}, true, one);
        joined.insert(joined.end(), one.begin(), one.end());
        Bytes expected = all;
        expected.push_back(9);
        EXPECT_EQ(Decoded(joined, expected.size()), expected);
    }
}

Bytes ByZlibsRuns(const Bytes& bytes) {
    Bytes codes(bytes.size() + bytes.size() / 8 + 100);
    z_stream stream{};
    deflateInit2(&stream, 1, Z_DEFLATED, -15, 9, Z_RLE);
    stream.next_in = const_cast<Bytef*>(bytes.data());
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = codes.data();
    stream.avail_out = static_cast<uInt>(codes.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    codes.resize(stream.total_out);
    deflateEnd(&stream);
    return codes;
}

// Zlib's runs may be shorter by a byte, which is seen where all are short.
TEST(DeflateRuns, IsAboutAsSmallAsZlibsRuns) {
    for (const Bytes& bytes :
         {Noise(500000, 256, 1, 1), Noise(500000, 20, 1, 2), Noise(500000, 9, 6, 3),
          Noise(500000, 200, 40, 4), Bytes(500000), Noise(500000, 2, 1, 5)}) {
        Bytes codes;
        DeflateRuns(bytes, true, codes);
        EXPECT_LE(codes.size(), ByZlibsRuns(bytes).size() * 105 / 100 + 400);
    }
}

TEST(CodeLengths, AreHuffmansUpToTheLimit) {
    const struct {
        std::vector<std::uint32_t> counts;
        int most;
        std::vector<std::uint8_t> lengths;
    } cases[] = {{{0, 0, 0}, 15, {0, 0, 0}},
                 {{0, 7, 0}, 15, {0, 1, 0}},
                 {{3, 0, 900}, 15, {1, 0, 1}},
                 {{4, 1, 2, 1}, 15, {1, 3, 2, 3}},
                 {{5, 5, 5, 5}, 15, {2, 2, 2, 2}},
                 {{1, 1, 2, 3, 5, 8}, 15, {5, 5, 4, 3, 2, 1}},
                 {{1, 1, 2, 3, 5, 8}, 3, {3, 3, 3, 3, 2, 2}}};
    for (const auto& [counts, most, expected] : cases) {
        std::vector<std::uint8_t> lengths(counts.size(), 99);
        CodeLengths(counts, most, lengths);
        EXPECT_EQ(lengths, expected);
    }
}

// Counts whose tree is as deep as it can be, where the limit takes the most.
TEST(CodeLengths, TakeUpTheWholeCodeWithinTheLimit) {
    for (const std::size_t symbols : {30, 45, 128}) {
        std::vector<std::uint32_t> counts(symbols, 1);
        for (std::size_t n = 2; n < 44 && n < symbols; ++n) {
            counts[n] = counts[n - 1] + counts[n - 2];
        }
        for (const int most : {7, 9, 14, 15}) {
            std::vector<std::uint8_t> lengths(symbols);
            CodeLengths(counts, most, lengths);
            EXPECT_LE(std::ranges::max(lengths), most);
            const int taken = std::accumulate(
                lengths.begin(), lengths.end(), 0,
                [most](int sum, int length) { return sum + (1 << (most - length)); });
            EXPECT_EQ(taken, 1 << most) << symbols;
        }
    }
}

// The example of RFC 1951, each code read from its last bit.
TEST(AssignCodes, CountsUpwardAsDeflateDoes) {
    const std::array<std::uint8_t, 8> lengths{3, 3, 3, 3, 3, 2, 4, 4};
    const std::array<std::uint16_t, 8> expected{0b010, 0b110, 0b001,  0b101,
                                                0b011, 0b00,  0b0111, 0b1111};
    std::array<std::uint16_t, 8> codes{};
    AssignCodes(lengths, codes);
    EXPECT_EQ(codes, expected);
}

}  // namespace
}  // namespace varnel
