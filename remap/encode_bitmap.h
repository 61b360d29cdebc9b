// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Turning a bitmap into the bytes of a file, in memory.
#pragma once

#include <FreeImage.h>

#include <QByteArray>
#include <QString>

namespace varnel {

// BMP and TIFF count the bytes of a file in 32 bits.
constexpr qint64 largestFile = 0xFFFFFFFF;

// No bytes and the reason when it could not be done.
struct EncodedBitmap {
    QByteArray bytes;
    QString reason;
    QString note = {};  // what the file is without, and why; empty when it has everything
};

// flags are the library's for the format (the quality for JPEG). Metadata or a colour profile that
// the format's encoder refuses do not cost the picture: it is encoded without. The library's own
// file in memory is not used: from 2 GB on it drops what is written, and a cut TIFF still counts as
// a success.
EncodedBitmap EncodeBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                           qint64 largest = largestFile);

}  // namespace varnel
