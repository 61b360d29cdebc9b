// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The functions of picture_library.h, which load the module first.
#include <QLibrary>
#include <stdexcept>

#include "base/program_file.h"
#include "remap/encode/coders/picture_library.h"

namespace varnel {

namespace {

// It stays loaded to the program's end. Throws std::runtime_error when the installation lacks it.
const PictureLibrary& Library() {
    static const PictureLibrary& library = []() -> const PictureLibrary& {
        QLibrary module(ProgramFile(QStringLiteral("varnel-picture-library.so")));
        const auto give =
            reinterpret_cast<GivePictureLibrary>(module.resolve(pictureLibrarySymbol));
        return give != nullptr ? *give()
                               : throw std::runtime_error(module.errorString().toStdString());
    }();
    return library;
}

EncodedBitmap Encoded(EncodeFunction* PictureLibrary::*coder, const Bitmap* bitmap,
                      const OutputEncoding& encoding, const EncodeOptions& options) {
    try {
        return (Library().*coder)(bitmap, encoding, options);
    } catch (const std::runtime_error& missing) {
        return {{}, {ReasonCode::Words, QString::fromStdString(missing.what())}};
    }
}

}  // namespace

EncodedBitmap EncodeBmp(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options) {
    return Encoded(&PictureLibrary::encodeBmp, bitmap, encoding, options);
}

EncodedBitmap EncodeExr(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options) {
    return Encoded(&PictureLibrary::encodeExr, bitmap, encoding, options);
}

EncodedBitmap EncodeHdr(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options) {
    return Encoded(&PictureLibrary::encodeHdr, bitmap, encoding, options);
}

#ifdef VARNEL_JXL
EncodedBitmap EncodeJxl(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options) {
    return Encoded(&PictureLibrary::encodeJxl, bitmap, encoding, options);
}
#endif

BitmapHandle RescaledByBox(const Bitmap& bitmap, PixelSize size) {
    return Library().rescaledByBox(bitmap, size);
}

bool IsPictureName(const QString& name) {
    try {
        return Library().isPictureName(name);
    } catch (const std::runtime_error&) {  // any name may be meant
        return false;
    }
}

QString LibraryVersion() {
    return Library().version();
}

QString LibraryNotice() {
    return Library().notice();
}

}  // namespace varnel
