// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The camera's own picture in a raw file. Throws std::bad_alloc, and what the image library throws.
#pragma once

#include "decoder/formats/readers/raw_reader.h"

namespace varnel {

// In 24 bits, as the camera stored it; of a JPEG quickly decoded, with at least that many pixels
// along the longer side where it has them. Empty when there is none, or one that is refused on a
// machine with this memory in bytes.
BitmapHandle PreviewPicture(CameraPreview preview, int longerSide, std::uint64_t memory);

}  // namespace varnel
