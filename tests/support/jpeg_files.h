// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG files with what photos carry.
#pragma once

#include <QByteArray>
#include <QtEndian>

#include "tests/support/seed_files.h"

namespace varnel::testing {

inline QByteArray JpegSegment(int marker, const QByteArray& data) {
    QByteArray head("\xFF\0\0\0", 4);
    head[1] = static_cast<char>(marker);
    qToBigEndian(static_cast<quint16>(data.size() + 2), head.data() + 2);
    return head + data;
}

// The JPEG with EXIF, XMP, colour profile, IPTC and a comment in front of all else.
inline QByteArray Described(const QByteArray& jpeg) {
    QByteArray iptc = IptcBlock();
    QByteArray resource("Photoshop 3.0\0008BIM\4\4\0\0\0\0\0\0", 26);
    qToBigEndian(static_cast<quint32>(iptc.size()), resource.data() + 22);
    return QByteArray(jpeg).insert(
        2, JpegSegment(0xE1, ExifBlock(false)) +
               JpegSegment(0xE1, QByteArray("http://ns.adobe.com/xap/1.0/\0", 29) + XmpPacket()) +
               JpegSegment(0xE2, QByteArray("ICC_PROFILE\0\1\1", 14) + ColourProfile()) +
               JpegSegment(0xED, resource + iptc) + JpegSegment(0xFE, "a fish's eye"));
}

}  // namespace varnel::testing
