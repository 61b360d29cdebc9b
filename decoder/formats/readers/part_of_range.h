// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Samples of any number of bits brought to 16. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

// The same part of the range, rounded; bits 1 to 32.
constexpr std::uint16_t ToWord(std::uint32_t sample, int bits) {
    const std::uint64_t most = (std::uint64_t{1} << bits) - 1;
    return static_cast<std::uint16_t>((std::uint64_t{sample} * 65535 + most / 2) / most);
}

}  // namespace varnel
