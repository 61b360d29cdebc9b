// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures of the caller as bitmaps: where they lie, as far as the engines take them so.
#pragma once

#include "remap/image/bitmap.h"
#include "varnel/varnel.h"

namespace varnel {

// Throws CallError for what is no picture; name is that of the argument.
void Check(const varnel_image* image, const char* name);

// Whether the engines read and write the caller's rows themselves.
bool IsInPlace(const varnel_image& image);

PixelFormat FormatOf(const varnel_image& image);

// A bitmap over the caller's rows, which have to outlive it; for pictures that are in place.
Bitmap Over(const varnel_image& image);
// A copy, whose colours are all three the grey. For pictures that are not in place.
BitmapHandle Copied(const varnel_image& image);
// The green of a bitmap of that size, and its alpha, back to such a picture.
void CopyBack(const Bitmap& bitmap, const varnel_image& image);

// A copy of 24 bits, blue first, as what looks at photos takes them.
BitmapHandle ByteCopy(const varnel_image& image);

}  // namespace varnel
