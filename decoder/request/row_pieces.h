// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the rows of a whole picture go while it is decoded.
#pragma once

#include <cstddef>

#include "base/pixel_size.h"
#include "decoder/request/rows_for.h"
#include "remap/image/bitmap_metadata.h"

namespace varnel {

// A picture that goes in pieces.
struct PiecedHead {
    PixelSize stored{};       // as it is stored
    int orientation = 1;      // that the taker undoes
    BitmapMetadata metadata;  // of the picture as it is turned
    bool isPlanar = false;    // not pixels of 24 bits, but brightness and colours of 4:2:0
};

// Takes a picture piece by piece, from its top, as it is stored.
class RowPieces {
  public:
    virtual ~RowPieces() = default;
    // Whether pictures of that size, as it is stored, are taken so.
    virtual bool Wants(PixelSize stored) const = 0;
    // Whether upright pictures with colours for each four pixels are wanted so.
    virtual bool WantsPlanar() const = 0;
    // Before the first piece. Rows of all pieces but the last; 0 when the taker is gone.
    virtual int Begin(const PiecedHead& head) = 0;
    // Room for the next piece, null when the taker is gone. Pixels: its rows, the lowest of them
    // first, RowPitch apart. Planes: as PiecePlanes has them.
    virtual std::byte* Room() = 0;
    // They are there.
    virtual bool Give() = 0;
};

// Rows of brightness from the top of a piece on, then of blue, then of red less brightness, in
// whole blocks of the coding: so many bytes apart, half as many those of colours.
struct PiecePlanes {
    static constexpr int blockRows = 16;  // of brightness, across as well

    std::size_t pitch;
    std::size_t rows;  // of brightness, a multiple of the block's

    PiecePlanes(PixelSize stored, int pieceRows)
        : pitch((static_cast<std::size_t>(stored.width) + blockRows - 1) / blockRows * blockRows),
          rows(static_cast<std::size_t>(pieceRows)) {}
    std::size_t Bytes() const { return pitch * rows / 2 * 3; }
    std::size_t Brightness(std::size_t row) const { return pitch * row; }
    std::size_t Blue(std::size_t row) const { return pitch * rows + pitch / 2 * row; }
    std::size_t Red(std::size_t row) const { return pitch * rows / 4 * 5 + pitch / 2 * row; }
};

struct PixelPlace {
    RowsFor rows{};               // all at once
    RowPieces* pieces = nullptr;  // for those that it wants; null: none
};

}  // namespace varnel
