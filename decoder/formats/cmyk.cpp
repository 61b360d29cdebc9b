// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/cmyk.h"

#include <lcms2.h>

#include <memory>
#include <utility>

namespace varnel {

namespace {

struct LcmsDeleter {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, LcmsDeleter>;

struct TransformDeleter {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};

// Has the library leave inks as they are; 0 where it cannot.
int InkFlags(FREE_IMAGE_FORMAT format) {
    switch (format) {
        case FIF_JPEG:
            return JPEG_CMYK | JPEG_ACCURATE;
        case FIF_TIFF:
            return TIFF_CMYK;
        case FIF_PSD:
            return PSD_CMYK;
        default:
            return 0;
    }
}

}  // namespace

bool IsProfileForCmyk(QByteArrayView profile) {
    constexpr qsizetype header = 128;      // bytes
    constexpr qsizetype colourSpace = 16;  // where its four letters are
    return profile.size() > header && profile.sliced(colourSpace, 4) == QByteArrayView("CMYK");
}

BitmapHandle FromCmyk(FIBITMAP* cmyk, QByteArrayView profile) {
    const Profile inks(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
    const Profile screen(cmsCreate_sRGBProfile());
    if (!inks || !screen || cmsGetColorSpace(inks.get()) != cmsSigCmykData ||
        (FreeImage_GetBPP(cmyk) != 32 && FreeImage_GetBPP(cmyk) != 64)) {
        return nullptr;
    }
    const cmsUInt32Number depth = FreeImage_GetBPP(cmyk) == 32 ? TYPE_CMYK_8 : TYPE_CMYK_16;
    const std::unique_ptr<void, TransformDeleter> transform(
        cmsCreateTransform(inks.get(), depth, screen.get(), TYPE_BGR_8,
                           INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION));
    if (!transform) {
        return nullptr;
    }
    const PixelSize size = SizeOf(cmyk);
    BitmapHandle result = NewBitmap(size);
    for (int y = 0; y < size.height; ++y) {
        cmsDoTransform(transform.get(), FreeImage_GetScanLine(cmyk, y),
                       ScanLine(result.get(), y).data(), static_cast<cmsUInt32Number>(size.width));
    }
    return result;
}

BitmapHandle FromInks(FIBITMAP* bitmap, FREE_IMAGE_FORMAT format, const PictureFile& file) {
    BitmapMetadata metadata = LibraryMetadata(bitmap);
    const int flags = InkFlags(format);
    if (flags == 0 || !IsProfileForCmyk(metadata.colourProfile)) {
        return nullptr;
    }
    const LibraryBitmap inks = file.Load(format, flags);
    BitmapHandle colours = inks && FreeImage_GetColorType(inks.get()) == FIC_CMYK
                               ? FromCmyk(inks.get(), metadata.colourProfile)
                               : nullptr;
    if (colours) {
        metadata.colourProfile.clear();
        colours->metadata = std::move(metadata);
    }
    return colours;
}

}  // namespace varnel
