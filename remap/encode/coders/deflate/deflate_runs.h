// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Deflate (RFC 1951) that looks for nothing but runs of one byte. Filtered photos are noise and
// runs, for which it makes files as small as zlib's Z_RLE does, in a small part of its time.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace varnel {

// Appends the bytes, coded without a look at what came before them, to be followed by others unless
// they are the last ones. Whole bytes either way. Throws std::bad_alloc.
void DeflateRuns(std::span<const std::uint8_t> bytes, bool last, std::vector<std::uint8_t>& target);

}  // namespace varnel
