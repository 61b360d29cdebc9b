// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TIFF's LZW: codes of 9 to 12 bits, high bits first. A strip begins with the code that clears the
// table; the width grows one code early, as TIFF 6.0 has it. The constructor throws std::bad_alloc,
// the rest nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

namespace varnel {

struct LzwStrip {
    std::span<const std::uint8_t> bytes;
    std::uint8_t* codes = nullptr;  // with room for LargestLzw(bytes.size())
    std::size_t length = 0;         // of the codes, in bytes
};

// Room for the codes of so many bytes at 12 bits each, and for writing in words.
constexpr std::size_t LargestLzw(std::size_t bytes) {
    return 2 * bytes + 16;
}

// Its tables are 512 kB: use one for many strips.
class LzwEncoder {
  public:
    LzwEncoder();
    ~LzwEncoder();
    LzwEncoder(const LzwEncoder&) = delete;
    LzwEncoder& operator=(const LzwEncoder&) = delete;

    // Two strips at once, because each byte waits for the one before it in its own strip only. A
    // strip without bytes gets no codes.
    void Encode(LzwStrip& first, LzwStrip& second);

  private:
    struct Stream;
    struct Cursor;
    void EncodeAlone(LzwStrip& strip);
    static void Step(Stream& stream, Cursor& cursor);
    static void Advance(Stream& stream, Cursor& cursor, std::size_t steps);
    static void AdvanceBoth(Stream* streams, Cursor& first, Cursor& second, std::size_t steps);
    std::unique_ptr<Stream[]> streams_;
};

}  // namespace varnel
