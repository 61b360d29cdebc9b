// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/save_bitmap.h"

#include <new>

#include "remap/encode_bitmap.h"

namespace varnel {

namespace {

template <class Write>
SaveResult Written(const EncodedBitmap& encoded, const Write& write) {
    if (!encoded.reason.isEmpty()) {
        return {false, encoded.reason};
    }
    try {
        const WriteResult written = write(encoded.bytes);
        return {written.ok, written.reason, written ? encoded.note : QString()};
    } catch (const std::bad_alloc&) {
        return {false, QStringLiteral("there is not enough memory")};
    }
}

}  // namespace

SaveResult SaveBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, const QString& fileName,
                      int flags, BlockRunner* runner) {
    return Written(EncodeBitmap(format, bitmap, flags, {.runner = runner}),
                   [&](QByteArrayView bytes) { return WriteWholeFile(fileName, bytes); });
}

SaveResult SaveBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, const FileInSeries& file,
                      int flags, BlockRunner* runner) {
    return Written(EncodeBitmap(format, bitmap, flags, {.runner = runner}),
                   [&](QByteArrayView bytes) { return file.series.Write(file.name, bytes); });
}

}  // namespace varnel
