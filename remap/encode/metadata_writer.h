// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a bitmap's metadata and settings become in a file.
#pragma once

#include <FreeImage.h>

#include <QByteArray>

#include "base/reason.h"
#include "remap/image/bitmap.h"

namespace varnel {

struct WrittenMetadata {
    bool isOfPhoto = false;  // not of the settings alone
    QByteArray parts;        // segments of a JPEG file, chunks of a PNG file
    // Of a TIFF file.
    QByteArray exif;     // what the file begins with; its first directory is not the file's
    QByteArray entries;  // of that directory, for the file's; their values are in exif
    QByteArray iptc;
    QByteArray xmp;
    Reasons notes;  // what the file is without

    // Then the library is left to write what it knows.
    bool IsEmpty() const { return !isOfPhoto && parts.isEmpty() && xmp.isEmpty(); }
};

// For a file of this format. The bitmap has 24 bits. Throws std::bad_alloc.
WrittenMetadata MetadataFor(FREE_IMAGE_FORMAT format, const Bitmap* bitmap);

// Puts the parts into a JPEG or PNG file, of which everything up to the pixels may be missing
// behind the first segment or chunk. False when that is not where it should be.
bool InsertParts(FREE_IMAGE_FORMAT format, const WrittenMetadata& metadata, QByteArray& file);

// The image resource of Photoshop's that holds IPTC.
QByteArray IptcResource(const QByteArray& iptc);

}  // namespace varnel
