// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode_bitmap.h"

#include <new>
#include <optional>

#include "remap/coding/jpeg_coder.h"
#include "remap/coding/png_coder.h"
#include "remap/coding/tiff_coder.h"

namespace varnel {

namespace {

// Nothing where there is none for such a file, or where it leaves the file to the library.
std::optional<QByteArray> FileByOurCoder(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                                         BlockRunner& runner) {
    switch (format) {
        case FIF_JPEG:
            return EncodeJpeg(bitmap, flags, runner);
        case FIF_TIFF:
            return flags == TIFF_LZW ? EncodeTiffLzw(bitmap, runner) : std::nullopt;
        case FIF_PNG:
            return flags == PNG_DEFAULT ? EncodePng(bitmap, runner) : std::nullopt;
        default:
            return std::nullopt;
    }
}

EncodedBitmap FileOf(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                     const EncodeOptions& options) {
    SerialRunner serial;
    try {
        std::optional<QByteArray> bytes = FileByOurCoder(
            format, bitmap, flags, options.runner != nullptr ? *options.runner : serial);
        if (bytes && bytes->size() <= options.largest) {
            return {std::move(*bytes), {}};
        }
    } catch (const std::bad_alloc&) {
        return {{}, notEnoughMemory.toString()};
    }
    return LibraryFile(format, bitmap, flags, options.largest);
}

}  // namespace

EncodedBitmap EncodeBitmap(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                           const EncodeOptions& options) {
    if (bitmap == nullptr) {
        return {{}, QStringLiteral("there is no picture")};
    }
    EncodedBitmap whole = FileOf(format, bitmap, flags, options);
    const bool isPhoto = FreeImage_GetBPP(bitmap) == 24 && FreeImage_HasPixels(bitmap) == TRUE;
    if (whole.reason.isEmpty() || whole.reason == notEnoughMemory || !isPhoto) {
        return whole;
    }
    const struct {
        bool metadata;
        QString note;
    } attempts[] = {{true, QStringLiteral("written without its colour profile: %1")},
                    {false, QStringLiteral("written without its metadata: %1")}};
    for (const auto& attempt : attempts) {
        // The same pixels, where they lie.
        const BitmapHandle less =
            BitmapOver(reinterpret_cast<std::byte*>(FreeImage_GetBits(bitmap)), SizeOf(bitmap));
        if (less && attempt.metadata) {
            CopyAllButPixels(less.get(), bitmap);
            FreeImage_DestroyICCProfile(less.get());
        }
        EncodedBitmap encoded = FileOf(format, less.get(), flags, options);
        if (encoded.reason.isEmpty()) {
            encoded.note = attempt.note.arg(whole.reason);
            return encoded;
        }
    }
    return whole;
}

}  // namespace varnel
