// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The prefix codes of deflate (RFC 1951, 3.2.2). Throws nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace varnel {

inline constexpr std::size_t mostSymbols = 286;  // of literals, the end, and lengths

// The lengths of the codes, in bits, that the counts of up to 286 symbols ask for, of at most
// `most` bits each (with room for all: 9 or more for 286). Symbols that do not occur get 0, a
// single one 1.
void CodeLengths(std::span<const std::uint32_t> counts, int most, std::span<std::uint8_t> lengths);

// The codes of such lengths, the bit that is written first as the lowest one.
void AssignCodes(std::span<const std::uint8_t> lengths, std::span<std::uint16_t> codes);

}  // namespace varnel
