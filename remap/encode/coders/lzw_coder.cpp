// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/lzw_coder.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <bit>

namespace varnel {

namespace {

constexpr std::uint32_t clearCode = 256;
constexpr std::uint32_t endCode = 257;
constexpr std::uint32_t firstFree = 258;
constexpr std::uint32_t fullTable = 4094;  // the entry that is never made: the table is cleared
constexpr std::uint32_t codesPerTable = fullTable - firstFree;
constexpr int codeBits = 12;
constexpr int byteBits = 8;
constexpr std::uint32_t generations = 1U << (32 - codeBits - byteBits);
constexpr int tableBits = 16;

}  // namespace

// An entry of the table is a string's code, its last byte, and the generation that it belongs to:
// taking the next generation clears the table. The slot is the code of the string without its last
// byte, scrambled by that byte, so that slot and byte together identify the string. A newer string
// takes the slot of an older one: forgetting a string costs a little size and is never wrong, since
// a code always means to the reader what was stored with it.
struct LzwEncoder::Stream {
    std::array<std::uint32_t, std::size_t{1} << tableBits> table{};
    std::array<std::uint16_t, codesPerTable> codes;  // since the table was cleared
    std::uint32_t generation = 0;
    std::uint8_t* out = nullptr;
    std::uint64_t bits = 0;
    int pending = 0;  // of the bits

    void NextGeneration() {
        if (++generation == generations) {
            table.fill(0);
            generation = 1;
        }
    }

    void Put(std::uint32_t code, int width) {
        bits = bits << width | code;
        pending += width;
    }

    void WriteBits() {
        qToBigEndian<quint64>(bits << (64 - pending), out);
        out += pending / 8;
        pending %= 8;
    }

    // The width depends on the entries that the reader is about to have.
    void PutCodes(std::uint32_t count) {
        std::uint32_t n = 0;
        for (int width = 9; width <= codeBits; ++width) {
            const std::uint32_t end = std::min(count, (1U << width) - firstFree);
            for (; n + 4 <= end; n += 4) {
                Put(codes[n], width);
                Put(codes[n + 1], width);
                Put(codes[n + 2], width);
                Put(codes[n + 3], width);
                WriteBits();
            }
            for (; n < end; ++n) {
                Put(codes[n], width);
                WriteBits();
            }
        }
    }

    void PutAlone(std::uint32_t code, std::uint32_t count) {
        Put(code, std::bit_width(firstFree + count));
        WriteBits();
    }

    void FinishTable() {
        PutCodes(codesPerTable);
        PutAlone(clearCode, codesPerTable);
        NextGeneration();
    }
};

// What changes with every byte.
struct LzwEncoder::Cursor {
    const std::uint8_t* next;
    std::uint32_t code;   // of the string that the bytes before next end with
    std::uint32_t count;  // codes since the table was cleared
    std::uint32_t tag;    // the generation, in its place in an entry

    Cursor(Stream& stream, const LzwStrip& strip)
        : next(strip.bytes.data() + 1), code(strip.bytes.front()), count(0) {
        stream.out = strip.codes;
        stream.bits = 0;
        stream.pending = 0;
        stream.PutAlone(clearCode, 0);
        stream.NextGeneration();
        SetTag(stream);
    }

    void SetTag(const Stream& stream) { tag = stream.generation << (codeBits + byteBits); }

    std::size_t Finish(Stream& stream, const std::uint8_t* start) {
        stream.codes[count++] = static_cast<std::uint16_t>(code);
        stream.PutCodes(count);
        if (count == codesPerTable) {
            stream.PutAlone(clearCode, count);
            count = 0;
        }
        stream.PutAlone(endCode, count);
        return static_cast<std::size_t>(stream.out - start) + (stream.pending > 0 ? 1 : 0);
    }
};

// No branch on whether the string is known: that cannot be predicted, and a wrong guess costs more
// than all the rest. The arithmetic keeps the compiler from making one.
inline void LzwEncoder::Step(Stream& stream, Cursor& cursor) {
    const std::uint32_t byte = *cursor.next++;
    const std::uint32_t expected = cursor.tag | byte << codeBits;
    const std::uint32_t scramble = (byte * 0x9E3779B1U) >> (32 - tableBits);
    std::uint32_t& entry = stream.table[scramble ^ cursor.code];
    const std::uint32_t found = entry ^ expected;  // the string's code, if it is the string
    const std::uint32_t fresh = firstFree + cursor.count;
    const auto known = static_cast<std::uint32_t>((std::uint64_t{found} - (1U << codeBits)) >> 63);
    const std::uint32_t mask = 0U - known;
    entry = expected | (fresh ^ ((fresh ^ found) & mask));
    stream.codes[cursor.count] = static_cast<std::uint16_t>(cursor.code);
    cursor.code = byte ^ ((byte ^ found) & mask);
    cursor.count += 1 - known;
    if (cursor.count == codesPerTable) [[unlikely]] {
        stream.FinishTable();
        cursor.count = 0;
        cursor.SetTag(stream);
    }
}

// The loops work on copies, which the compiler can keep in registers.
void LzwEncoder::Advance(Stream& stream, Cursor& cursor, std::size_t steps) {
    Cursor local = cursor;
    for (std::size_t n = 0; n < steps; ++n) {
        Step(stream, local);
    }
    cursor = local;
}

void LzwEncoder::AdvanceBoth(Stream* streams, Cursor& first, Cursor& second, std::size_t steps) {
    Cursor a = first;
    Cursor b = second;
    for (std::size_t n = 0; n < steps; ++n) {
        Step(streams[0], a);
        Step(streams[1], b);
    }
    first = a;
    second = b;
}

LzwEncoder::LzwEncoder() : streams_(std::make_unique<Stream[]>(2)) {}

LzwEncoder::~LzwEncoder() = default;

void LzwEncoder::EncodeAlone(LzwStrip& strip) {
    strip.length = 0;
    if (!strip.bytes.empty()) {
        Cursor cursor(streams_[0], strip);
        Advance(streams_[0], cursor, strip.bytes.size() - 1);
        strip.length = cursor.Finish(streams_[0], strip.codes);
    }
}

void LzwEncoder::Encode(LzwStrip& first, LzwStrip& second) {
    if (first.bytes.empty() || second.bytes.empty()) {
        EncodeAlone(first);
        EncodeAlone(second);
        return;
    }
    Cursor a(streams_[0], first);
    Cursor b(streams_[1], second);
    const std::size_t together = std::min(first.bytes.size(), second.bytes.size()) - 1;
    AdvanceBoth(streams_.get(), a, b, together);
    Advance(streams_[0], a, first.bytes.size() - 1 - together);
    Advance(streams_[1], b, second.bytes.size() - 1 - together);
    first.length = a.Finish(streams_[0], first.codes);
    second.length = b.Finish(streams_[1], second.codes);
}

}  // namespace varnel
