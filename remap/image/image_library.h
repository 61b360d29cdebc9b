// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the image library does beside reading and writing files. Throws std::bad_alloc.
#pragma once

#include <QString>

#include "remap/image/bitmap.h"
#include "remap/image/library_messages.h"

namespace varnel {

// The bitmap reduced or enlarged to that size in pixels with the library's box filter, with its
// metadata.
BitmapHandle RescaledByBox(const Bitmap& bitmap, PixelSize size);

// Those of the library and of libtiff, which it reads with. From the first one on neither prints
// anything on stderr any more.
class ImageLibraryMessages : public TiffMessages {
  public:
    ImageLibraryMessages();
};

// By the keyword, texts of a PNG file in which programs keep EXIF and the like: these are read
// elsewhere and are no comments.
bool IsMetadataInText(const QByteArray& key);

// Whether the name ends like that of a type that the library knows.
bool IsPictureName(const QString& name);

// The library's version and its notice of copyright, for people to read.
QString LibraryVersion();
QString LibraryNotice();

}  // namespace varnel
