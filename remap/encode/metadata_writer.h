// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a bitmap's metadata and settings become in a file. Throws std::bad_alloc.
#pragma once

#include <QByteArray>

#include "base/reason.h"
#include "remap/image/bitmap.h"

namespace varnel {

// Blocks as they are to be written; empty for none.
struct WrittenMetadata {
    QByteArray exif;     // a TIFF file begins with it; its first directory is not the file's then
    QByteArray entries;  // of that directory, for a TIFF file's; their values are in exif
    QByteArray iptc;     // IIM records
    QByteArray xmp;      // with the settings
    Reasons notes;       // what the file is without
};

// For a file of each type. The bitmap has 24 bits. Throw std::bad_alloc.
WrittenMetadata MetadataForJpeg(const Bitmap& bitmap);
WrittenMetadata MetadataForPng(const Bitmap& bitmap);
WrittenMetadata MetadataForTiff(const Bitmap& bitmap);
// What a BMP file does not keep of the bitmap; empty when that is nothing.
Reason LostInBmp(const Bitmap& bitmap);

// The image resource of Photoshop's that holds IPTC.
QByteArray IptcResource(const QByteArray& iptc);

}  // namespace varnel
