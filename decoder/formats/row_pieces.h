// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the rows of a whole picture go while it is decoded.
#pragma once

#include <cstddef>

#include "base/pixel_size.h"
#include "decoder/formats/rows_for.h"
#include "remap/image/bitmap_metadata.h"

namespace varnel {

// Takes a picture of 24 bits piece by piece, from its top, as it is stored.
class RowPieces {
  public:
    virtual ~RowPieces() = default;
    // Whether pictures of that size, as it is stored, are taken so.
    virtual bool Wants(PixelSize stored) const = 0;
    // Before the first piece: the picture's size, the orientation that the taker undoes, and the
    // metadata of the picture as it is turned. Rows of all pieces but the last; 0 when the taker is
    // gone.
    virtual int Begin(PixelSize stored, int orientation, const BitmapMetadata& metadata) = 0;
    // Room for the next piece's rows, the lowest of them first, RowPitch apart; null when the taker
    // is gone.
    virtual std::byte* Room() = 0;
    // They are there.
    virtual bool Give() = 0;
};

struct PixelPlace {
    RowsFor rows{};               // all at once
    RowPieces* pieces = nullptr;  // for those that it wants; null: none
};

}  // namespace varnel
