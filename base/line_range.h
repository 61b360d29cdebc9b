// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The columns or rows that a loop covers. A centre far off the picture makes loops of a billion
// lines, of which only those count that lie on the picture. Throws nothing.
#pragma once

#include <algorithm>
#include <cstdint>

namespace varnel {

// Lines first to last; none when last is less.
struct LineRange {
    int first = 0;
    int last = -1;

    int Count() const { return last - first + 1; }
};

// Columns or rows that are computed between two turns of the event loop at full size.
inline constexpr int batchLines = 2048;

// The distances 0 to farthest from the centre at which, to one side or the other, a side of size
// pixels has a line.
inline LineRange OnPicture(std::int32_t centre, std::int32_t size, int farthest) {
    return {std::max({0, -centre, centre - size + 1}),
            std::min(farthest, std::max(centre, size - 1 - centre))};
}

// A loop that is to be run: all of it, or of one many times as long as the picture's side the whole
// batches around the lines that are shown.
inline LineRange WorthARun(LineRange all, LineRange shown, std::int32_t side) {
    constexpr int mostSides = 8;
    if (all.Count() / mostSides <= side) {
        return all;
    }
    const int before = std::max(shown.first - all.first, 0) / batchLines * batchLines;
    return {all.first + before, std::min(shown.last, all.last)};
}

}  // namespace varnel
