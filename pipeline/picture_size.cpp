// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/picture_size.h"

#include <QFile>
#include <exception>

#include "pipeline/file_check.h"
#include "pipeline/load_picture.h"
#include "remap/library_messages.h"

namespace varnel {

namespace {

BitmapHandle Header(const QString& path) {
    const LibraryMessages messages;
    const QByteArray name = QFile::encodeName(path);
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileType(name.constData(), 0);
    // A raw file's header gives the sensor's way up, its pixels come turned.
    if (format == FIF_UNKNOWN || format == FIF_RAW ||
        FreeImage_FIFSupportsNoPixels(format) != TRUE) {
        return nullptr;
    }
    try {
        return BitmapHandle(FreeImage_Load(format, name.constData(), FIF_LOAD_NOPIXELS));
    } catch (const std::exception&) {  // some of the library's readers throw
        return nullptr;
    }
}

}  // namespace

std::optional<PixelSize> ReadPictureSize(const QString& path) {
    if (!PathTrouble(path).isEmpty()) {
        return std::nullopt;
    }
    if (const BitmapHandle header = Header(path)) {
        return SizeTrouble(header.get()).isEmpty() ? std::optional(SizeOf(header.get()))
                                                   : std::nullopt;
    }
    const LoadedPicture loaded = LoadPicture(path);
    return loaded.bitmap ? std::optional(SizeOf(loaded.bitmap.get())) : std::nullopt;
}

}  // namespace varnel
