// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/tiff_coder.h"

#include <gtest/gtest.h>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <bitset>
#include <random>

#include "base/thread_runner.h"
#include "remap/encode/freeimage_encoder.h"
#include "remap/encode/lzw_coder.h"
#include "remap/encode/tiff_directory.h"
#include "remap/image/library_messages.h"
#include "tests/support/bitmaps.h"
#include "tests/support/runners.h"
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
    const std::pair<int, std::size_t> tags[] = {{256, length}, {257, 1}, {258, 8},
                                                {259, 5},      {262, 1}, {273, 8},
                                                {277, 1},      {278, 1}, {279, codes.size()}};
    TiffDirectory directory;
    for (const auto& [tag, number] : tags) {
        directory.fields.push_back({static_cast<std::uint16_t>(tag), 4, 1, {}});
        directory.SetNumbers(static_cast<TiffTag>(tag),
                             std::array{static_cast<std::uint32_t>(number)});
    }
    QByteArray file = TiffHeader() + QByteArray(reinterpret_cast<const char*>(codes.data()),
                                                static_cast<qsizetype>(codes.size()));
    SetDirectory(file, AppendDirectory(file, directory).value());
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
    const LibraryMessages messages;
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

// Every tag but where and how long the strips and the thumbnail are.
std::vector<QByteArray> Tags(const TiffDirectory& directory) {
    std::vector<QByteArray> tags;
    for (const TiffField& field : directory.fields) {
        const bool isPlace = std::ranges::count(std::array{273, 278, 279, 330}, field.tag) > 0;
        tags.push_back(QByteArray::number(field.tag));
        if (!isPlace) {
            tags.back() += ' ' + QByteArray::number(field.type) + ' ' +
                           QByteArray::number(field.count) + ' ' + field.value;
        }
    }
    return tags;
}

void ExpectLikeTheLibrarys(const Bitmap* bitmap) {
    testing::ShuffledRunner runner(7);
    const std::optional<QByteArray> file = EncodeTiffLzw(bitmap, runner);
    const QByteArray expected = LibraryFile(FIF_TIFF, bitmap, TIFF_LZW).bytes;
    ASSERT_TRUE(file);
    EXPECT_LE(file->size(), expected.size() * 103 / 100);
    const auto directory = ReadTiff(*file);
    const auto librarys = ReadTiff(expected);
    ASSERT_TRUE(directory && librarys);
    EXPECT_EQ(Tags(*directory), Tags(*librarys));
    EXPECT_EQ(qFromLittleEndian<quint32>(file->constData() + 4) % 2, 0U);
    ASSERT_EQ(directory->smaller.size(), librarys->smaller.size());
    for (std::size_t n = 0; n < librarys->smaller.size(); ++n) {
        EXPECT_EQ(Tags(directory->smaller[n]), Tags(librarys->smaller[n]));
        EXPECT_EQ(directory->smaller[n].strips, librarys->smaller[n].strips);
    }
    const LibraryMessages unheard;
    const BitmapHandle picture = testing::FromFile(FIF_TIFF, *file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(SizeOf(picture.get()).width, SizeOf(bitmap).width);
    EXPECT_EQ(testing::PixelBytes(picture.get()), testing::PixelBytes(bitmap));
}

TEST(EncodeTiffLzw, WritesPicturesOfAnySizeLikeTheLibrary) {
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

TEST(EncodeTiffLzw, TakesEveryTagAlong) {
    const BitmapHandle photo = testing::In24Bits(testing::DescribedPicture().get());
    photo->metadata.dotsPerMetreX = 11811;
    photo->metadata.dotsPerMetreY = 5906;
    ExpectLikeTheLibrarys(photo.get());
    const BitmapHandle large = testing::Grainy({800, 600});
    large->metadata = photo->metadata;
    ExpectLikeTheLibrarys(large.get());
}

TEST(EncodeTiffLzw, DoesNotDependOnTheRunner) {
    const BitmapHandle photo = testing::Grainy({1200, 1100});
    SerialRunner serial;
    ThreadRunner threads(3);
    testing::ShuffledRunner shuffled(3);
    const std::optional<QByteArray> file = EncodeTiffLzw(photo.get(), serial);
    EXPECT_EQ(file, EncodeTiffLzw(photo.get(), threads));
    EXPECT_EQ(file, EncodeTiffLzw(photo.get(), shuffled));
}

TEST(ReadTiff, TakesNoFileThatIsCutOrPointsElsewhere) {
    const QByteArray file =
        LibraryFile(FIF_TIFF, testing::DescribedPicture().get(), TIFF_LZW).bytes;
    ASSERT_TRUE(ReadTiff(file));
    for (qsizetype length = 0; length < file.size() - 1; length += length < 300 ? 1 : 7) {
        EXPECT_FALSE(ReadTiff(file.first(length))) << length;
    }
    int read = 0;
    for (qsizetype place = 0; place < file.size(); ++place) {
        QByteArray damaged = file;
        damaged[place] = static_cast<char>(damaged[place] ^ (1 << place % 8));
        if (std::optional<TiffDirectory> directory = ReadTiff(damaged)) {
            QByteArray again = TiffHeader();
            read += AppendDirectory(again, std::move(*directory)) ? 1 : 0;
        }
    }
    EXPECT_GT(read, 0);
    constexpr std::pair<std::uint16_t, bool> more[] = {
        {65000, true}, {322, false}, {324, false}, {34665, false}, {34853, false}};
    for (const auto& [tag, isKnown] : more) {
        TiffDirectory directory = *ReadTiff(file);
        directory.fields.push_back({tag, 4, 1, QByteArray(4, '\0')});
        std::ranges::sort(directory.fields, {}, &TiffField::tag);
        directory.SetNumbers(TiffTag::StripOffsets, std::array{8U});
        directory.SetNumbers(TiffTag::StripByteCounts, std::array{1U});
        QByteArray again = TiffHeader();
        SetDirectory(again, AppendDirectory(again, directory).value());
        EXPECT_EQ(ReadTiff(again).has_value(), isKnown) << tag;
    }
}

}  // namespace
}  // namespace varnel
