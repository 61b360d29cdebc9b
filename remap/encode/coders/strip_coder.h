// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the strips of a TIFF file are compressed. Throws std::bad_alloc, Room and destructors
// nothing.
#pragma once

#include <memory>

#include "remap/encode/coders/lzw_coder.h"
#include "remap/encode/output_depth.h"

namespace varnel {

// Made for a thread, and used for many strips.
class StripCoder {
  public:
    virtual ~StripCoder() = default;
    // Of the codes of so many bytes at most, in bytes.
    virtual std::size_t Room(std::size_t bytes) const = 0;
    // Two strips at once, with room for their codes; one without bytes gets none. One that could
    // not be coded has no codes either.
    virtual void Encode(LzwStrip& first, LzwStrip& second) = 0;
};

// compression: not Usual. level: 0 the usual one, else 1 (fast) to 9 (small); LZW and none have
// none.
std::unique_ptr<StripCoder> NewStripCoder(TiffCompression compression, int level);

}  // namespace varnel
