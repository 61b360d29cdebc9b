// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How far apart the rows of a 24-bit bitmap lie.
#pragma once

#include <cstddef>
#include <cstdint>

namespace varnel {

// Bytes; whole groups of four, as the image library has them.
constexpr std::size_t RowPitch(std::int32_t width) {
    return (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
}

}  // namespace varnel
