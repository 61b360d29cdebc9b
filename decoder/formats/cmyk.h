// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures in printing inks, brought to red, green and blue by their colour profile.
#pragma once

#include <QByteArrayView>

#include "decoder/formats/picture_file.h"

namespace varnel {

// Whether an ICC profile describes cyan, magenta, yellow and black.
bool IsProfileForCmyk(QByteArrayView profile);

// In sRGB, 24 bits, without metadata; colours that it does not have are brought to the nearest, as
// relative colorimetric with black point compensation does. The bitmap has four inks a pixel, of
// 8 or 16 bits, the largest number is full ink. Empty when the profile cannot be used. Throws
// std::bad_alloc.
BitmapHandle FromCmyk(FIBITMAP* cmyk, QByteArrayView profile);

// Where the file has inks with a profile of theirs, a better picture than the one that the image
// library made of it, with the metadata of that: the library takes inks by rule of thumb. Empty for
// other files. Throws what the library throws.
BitmapHandle FromInks(FIBITMAP* bitmap, FREE_IMAGE_FORMAT format, const PictureFile& file);

}  // namespace varnel
