// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/save_bitmap.h"

#include <new>

#include "remap/encode_bitmap.h"

namespace varnel {

SaveResult SaveBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, const QString& fileName,
                      int flags) {
    const EncodedBitmap encoded = EncodeBitmap(format, bitmap, flags);
    if (!encoded.reason.isEmpty()) {
        return {false, encoded.reason};
    }
    try {
        return WriteWholeFile(fileName, encoded.bytes);
    } catch (const std::bad_alloc&) {
        return {false, QStringLiteral("not enough memory")};
    }
}

}  // namespace varnel
