// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures in printing inks, brought to red, green and blue by their colour profile.
#pragma once

#include <QByteArrayView>

#include "decoder/formats/library_reader.h"

namespace varnel {

// Whether an ICC profile describes cyan, magenta, yellow and black. Throws nothing.
bool IsProfileForCmyk(QByteArrayView profile);

// In sRGB, such samples of 8 or 16 bits, without metadata; colours that it does not have are
// brought to the nearest, as relative colorimetric with black point compensation does. The rows
// have four inks a pixel, the largest number is full ink. Empty when the profile cannot be used.
// Throws std::bad_alloc.
BitmapHandle FromCmyk(const SampleRows& cmyk, QByteArrayView profile, SampleKind samples);

// Where the file has inks with a profile of theirs, a better picture than the one that the image
// library made of it, with these metadata but the profile: the library takes inks by rule of thumb.
// Inks of 16 bits keep them where the own depth is wanted, all others come in 24 bits. Empty for
// other files. Throws what the library throws.
BitmapHandle FromInks(const LibraryReader& reader, const BitmapMetadata& metadata, bool ownDepth);

}  // namespace varnel
