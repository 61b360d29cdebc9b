// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A size in pixels, of a picture or of a box to fit one into. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

struct PixelSize {
    std::int32_t width = 0;
    std::int32_t height = 0;
};

}  // namespace varnel
