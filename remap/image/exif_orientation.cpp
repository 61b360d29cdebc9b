// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/exif_orientation.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace varnel {

namespace {

constexpr std::int32_t tileSide = 64;  // pixels

// Where the stored picture's pixels go: the one at the left end of the bottom row, and how far
// apart neighbours in a row and in a column come to lie.
struct Places {
    std::byte* corner;
    std::ptrdiff_t perColumn;
    std::ptrdiff_t perRow;
};

Places PlacesFor(PixelSize size, int orientation, PixelRows turned) {
    const std::ptrdiff_t pixelBytes = PixelStep(turned.format);
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

template <std::ptrdiff_t pixelBytes>
void CopyRow(const std::byte* from, std::byte* to, std::ptrdiff_t step, std::int32_t count) {
    if (step == pixelBytes) {
        std::memcpy(to, from, static_cast<std::size_t>(count) * pixelBytes);
        return;
    }
    for (std::int32_t i = 0; i < count; ++i) {
        std::memcpy(to, from, pixelBytes);
        from += pixelBytes;
        to += step;
    }
}

// A part of a band, for rows that become columns: rows of a bitmap may lie so far apart that they
// drive each other out of the cache.
template <std::ptrdiff_t pixelBytes>
class Tile {
  public:
    void Take(PixelRows source, std::int32_t x, std::int32_t row, std::int32_t columns,
              std::int32_t rows) {
        rows_ = rows;
        for (std::int32_t i = 0; i < rows; ++i) {
            std::memcpy(
                &bytes_[static_cast<std::size_t>(i * pitch)],
                source.bottom + static_cast<std::size_t>(row + i) * source.pitch + x * pixelBytes,
                static_cast<std::size_t>(columns) * pixelBytes);
        }
    }
    // The tile's column to a row: its bottom pixel to that place.
    void PutColumn(std::int32_t x, std::byte* place, std::ptrdiff_t step) const {
        const bool backward = step < 0;
        const std::byte* from = &bytes_[static_cast<std::size_t>(
            x * pixelBytes + (backward ? (rows_ - 1) * pitch : 0))];
        std::byte* to = backward ? place + (rows_ - 1) * step : place;
        const std::ptrdiff_t next = backward ? -pitch : pitch;
        // Four bytes go as fast as one: the fourth is where the next pixel comes.
        for (std::int32_t i = 1; i < rows_; ++i) {
            std::memcpy(to, from, pixelBytes + 1);
            from += next;
            to += pixelBytes;
        }
        std::memcpy(to, from, pixelBytes);
    }

  private:
    static constexpr std::ptrdiff_t pitch = tileSide * pixelBytes + 16;
    std::array<std::byte, tileSide * pitch> bytes_;
    std::int32_t rows_ = 0;
};

template <std::ptrdiff_t pixelBytes>
void Turn(PixelSize size, RowBand band, PixelRows source, int orientation, PixelRows turned) {
    const Places places = PlacesFor(size, orientation, turned);
    const auto pitch = static_cast<std::ptrdiff_t>(source.pitch);
    const auto placeOf = [&](std::int32_t x, std::int32_t row) {
        return places.corner + x * places.perColumn + (band.first + row) * places.perRow;
    };
    if (!SwapsSides(orientation)) {
        for (std::int32_t row = 0; row < band.count; ++row) {
            CopyRow<pixelBytes>(source.bottom + row * pitch, placeOf(0, row), places.perColumn,
                                size.width);
        }
        return;
    }
    Tile<pixelBytes> tile;
    for (std::int32_t row = 0; row < band.count; row += tileSide) {
        const std::int32_t rows = std::min(tileSide, band.count - row);
        for (std::int32_t left = 0; left < size.width; left += tileSide) {
            const std::int32_t columns = std::min(tileSide, size.width - left);
            tile.Take(source, left, row, columns, rows);
            for (std::int32_t x = 0; x < columns; ++x) {
                tile.PutColumn(x, placeOf(left + x, row), places.perRow);
            }
        }
    }
}

}  // namespace

void TurnRows(PixelSize size, RowBand band, PixelRows source, int orientation, PixelRows turned) {
    WithBytesPerPixel(turned.format, [&](auto pixelBytes) {
        Turn<pixelBytes>(size, band, source, orientation, turned);
    });
}

}  // namespace varnel
