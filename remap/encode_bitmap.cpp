// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode_bitmap.h"

namespace varnel {

namespace {

// By a coder of ours where there is one for such a file, else by the library.
EncodedBitmap FileOf(FREE_IMAGE_FORMAT format, FIBITMAP* bitmap, int flags,
                     const EncodeOptions& options) {
    return LibraryFile(format, bitmap, flags, options.largest);
}

// The same pixels, where they lie, and nothing else.
BitmapHandle PixelsOf(FIBITMAP* bitmap) {
    return BitmapHandle(FreeImage_ConvertFromRawBitsEx(
        FALSE, FreeImage_GetBits(bitmap), FIT_BITMAP, SizeOf(bitmap).width, SizeOf(bitmap).height,
        static_cast<int>(FreeImage_GetPitch(bitmap)), FreeImage_GetBPP(bitmap), FI_RGBA_RED_MASK,
        FI_RGBA_GREEN_MASK, FI_RGBA_BLUE_MASK, FALSE));
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
        const BitmapHandle less = PixelsOf(bitmap);
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
