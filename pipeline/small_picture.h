// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Quick small pictures for looking through a folder.
#pragma once

#include <QString>

#include "remap/bitmap.h"

namespace varnel {

// The photo within the box, 24 bits; never enlarged. Takes the shortest way that the file offers: a
// JPEG is decoded at a fraction of its size, of a raw file the camera's own preview is taken. Empty
// when there is no picture, or one that would take too long.
BitmapHandle SmallPicture(const QString& path, PixelSize box);

}  // namespace varnel
