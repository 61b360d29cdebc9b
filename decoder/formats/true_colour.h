// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Bringing decoded pictures of any depth to 24 bits, or to a format that has their own depth.
#pragma once

#include "decoder/formats/library_reader.h"

namespace varnel {

// With the metadata, and with the colour profile where it describes red, green and blue as they
// then are. Empty when the pixels are no picture (complex numbers). Throws std::bad_alloc.
BitmapHandle To24Bits(LibraryPicture picture, BitmapMetadata metadata);

// Likewise in the picture's own format, where floating-point colours keep their profile, too.
BitmapHandle InOwnFormat(LibraryPicture picture, BitmapMetadata metadata);

}  // namespace varnel
