// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films are told by the bytes that their containers begin with: those of ISO/IEC 14496-12 (boxes),
// the Matroska, RIFF, ASF, FLV, Ogg, MXF (SMPTE 377), NUT and IVF containers, and the transport and
// program streams of ISO/IEC 13818-1.
#include <unistd.h>

#include <QByteArrayView>
#include <algorithm>
#include <array>

#include "decoder/process/photo_file.h"
#include "film/reading/film_reader.h"

namespace varnel {

namespace {

constexpr qsizetype headLength = 4096;  // bytes

struct Signature {
    qsizetype at;
    QByteArrayView bytes;
};

constexpr char asf[] = "\x30\x26\xB2\x75\x8E\x66\xCF\x11\xA6\xD9\x00\xAA\x00\x62\xCE\x6C";
constexpr char mxf[] = "\x06\x0E\x2B\x34\x02\x05\x01\x01\x0D\x01\x02\x01\x01";

// By which a container is known without more ado.
constexpr std::array signatures{
    Signature{8, "AVI "},       Signature{0, QByteArrayView("\0\0\1\xBA", 4)},
    Signature{0, {asf, 16}},    Signature{0, {"FLV\1", 4}},
    Signature{0, {mxf, 13}},    Signature{0, "DKIF"},
    Signature{0, "YUV4MPEG2 "}, Signature{0, "nut/multimedia container"},
};

bool Has(QByteArrayView head, qsizetype at, QByteArrayView bytes) {
    return head.size() >= at + bytes.size() && head.sliced(at, bytes.size()) == bytes;
}

// Pictures and their sequences, which are photos here.
bool IsPictureBrand(QByteArrayView brand) {
    static constexpr const char* brands[] = {"heic", "heix", "heim", "heis", "hevc", "hevx",
                                             "hevm", "hevs", "mif1", "mif2", "msf1", "miaf",
                                             "avif", "avis", "crx ", "jxl ", "jpeg", "jpgs",
                                             "avci", "avcs", "j2ki", "j2is", "jp2 ", "jpx "};
    return std::ranges::any_of(brands,
                               [&](const char* one) { return brand == QByteArrayView(one, 4); });
}

// Files of QuickTime before there were brands begin with any of its boxes.
bool IsBoxes(QByteArrayView head) {
    if (Has(head, 4, "ftyp")) {
        return head.size() >= 12 && !IsPictureBrand(head.sliced(8, 4));
    }
    static constexpr const char* boxes[] = {"moov", "mdat", "wide", "free", "skip", "pnot"};
    const bool isBox = std::ranges::any_of(boxes, [&](const char* box) {
        return Has(head, 4, {box, 4});
    });
    // A box is no longer than 16 MB, or the one with the pictures.
    return isBox && (head[0] == '\0' || Has(head, 4, "mdat"));
}

bool IsMatroska(QByteArrayView head) {
    return Has(head, 0, {"\x1A\x45\xDF\xA3", 4}) &&
           (head.first(std::min<qsizetype>(head.size(), 100)).contains("webm") ||
            head.first(std::min<qsizetype>(head.size(), 100)).contains("matroska"));
}

// Packets of 188 bytes that begin with 0x47, behind time stamps of 4 bytes on disks.
bool IsTransport(QByteArrayView head) {
    constexpr char sync = 0x47;
    constexpr int packets = 4;
    for (const qsizetype stamp : {0, 4}) {
        bool all = head.size() > (188 + stamp) * (packets - 1) + stamp;
        for (int n = 0; all && n < packets; ++n) {
            all = head[stamp + n * (188 + stamp)] == sync;
        }
        if (all) {
            return true;
        }
    }
    return false;
}

bool IsOggVideo(QByteArrayView head) {
    return Has(head, 0, "OggS") &&
           (head.contains("\x80theora") || head.contains("BBCD") || head.contains("OVP80"));
}

}  // namespace

bool IsFilm(const QString& path) {
    const OpenedPhoto opened = OpenPhotoFile(path);
    std::array<char, headLength> bytes{};
    const ssize_t length = opened.file ? pread(opened.file.Get(), bytes.data(), headLength, 0) : -1;
    const QByteArrayView head(bytes.data(), std::max<ssize_t>(length, 0));
    const bool isSigned = std::ranges::any_of(
        signatures, [&](const Signature& one) { return Has(head, one.at, one.bytes); });
    return isSigned || IsBoxes(head) || IsMatroska(head) || IsTransport(head) || IsOggVideo(head);
}

}  // namespace varnel
