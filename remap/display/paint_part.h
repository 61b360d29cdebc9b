// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A part of a large bitmap on the screen, at any scale and without a copy of the whole. Throws
// std::bad_alloc and what the caller's function throws.
#pragma once

#include <QImage>
#include <functional>

#include "remap/image/bitmap.h"

namespace varnel {

struct PartPlace {
    QPoint corner;       // the picture's top left corner in pixels of the image, often outside it
    double scale = 1.0;  // image pixels to a picture pixel
};

// Draws what of the picture, if there is one, lies on the image (RGB32) and leaves the rest of it
// alone. Enlarged pixels are squares, reduced ones a mean. With has, image lines that need a row of
// the bitmap (from 0 at the bottom) for which it returns false are left alone, too.
void PaintPart(const Bitmap* bitmap, const PartPlace& place, QImage& image,
               const std::function<bool(int row)>& has = {});

}  // namespace varnel
