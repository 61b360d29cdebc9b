// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Bitmaps on the screen. Throws nothing.
#pragma once

#include <QImage>

#include "remap/image/bitmap.h"

class QPainter;

namespace varnel {

// A 24-bit bitmap as an image that owns its pixels, the top row first; empty for no bitmap and
// where memory lacks.
QImage ImageOf(const Bitmap* bitmap);

// Draws the whole bitmap with its upper left corner at (x, y), one bitmap pixel to one unit of the
// painter. Returns the number of rows drawn, 0 for no bitmap.
int PaintBitmapToDC(const Bitmap* bitmap, QPainter& painter, int x, int y);

}  // namespace varnel
