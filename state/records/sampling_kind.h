// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How pixels are read between those of the photo. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

enum class SamplingKind : std::uint8_t {
    Classic,  // a blend of the four nearest pixels
    Fine,     // a wider kernel in linear light, which averages where the photo is made smaller
};

}  // namespace varnel
