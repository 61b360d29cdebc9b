// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/small_picture.h"

#include <QFile>
#include <algorithm>
#include <cstdint>
#include <exception>

#include "pipeline/file_check.h"
#include "pipeline/load_picture.h"
#include "pipeline/picture_size.h"
#include "pipeline/preview_size.h"
#include "remap/library_messages.h"

namespace varnel {

namespace {

// Beyond that, loading a whole picture takes more than about a second.
constexpr std::int64_t mostPixels = 60'000'000;

BitmapHandle QuickPicture(const QString& path, PixelSize box) {
    const LibraryMessages messages;
    const QByteArray name = QFile::encodeName(path);
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileType(name.constData(), 0);
    int flags = 0;
    if (format == FIF_JPEG) {
        // The upper half of the flags is the size that is wanted at least.
        flags = std::max(box.width, box.height) << 16 | JPEG_FAST;
    } else if (format == FIF_RAW) {
        flags = RAW_PREVIEW;
    } else {
        return nullptr;
    }
    const BitmapHandle loaded(FreeImage_Load(format, name.constData(), flags));
    return BitmapHandle(loaded ? FreeImage_ConvertTo24Bits(loaded.get()) : nullptr);
}

BitmapHandle WholePicture(const QString& path) {
    const std::optional<PixelSize> size = ReadPictureSize(path);
    if (!size || static_cast<std::int64_t>(size->width) * size->height > mostPixels) {
        return nullptr;
    }
    return LoadPicture(path).bitmap;
}

}  // namespace

BitmapHandle SmallPicture(const QString& path, PixelSize box) {
    if (!PathTrouble(path).isEmpty()) {
        return nullptr;
    }
    try {
        BitmapHandle picture = QuickPicture(path, box);
        if (!picture) {
            picture = WholePicture(path);
        }
        return picture ? ReducedCopy(picture.get(), PreviewSize(SizeOf(picture.get()), box, box))
                       : nullptr;
    } catch (const std::exception&) {  // no memory, or a reader of the library that throws
        return nullptr;
    }
}

}  // namespace varnel
