// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG files with what photos carry.
#pragma once

#include <QByteArray>

#include "tests/support/seeds/file_bytes.h"
#include "tests/support/seeds/seed_files.h"

namespace varnel::testing {

inline QByteArray JpegSegment(int marker, const QByteArray& data) {
    return Numbers({0xff, marker}, 1) + Number(data.size() + 2, 2, Order::Big) + data;
}

// The JPEG with EXIF, XMP, colour profile, IPTC and a comment in front of all else.
inline QByteArray Described(const QByteArray& jpeg, bool canon = false) {
    return QByteArray(jpeg).insert(
        2, JpegSegment(0xE1, ExifBlock(canon)) +
               JpegSegment(0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + XmpPacket()) +
               JpegSegment(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + ColourProfile()) +
               JpegSegment(0xED,
                           QByteArray("Photoshop 3.0\0", 14) + ImageResource(1028, IptcBlock())) +
               JpegSegment(0xFE, "a fish's eye"));
}

}  // namespace varnel::testing
