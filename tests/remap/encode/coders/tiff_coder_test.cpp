// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/tiff_coder.h"

#include <gtest/gtest.h>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <bitset>
#include <random>

#include "base/thread_runner.h"
#include "remap/encode/coders/freeimage_encoder.h"
#include "remap/encode/coders/lzw_coder.h"
#include "remap/image/ifd_reader.h"
#include "remap/image/image_library.h"
#include "tests/support/bitmaps.h"
#include "tests/support/runners.h"
#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel {
namespace {

using Bytes = std::vector<std::uint8_t>;

Bytes Coded(LzwEncoder& encoder, const Bytes& first, const Bytes& second, Bytes* other = nullptr) {
    Bytes room[] = {Bytes(LargestLzw(first.size())), Bytes(LargestLzw(second.size()))};
    LzwStrip strips[] = {{first, room[0].data()}, {second, room[1].data()}};
    encoder.Encode(strips[0], strips[1]);
    for (int n = 0; n < 2; ++n) {
        room[n].resize(strips[n].length);
    }
    if (other != nullptr) {
        *other = room[1];
    }
    return room[0];
}

// By the library, as the one row of a grey picture.
Bytes Decoded(const Bytes& codes, std::size_t length) {
    using enum testing::TiffType;
    testing::TiffBytes tiff(testing::Order::Little);
    const std::uint32_t place = tiff.Data(QByteArray(reinterpret_cast<const char*>(codes.data()),
                                                     static_cast<qsizetype>(codes.size())));
    const auto number = [](std::size_t n) { return static_cast<std::uint32_t>(n); };
    const QByteArray file = tiff.Finish(tiff.Directory({{256, Long, {number(length)}},
                                                        {257, Long, {1}},
                                                        {258, Short, {8}},
                                                        {259, Short, {5}},
                                                        {262, Short, {1}},
                                                        {273, Long, {place}},
                                                        {277, Short, {1}},
                                                        {278, Long, {1}},
                                                        {279, Long, {number(codes.size())}}}));
    const BitmapHandle row = testing::FromFile(FIF_TIFF, file);
    Bytes decoded;
    for (std::size_t x = 0; row && x < row->ScanLine(0).size(); x += 3) {
        decoded.push_back(row->ScanLine(0)[x]);
    }
    return decoded;
}

// Runs of up to a length of bytes of so many levels.
Bytes Noise(std::size_t length, unsigned levels, unsigned run, unsigned seed) {
    std::mt19937 random(seed);
    Bytes bytes(length);
    for (std::size_t n = 0; n < length;) {
        const auto level = static_cast<std::uint8_t>(random() % levels);
        for (std::size_t end = n + 1 + random() % run; n < std::min(end, length); ++n) {
            bytes[n] = level;
        }
    }
    return bytes;
}

TEST(LzwEncoder, WritesWhatAnotherDecoderReads) {
    const ImageLibraryMessages messages;
    std::vector<std::size_t> lengths = {2000, 3834, 3835, 3836, 3837,
                                        3838, 7671, 7672, 7673, 70000};
    for (std::size_t length = 1; length < 300; length += length < 20 ? 1 : 7) {
        lengths.push_back(length);
    }
    constexpr std::pair<unsigned, unsigned> kinds[] = {{256, 1}, {1, 1},    {2, 1},   {7, 1},
                                                       {40, 1},  {256, 40}, {3, 9000}};
    LzwEncoder encoder;
    for (const std::size_t length : lengths) {
        for (const auto& [levels, run] : kinds) {
            const Bytes bytes = Noise(length, levels, run, static_cast<unsigned>(length));
            const Bytes beside = Noise(length * 2 / 3 + 1, 11, 3, 5);
            Bytes second;
            ASSERT_EQ(Decoded(Coded(encoder, bytes, beside, &second), length), bytes);
            ASSERT_EQ(Decoded(second, beside.size()), beside) << length;
        }
    }
    Bytes slope(5000);
    std::ranges::generate(slope, [n = 0]() mutable { return static_cast<std::uint8_t>(n++ / 3); });
    Bytes codes;
    EXPECT_EQ(Coded(encoder, {}, slope, &codes), Bytes{});
    EXPECT_EQ(Decoded(codes, slope.size()), slope);
    EXPECT_EQ(messages.Lines().filter(QStringLiteral("LZW")), QStringList());
}

// A strip takes a generation of the table, of which there are 4095 before the first comes again.
TEST(LzwEncoder, ForgetsOldStripsAfterAnyNumberOfThem) {
    LzwEncoder used;
    Coded(used, Noise(3000, 30, 1, 1), {});
    for (int n = 0; n < 4094; ++n) {
        Coded(used, {9}, {});
    }
    LzwEncoder fresh;
    const Bytes later = Noise(3000, 30, 1, 2);
    EXPECT_EQ(Coded(used, later, {}), Coded(fresh, later, {}));
}

// Where no two bytes follow one another twice, every byte is a code of its own. The reader's table
// gets an entry with each but the first, and is cleared when 4094 is the next.
TEST(LzwEncoder, WidensAndClearsWhereTiffHasIt) {
    LzwEncoder encoder;
    for (const std::size_t length : {1, 253, 254, 255, 766, 1790, 3835, 3836, 3837, 7672, 7673}) {
        Bytes bytes(length);
        std::string bits = "100000000";
        unsigned next = 258;
        const auto put = [&bits, &next](unsigned code) {
            const int width = next < 512 ? 9 : next < 1024 ? 10 : next < 2048 ? 11 : 12;
            bits += std::bitset<12>(code).to_string().substr(static_cast<std::size_t>(12 - width));
        };
        for (std::size_t n = 0; n < length; ++n) {
            bytes[n] = static_cast<std::uint8_t>((n % 256) * (2 * (n / 256) + 1) + n / 256);
            put(bytes[n]);
            if (++next == 4094) {
                put(256);
                next = 258;
            }
        }
        put(257);
        Bytes expected;
        for (bits.append((8 - bits.size() % 8) % 8, '0'); !bits.empty(); bits.erase(0, 8)) {
            expected.push_back(static_cast<std::uint8_t>(std::stoi(bits.substr(0, 8), nullptr, 2)));
        }
        EXPECT_EQ(Coded(encoder, bytes, {}), expected) << length;
    }
}

// Every tag with type, number and values, but for where and how long the strips are.
std::vector<QByteArray> Tags(const QByteArray& file) {
    const IfdReader reader(file);
    const Ifd directory = reader.Directory(reader.First());
    EXPECT_TRUE(directory.isWhole);
    EXPECT_EQ(directory.next, 0U);
    EXPECT_EQ(reader.First() % 2, 0U);
    std::vector<QByteArray> tags;
    for (const IfdEntry& entry : directory.entries) {
        const bool isPlace = std::ranges::count(std::array{273, 278, 279}, entry.tag) > 0;
        tags.push_back(QByteArray::number(entry.tag));
        if (!isPlace) {
            tags.back() += ' ' + QByteArray::number(entry.type) + ' ' +
                           QByteArray::number(entry.count) + ' ' + reader.Bytes(entry, file.size());
        }
    }
    return tags;
}

void ExpectLikeTheLibrarys(const Bitmap* bitmap) {
    testing::ShuffledRunner runner(7);
    const QByteArray file = EncodeTiff(bitmap, OutputType::Tiff, {.runner = &runner}).bytes;
    const QByteArray expected = LibraryFile(FIF_TIFF, bitmap, TIFF_LZW).bytes;
    EXPECT_LE(file.size(), expected.size() * 103 / 100);
    EXPECT_EQ(Tags(file), Tags(expected));
    const ImageLibraryMessages unheard;
    const BitmapHandle picture = testing::FromFile(FIF_TIFF, file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(SizeOf(picture.get()).width, SizeOf(bitmap).width);
    EXPECT_EQ(testing::PixelBytes(picture.get()), testing::PixelBytes(bitmap));
}

TEST(EncodeTiff, WritesPicturesOfAnySizeLikeTheLibrary) {
    for (const PixelSize size : {PixelSize{1, 1},
                                 {2, 3},
                                 {7, 1},
                                 {1, 300},
                                 {700, 501},
                                 {50001, 8},
                                 {5, 70000},
                                 {2500, 2300}}) {
        SCOPED_TRACE(::testing::Message() << size.width << " x " << size.height);
        ExpectLikeTheLibrarys(testing::Grainy(size).get());
    }
}

TEST(EncodeTiff, TakesEveryTagAlong) {
    const BitmapHandle photo = testing::In24Bits(testing::DescribedPicture().get());
    photo->metadata.dotsPerMetreX = 11811;
    photo->metadata.dotsPerMetreY = 5906;
    ExpectLikeTheLibrarys(photo.get());
    const BitmapHandle large = testing::Grainy({800, 600});
    large->metadata = photo->metadata;
    ExpectLikeTheLibrarys(large.get());
}

TEST(EncodeTiff, DoesNotDependOnTheRunner) {
    const BitmapHandle photo = testing::Grainy({1200, 1100});
    SerialRunner serial;
    ThreadRunner threads(3);
    testing::ShuffledRunner shuffled(3);
    const auto file = [&](BlockRunner& runner) {
        return EncodeTiff(photo.get(), OutputType::Tiff, {.runner = &runner}).bytes;
    };
    EXPECT_EQ(file(serial), file(threads));
    EXPECT_EQ(file(serial), file(shuffled));
}

// The photo's own entries keep values that libtiff would change: a fraction that is not reduced, a
// text with a zero byte inside, a type of its own. Those that point elsewhere are left out.
TEST(EncodeTiff, TakesThePhotosEntriesAsTheyAre) {
    using enum testing::TiffType;
    for (const testing::Order order : {testing::Order::Little, testing::Order::Big}) {
        testing::TiffBytes tiff(order);
        const std::uint32_t first = tiff.Directory({{256, Short, {9}},
                                                    {282, Fraction, {600, 2}},
                                                    {33432, Text, {}, QByteArray("one\0two", 8)},
                                                    {65000, Long, {7}}});
        const BitmapHandle photo = testing::Grainy({40, 30});
        PhotoMetadata& metadata = photo->metadata.photo;
        metadata.exif.bytes = tiff.Finish(first);
        metadata.tiffEntries = metadata.exif.bytes.mid(first + 2, 4 * 12);
        const QByteArray astray = QByteArray(metadata.tiffEntries.sliced(24, 12));
        metadata.tiffEntries += QByteArray(astray).replace(8, 4, QByteArray(4, '\x7f'));
        metadata.tiffEntries[4 * 12] = metadata.tiffEntries[4 * 12 + 1] = '\x7d';
        const QByteArray file = EncodeTiff(photo.get(), OutputType::Tiff, {}).bytes;
        const IfdReader reader(file);
        EXPECT_EQ(reader.IsBigEndian(), order == testing::Order::Big);
        const Ifd directory = reader.Directory(reader.First());
        EXPECT_TRUE(std::ranges::is_sorted(directory.entries, {}, &IfdEntry::tag));
        EXPECT_EQ(reader.Number(directory.Find(256)), 40U);
        EXPECT_EQ(reader.Number(directory.Find(65000)), 7U);
        ASSERT_NE(directory.Find(33432), nullptr);
        EXPECT_EQ(reader.Bytes(*directory.Find(33432), 99), QByteArray("one\0two", 8));
        const QByteArray fraction = reader.Bytes(*directory.Find(282), 8);
        EXPECT_EQ(fraction, testing::Number(600, 4, order) + testing::Number(2, 4, order));
        EXPECT_EQ(directory.Find(0x7d7d), nullptr);
        const ImageLibraryMessages unheard;
        EXPECT_TRUE(testing::SamePixels(testing::FromFile(FIF_TIFF, file).get(), photo.get()));
    }
}

TEST(EncodeTiff, RefusesAFileThatIsTooLarge) {
    const BitmapHandle photo = testing::Grainy({400, 300});
    const qint64 whole = EncodeTiff(photo.get(), OutputType::Tiff, {}).bytes.size();
    for (const qint64 largest : {qint64{0}, qint64{7}, whole / 2, whole - 1}) {
        const EncodedBitmap file = EncodeTiff(photo.get(), OutputType::Tiff, {.largest = largest});
        EXPECT_TRUE(file.bytes.isEmpty());
        EXPECT_EQ(file.reason, Reason(ReasonCode::FileTooLarge, largest));
    }
}

}  // namespace
}  // namespace varnel
