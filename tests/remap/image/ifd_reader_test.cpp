// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/ifd_reader.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace varnel {
namespace {

using Numbers = std::vector<std::uint64_t>;

// A header, at place 8 a directory of three entries, behind it two fractions, at place 66 one more
// entry in a directory that nothing follows.
QByteArray Block(bool bigEndian) {
    const QByteArray hex = bigEndian ? "4d4d002a00000008"
                                       "0003"
                                       "0112"
                                       "0003"
                                       "00000001"
                                       "00060000"
                                       "011a"
                                       "0005"
                                       "00000002"
                                       "00000032"
                                       "9999"
                                       "0004"
                                       "00000001"
                                       "01020304"
                                       "00000042"
                                       "0000004800000001"
                                       "0000012c00000002"
                                       "0001"
                                       "0100"
                                       "0001"
                                       "00000002"
                                       "07080000"
                                       "00000000"
                                     : "49492a0008000000"
                                       "0300"
                                       "1201"
                                       "0300"
                                       "01000000"
                                       "06000000"
                                       "1a01"
                                       "0500"
                                       "02000000"
                                       "32000000"
                                       "9999"
                                       "0400"
                                       "01000000"
                                       "04030201"
                                       "42000000"
                                       "4800000001000000"
                                       "2c01000002000000"
                                       "0100"
                                       "0001"
                                       "0100"
                                       "02000000"
                                       "07080000"
                                       "00000000";
    return QByteArray::fromHex(hex);
}

class IfdReaderOrder : public ::testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(Orders, IfdReaderOrder, ::testing::Bool(), [](const auto& isBig) {
    return std::string(isBig.param ? "BigEndian" : "LittleEndian");
});

TEST_P(IfdReaderOrder, ReadsEntriesAndWhatTheyPointAt) {
    const QByteArray block = Block(GetParam());
    const IfdReader reader(block);
    ASSERT_TRUE(reader.IsTiff());
    EXPECT_EQ(reader.IsBigEndian(), GetParam());
    const Ifd first = reader.Directory(reader.First());
    ASSERT_TRUE(first.isWhole);
    ASSERT_EQ(first.entries.size(), 3U);
    EXPECT_EQ(reader.Number(first.Find(274)), 6U);
    EXPECT_EQ(reader.LongPlace(first.Find(274)), 0U);
    const IfdEntry& fractions = *first.Find(282);
    EXPECT_EQ(fractions.valuePlace, 50U);
    EXPECT_TRUE(reader.HoldsValues(fractions));
    EXPECT_EQ(reader.Numbers(fractions, 9).size(), 2U);
    EXPECT_EQ(reader.Numbers(fractions, 1).size(), 1U);
    EXPECT_EQ(reader.Bytes(fractions, 3), block.mid(50, 3));
    EXPECT_EQ(reader.Number(first.Find(0x9999)), 0x01020304U);
    EXPECT_EQ(reader.LongPlace(first.Find(0x9999)), 42U);
    EXPECT_EQ(first.Find(700), nullptr);
    const Ifd second = reader.Directory(first.next);
    ASSERT_TRUE(second.isWhole);
    EXPECT_EQ(second.next, 0U);
    EXPECT_EQ(reader.Numbers(second.entries.at(0), 9), (Numbers{7, 8}));
    EXPECT_EQ(reader.Number(&second.entries.at(0)), 0U) << "there are two";
}

// Wherever the bytes end: no read beyond them, and what is said to be there is there.
TEST_P(IfdReaderOrder, KnowsWhatIsCut) {
    const QByteArray whole = Block(GetParam());
    for (qsizetype length = 0; length <= whole.size(); ++length) {
        const IfdReader reader(QByteArrayView(whole).first(length));
        ASSERT_EQ(reader.IsTiff(), length >= 8) << length;
        const Ifd first = reader.IsTiff() ? reader.Directory(reader.First()) : Ifd();
        EXPECT_EQ(first.isWhole, length >= 46) << length;
        const IfdEntry* const fractions = first.Find(282);
        EXPECT_EQ(fractions != nullptr && fractions->count == 2, length >= 34) << length;
        EXPECT_EQ(reader.Number(first.Find(274)), length >= 20 ? 6U : 0U) << length;
        EXPECT_EQ(fractions != nullptr && reader.HoldsValues(*fractions), length >= 66) << length;
        EXPECT_EQ(fractions != nullptr && reader.Numbers(*fractions, 9).size() == 2, length >= 66);
    }
}

TEST_P(IfdReaderOrder, StaysWithinTheBlockWhateverBitIsWrong) {
    const QByteArray whole = Block(GetParam());
    for (qsizetype bit = 0; bit < 8 * whole.size(); ++bit) {
        QByteArray block = whole;
        block[bit / 8] = static_cast<char>(block[bit / 8] ^ (1 << (bit % 8)));
        const IfdReader reader(block);
        const Ifd first = reader.IsTiff() ? reader.Directory(reader.First()) : Ifd();
        for (const IfdEntry& entry : first.entries) {
            EXPECT_LE(reader.Numbers(entry, 9).size(), 9U) << bit;
            EXPECT_LE(reader.Bytes(entry, 9).size(), 9) << bit;
            EXPECT_TRUE(!reader.HoldsValues(entry) || reader.Holds(entry.valuePlace, 1)) << bit;
        }
        reader.Directory(first.next);
    }
}

TEST(IfdReader, ReadsTheVariantWithLongOffsets) {
    const QByteArray file = QByteArray::fromHex(
        "49492b00080000001000000000000000"
        "0100000000000000"
        "2a01"
        "1000"
        "0100000000000000"
        "0807060504030201"
        "0000000000000000");
    const IfdReader reader(file);
    ASSERT_TRUE(reader.IsTiff());
    const Ifd directory = reader.Directory(reader.First());
    ASSERT_TRUE(directory.isWhole);
    EXPECT_EQ(reader.Numbers(directory.entries.at(0), 2), (Numbers{0x0102030405060708}));
    EXPECT_FALSE(IfdReader(QByteArrayView(file).first(15)).IsTiff());
}

// Places and counts up to their types' limits: sums and products of them must not go round.
TEST(IfdReader, FindsNothingBeyondTheEnd) {
    constexpr std::uint64_t far = ~std::uint64_t{0};
    const QByteArray block = Block(false);
    const IfdReader reader(block);
    EXPECT_FALSE(reader.Holds(far, 1));
    EXPECT_FALSE(reader.Holds(1, far));
    EXPECT_FALSE(reader.Directory(far).isWhole);
    EXPECT_FALSE(reader.Directory(far - 1).isWhole);
    EXPECT_FALSE(reader.Directory(0).isWhole);
    for (const std::uint16_t type : std::to_array<std::uint16_t>({5, 12, 16})) {
        const IfdEntry entry{1, type, far / 8 + 2, 0, 8};
        EXPECT_FALSE(reader.HoldsValues(entry));
        EXPECT_FALSE(reader.HoldsValues({1, type, 1, 0, far}));
        EXPECT_TRUE(reader.Numbers({1, type, 1, 0, far}, 1).empty());
        EXPECT_LE(reader.Numbers(entry, 1 << 30).size(), 10U);
    }
    EXPECT_FALSE(reader.HoldsValues({1, 14, 1, 0, 8})) << "a type that means nothing";
    EXPECT_TRUE(reader.Numbers({1, 99, 1, 0, 8}, 1).empty());
}

TEST(IfdReader, ReadsNoDirectoryOfMoreEntriesThanAnyProgramWrites) {
    const QByteArray file = QByteArray::fromHex(
                                "49492b00080000001000000000000000"
                                "0000010000000000") +
                            QByteArray(20 * 65536 + 8, '\1');
    const IfdReader reader(file);
    const Ifd directory = reader.Directory(reader.First());
    EXPECT_TRUE(directory.isWhole);
    EXPECT_TRUE(directory.entries.empty());
}

}  // namespace
}  // namespace varnel
