// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/jpeg_colour.h"

#include <QFile>
#include <algorithm>

namespace varnel {

namespace {

constexpr int mostSegments = 2000;  // of a file that is one

int ByteOf(const QByteArray& bytes, qsizetype at) {
    return static_cast<unsigned char>(bytes[at]);
}

// Of the frame's head, which names the samples of each colour across and up.
bool IsFrame(int marker) {
    return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// From the byte behind its length.
bool HasCoarseColour(const QByteArray& frame) {
    constexpr qsizetype firstSampling = 7;
    constexpr qsizetype secondSampling = 10;
    return frame.size() > secondSampling && ByteOf(frame, 5) >= 3 &&
           ByteOf(frame, firstSampling) != ByteOf(frame, secondSampling);
}

}  // namespace

bool HasHalvedColour(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.read(2) != QByteArray("\xFF\xD8")) {
        return false;
    }
    for (int segment = 0; segment < mostSegments; ++segment) {
        const QByteArray head = file.read(4);
        if (head.size() < 4 || ByteOf(head, 0) != 0xFF) {
            return false;
        }
        const int length = 256 * ByteOf(head, 2) + ByteOf(head, 3) - 2;
        if (IsFrame(ByteOf(head, 1))) {
            return HasCoarseColour(file.read(std::min(length, 64)));
        }
        if (length < 0 || !file.seek(file.pos() + length)) {
            return false;
        }
    }
    return false;
}

}  // namespace varnel
