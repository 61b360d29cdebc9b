// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/turn.h"

#include <algorithm>
#include <cstring>

namespace varnel {

namespace {

constexpr std::ptrdiff_t pixelBytes = 3;
// Pixels; a block's rows of both pictures fit the first cache.
constexpr std::int32_t blockSide = 32;

// Where the stored picture's pixels go: the one at the left end of the bottom row, and how far
// apart neighbours in a row and in a column come to lie.
struct Places {
    std::byte* corner;
    std::ptrdiff_t perColumn;
    std::ptrdiff_t perRow;
};

Places PlacesFor(PixelSize size, int orientation, PixelRows turned) {
    const auto pitch = static_cast<std::ptrdiff_t>(turned.pitch);
    // The ways that the stored picture's columns and rows, counted from left and bottom, take.
    const bool columnsBackward = orientation == 2 || orientation == 3 ||  //
                                 orientation == 5 || orientation == 6;
    const bool rowsBackward = orientation == 3 || orientation == 4 ||  //
                              orientation == 5 || orientation == 8;
    const std::ptrdiff_t column = SwapsSides(orientation) ? pitch : pixelBytes;
    const std::ptrdiff_t row = SwapsSides(orientation) ? pixelBytes : pitch;
    Places places{turned.bottom, column, row};
    if (columnsBackward) {
        places.corner += column * (size.width - 1);
        places.perColumn = -column;
    }
    if (rowsBackward) {
        places.corner += row * (size.height - 1);
        places.perRow = -row;
    }
    return places;
}

void CopyRun(const std::byte* from, std::ptrdiff_t fromStep, std::byte* to, std::ptrdiff_t toStep,
             std::int32_t count) {
    if (fromStep == pixelBytes && toStep == pixelBytes) {
        std::memcpy(to, from, static_cast<std::size_t>(count * pixelBytes));
        return;
    }
    for (std::int32_t i = 0; i < count; ++i) {
        std::memcpy(to, from, pixelBytes);
        from += fromStep;
        to += toStep;
    }
}

}  // namespace

void TurnRows(PixelSize size, RowBand band, PixelRows source, int orientation, PixelRows turned) {
    const Places places = PlacesFor(size, orientation, turned);
    const auto pitch = static_cast<std::ptrdiff_t>(source.pitch);
    const auto placeOf = [&](std::int32_t x, std::int32_t row) {
        return places.corner + x * places.perColumn + (band.first + row) * places.perRow;
    };
    if (!SwapsSides(orientation)) {
        for (std::int32_t row = 0; row < band.count; ++row) {
            CopyRun(source.bottom + row * pitch, pixelBytes, placeOf(0, row), places.perColumn,
                    size.width);
        }
        return;
    }
    for (std::int32_t row = 0; row < band.count; row += blockSide) {
        const std::int32_t rows = std::min(blockSide, band.count - row);
        for (std::int32_t x = 0; x < size.width; ++x) {
            CopyRun(source.bottom + row * pitch + x * pixelBytes, pitch, placeOf(x, row),
                    places.perRow, rows);
        }
    }
}

}  // namespace varnel
