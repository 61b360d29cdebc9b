// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/deflate/deflate_matches.h"

#include <libdeflate.h>
#include <zlib.h>

#include <algorithm>
#include <memory>
#include <new>
#include <optional>

#include "base/released_by.h"

namespace varnel {

namespace {

// Where libdeflate's last block begins and ends, in bits. It codes whole streams only, whose last
// block is marked, and does not tell where that is, so zlib has to read them.
struct LastBlock {
    std::size_t start = 0;
    std::size_t end = 0;
};

std::optional<LastBlock> FindLastBlock(std::span<std::uint8_t> coded, std::size_t bytes) {
    constexpr int rawDeflate = -15;
    constexpr int unusedBits = 7;  // parts of data_type
    constexpr int isLast = 64;
    constexpr int isBetweenBlocks = 128;
    const auto decoded = std::make_unique_for_overwrite<std::uint8_t[]>(bytes);
    z_stream stream{};
    if (inflateInit2(&stream, rawDeflate) != Z_OK) {
        throw std::bad_alloc();
    }
    stream.next_in = coded.data();
    stream.avail_in = static_cast<uInt>(coded.size());
    stream.next_out = decoded.get();
    stream.avail_out = static_cast<uInt>(bytes);
    LastBlock block;
    bool isFound = false;
    while (!isFound && inflate(&stream, Z_BLOCK) == Z_OK &&
           (stream.data_type & isBetweenBlocks) != 0) {
        isFound = (stream.data_type & isLast) != 0;
        (isFound ? block.end : block.start) =
            8 * std::size_t{stream.total_in} -
            static_cast<std::size_t>(stream.data_type & unusedBits);
    }
    inflateEnd(&stream);
    return isFound ? std::optional(block) : std::nullopt;
}

}  // namespace

bool DeflateMatches(std::span<const std::uint8_t> bytes, int level, bool last,
                    std::vector<std::uint8_t>& target) {
    const std::unique_ptr<libdeflate_compressor, ReleasedBy<libdeflate_free_compressor>> compressor(
        libdeflate_alloc_compressor(level));
    if (!compressor) {
        throw std::bad_alloc();
    }
    const std::size_t before = target.size();
    const std::size_t room = libdeflate_deflate_compress_bound(compressor.get(), bytes.size());
    target.resize(before + room);
    const std::size_t length = libdeflate_deflate_compress(
        compressor.get(), bytes.data(), bytes.size(), target.data() + before, room);
    target.resize(before + length);
    if (last || length == 0) {
        return length > 0;
    }
    const std::span coded = std::span(target).subspan(before);
    const std::optional<LastBlock> block = FindLastBlock(coded, bytes.size());
    if (!block) {
        return false;
    }
    coded[block->start / 8] &= static_cast<std::uint8_t>(~(1U << block->start % 8));
    // An empty block of stored bytes: three zero bits, and as many as fill up a byte.
    const std::size_t start = (block->end + 3 + 7) / 8;
    target.resize(before + start);
    constexpr std::uint8_t noBytes[] = {0, 0, 0xFF, 0xFF};
    target.insert(target.end(), std::begin(noBytes), std::end(noBytes));
    return true;
}

}  // namespace varnel
