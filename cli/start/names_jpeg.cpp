// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/start/names_jpeg.h"

#include <strings.h>

#include <algorithm>
#include <array>
#include <cstring>

namespace varnel {

namespace {

bool EndsLikeJpeg(const char* word) {
    constexpr std::array endings{".jpg", ".jpeg"};
    const std::size_t length = std::strlen(word);
    return std::ranges::any_of(endings, [&](const char* ending) {
        const std::size_t last = std::strlen(ending);
        return word[0] != '-' && length > last && strcasecmp(word + length - last, ending) == 0;
    });
}

}  // namespace

bool NamesJpeg(int argc, const char* const* argv) {
    return argc > 1 && std::any_of(argv + 1, argv + argc, &EndsLikeJpeg);
}

}  // namespace varnel
