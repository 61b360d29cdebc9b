// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/load_picture.h"

#include <QFile>

#include "pipeline/file_check.h"
#include "pipeline/picture_damage.h"
#include "remap/library_messages.h"

namespace varnel {

namespace {

int LoadFlags(FREE_IMAGE_FORMAT format) {
    switch (format) {
        case FIF_JPEG:
            return JPEG_ACCURATE;
        case FIF_RAW:
            return RAW_DISPLAY;  // linear data would come out far too dark
        default:
            return 0;
    }
}

// The size from the header alone, where the format allows, so that a huge picture is refused before
// it takes the memory.
QString HeaderTrouble(FREE_IMAGE_FORMAT format, const QByteArray& name) {
    if (FreeImage_FIFSupportsNoPixels(format) != TRUE) {
        return {};
    }
    const BitmapHandle header(FreeImage_Load(format, name.constData(), FIF_LOAD_NOPIXELS));
    return header ? SizeTrouble(header.get()) : QString();
}

// 16-bit grey and floating-point pictures have no direct way to 24 bits.
BitmapHandle To24Bits(BitmapHandle bitmap) {
    if (FreeImage_GetBPP(bitmap.get()) == 24) {
        return bitmap;
    }
    BitmapHandle converted(FreeImage_ConvertTo24Bits(bitmap.get()));
    if (!converted) {
        bitmap.reset(FreeImage_ConvertToStandardType(bitmap.get(), TRUE));
        converted.reset(bitmap ? FreeImage_ConvertTo24Bits(bitmap.get()) : nullptr);
    }
    return converted;
}

LoadedPicture Decode(FREE_IMAGE_FORMAT format, const QString& path,
                     const LibraryMessages& messages) {
    const QByteArray name = QFile::encodeName(path);
    if (const QString trouble = HeaderTrouble(format, name); !trouble.isEmpty()) {
        return LoadedPicture::Refused(trouble);
    }
    BitmapHandle loaded(FreeImage_Load(format, name.constData(), LoadFlags(format)));
    if (!loaded) {
        return LoadedPicture::Refused(
            messages.Added(QStringLiteral("the picture cannot be decoded")));
    }
    if (const QString trouble = SizeTrouble(loaded.get()); !trouble.isEmpty()) {
        return LoadedPicture::Refused(trouble);
    }
    BitmapHandle bitmap = To24Bits(std::move(loaded));
    if (!bitmap) {
        return LoadedPicture::Refused(
            QStringLiteral("its pixels cannot be converted to 24-bit colour"));
    }
    const QString damage = DamageOf(format, path, messages.Lines());
    return {damage.isEmpty() ? LoadOutcome::Loaded : LoadOutcome::Damaged, std::move(bitmap),
            damage};
}

}  // namespace

LoadedPicture LoadPicture(const QString& path) {
    if (const QString trouble = PathTrouble(path); !trouble.isEmpty()) {
        return LoadedPicture::Refused(trouble);
    }
    const LibraryMessages messages;
    const FREE_IMAGE_FORMAT format = FreeImage_GetFileType(QFile::encodeName(path).constData(), 0);
    if (format == FIF_UNKNOWN || FreeImage_FIFSupportsReading(format) != TRUE) {
        return LoadedPicture::Refused(QStringLiteral("this is not a picture of a known type"));
    }
    try {
        return Decode(format, path, messages);
    } catch (const std::exception& error) {  // some of the library's readers throw
        return LoadedPicture::Refused(QStringLiteral("the picture cannot be decoded (%1)")
                                          .arg(QString::fromLocal8Bit(error.what())));
    }
}

void TakeSize(PixelSize size, ImageRecord& image) {
    image.Width = static_cast<std::int16_t>(size.width);
    image.Height = static_cast<std::int16_t>(size.height);
    image.Landscape = size.width >= size.height;
}

}  // namespace varnel
