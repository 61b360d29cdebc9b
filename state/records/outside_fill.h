// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a result has where the photo shows nothing. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

struct OutsideFill {
    enum class Kind : std::uint8_t { Black, Transparent, Colour };

    Kind kind = Kind::Black;
    std::uint8_t red = 0, green = 0, blue = 0;  // of a colour

    bool operator==(const OutsideFill&) const = default;
};

}  // namespace varnel
