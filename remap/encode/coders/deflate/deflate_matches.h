// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Deflate (RFC 1951) by libdeflate, in pieces that can be put one behind the other.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace varnel {

// Appends the bytes, at least one, coded without a look at what came before them, to be followed by
// others unless they are the last ones. Whole bytes either way. level: libdeflate's, 1 (fast) to 12
// (small). False when the library fails. Throws std::bad_alloc.
bool DeflateMatches(std::span<const std::uint8_t> bytes, int level, bool last,
                    std::vector<std::uint8_t>& target);

}  // namespace varnel
