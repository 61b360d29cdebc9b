// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/save_bitmap.h"

#include <new>

#include "remap/encode_bitmap.h"
#include "state/whole_file.h"

namespace varnel {

SaveResult SaveBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, const QString& fileName,
                      int flags, BlockRunner* runner) {
    const EncodedBitmap encoded = EncodeBitmap(format, bitmap, flags, {.runner = runner});
    if (!encoded.reason.isEmpty()) {
        return {false, encoded.reason};
    }
    try {
        const WriteResult written = WriteWholeFile(fileName, encoded.bytes);
        return {written.ok, written.reason, written ? encoded.note : QString()};
    } catch (const std::bad_alloc&) {
        return {false, QStringLiteral("there is not enough memory")};
    }
}

}  // namespace varnel
