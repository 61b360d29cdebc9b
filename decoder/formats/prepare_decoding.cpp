// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QByteArray>
#include <QtEndian>
#include <ctime>
#include <memory>
#include <utility>

#include "decoder/formats/decode_picture.h"
#include "decoder/formats/readers/modern_formats.h"
#include "decoder/request/picture_limits.h"

namespace varnel {

namespace {

// A file of one pixel, with a header that takes Qt's reader.
QByteArray TinyBmp() {
    constexpr quint32 headerBytes = 108;
    constexpr quint32 pixelPlace = 14 + headerBytes;
    QByteArray bytes(pixelPlace + 4, '\0');
    bytes.replace(0, 2, "BM");
    const std::pair<int, quint32> fields[] = {
        {10, pixelPlace}, {14, headerBytes}, {18, 1}, {22, 1}, {26, 24U << 16 | 1}};
    for (const auto& [place, value] : fields) {
        qToLittleEndian(value, bytes.data() + place);
    }
    return bytes;
}

}  // namespace

void PrepareDecoding() {
    PrepareModernReaders();
    tzset();  // raw files' times are worked out with it
    QByteArray tiny = TinyBmp();
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(
        fmemopen(tiny.data(), tiny.size(), "rb"), &std::fclose);
    if (file) {
        DecodePicture(file.get(), {}, MachineMemory());
    }
}

}  // namespace varnel
