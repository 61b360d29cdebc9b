// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a bitmap's metadata and settings become in a file. Throws std::bad_alloc.
#pragma once

#include <QByteArray>

#include "base/reason.h"
#include "remap/encode/output_type.h"
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

// For a file of each type. A thumbnail is given for a bitmap whose pixels are not there. Throw
// std::bad_alloc.
WrittenMetadata MetadataForJpeg(const Bitmap& bitmap, const Bitmap* thumbnail = nullptr);
WrittenMetadata MetadataForPng(const Bitmap& bitmap, const Bitmap* thumbnail = nullptr);
WrittenMetadata MetadataForJxl(const Bitmap& bitmap);
WrittenMetadata MetadataForTiff(const Bitmap& bitmap);
// What the bitmap has and a file of the type cannot hold, by the type's row; empty when that is
// nothing. Throws std::bad_alloc.
Reason LostIn(OutputType type, const Bitmap& bitmap);

// The image resource of Photoshop's that holds IPTC.
QByteArray IptcResource(const QByteArray& iptc);

}  // namespace varnel
