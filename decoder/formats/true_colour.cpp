// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/true_colour.h"

#include <lcms2.h>

#include <QtEndian>
#include <cmath>
#include <memory>
#include <new>
#include <utility>

#include "decoder/formats/tone_map.h"

namespace varnel {

namespace {

bool IsFloatColour(FREE_IMAGE_TYPE type) {
    return type == FIT_RGBF || type == FIT_RGBAF;
}

// The standard conversion stretches darkest to brightest over black to white; a sample that is no
// number would spoil that.
template <class Sample>
void ReplaceNonNumbers(FIBITMAP* bitmap) {
    for (unsigned y = 0; y < FreeImage_GetHeight(bitmap); ++y) {
        auto* const row =
            reinterpret_cast<Sample*>(FreeImage_GetScanLine(bitmap, static_cast<int>(y)));
        for (unsigned x = 0; x < FreeImage_GetWidth(bitmap); ++x) {
            row[x] = std::isfinite(row[x]) ? row[x] : Sample{0};
        }
    }
}

// Grey of other kinds has no direct way to 24 bits.
LibraryBitmap ToGrey8(FIBITMAP* bitmap, FREE_IMAGE_TYPE type) {
    switch (type) {
        case FIT_UINT16:  // the upper eight bits, as of 16-bit colour
            return LibraryBitmap(FreeImage_ConvertTo8Bits(bitmap));
        case FIT_FLOAT:
            ReplaceNonNumbers<float>(bitmap);
            break;
        case FIT_DOUBLE:
            ReplaceNonNumbers<double>(bitmap);
            break;
        default:
            break;
    }
    return LibraryBitmap(FreeImage_ConvertToStandardType(bitmap, TRUE));
}

BitmapHandle ConvertedByLibrary(FIBITMAP* bitmap) {
    LibraryBitmap converted(FreeImage_ConvertTo24Bits(bitmap));
    return converted ? TakeOver(std::move(converted)) : throw std::bad_alloc();
}

BitmapHandle Converted(FIBITMAP* bitmap, FREE_IMAGE_TYPE type) {
    switch (type) {
        case FIT_BITMAP:
        case FIT_RGB16:
        case FIT_RGBA16:
            return ConvertedByLibrary(bitmap);
        case FIT_RGBF:
        case FIT_RGBAF:
            return ToneMapped(bitmap);
        default: {
            const LibraryBitmap grey = ToGrey8(bitmap, type);
            return grey ? ConvertedByLibrary(grey.get()) : throw std::bad_alloc();
        }
    }
}

struct ProfileCloser {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};

// Of a device's colours, and on the way to the two spaces that profiles connect by.
bool IsOfDevice(cmsHPROFILE profile) {
    const cmsProfileClassSignature kind = cmsGetDeviceClass(profile);
    const cmsColorSpaceSignature connection = cmsGetPCS(profile);
    return kind != cmsSigAbstractClass && kind != cmsSigLinkClass &&
           (connection == cmsSigXYZData || connection == cmsSigLabData);
}

}  // namespace

bool IsProfileForRgb(QByteArrayView profile) {
    constexpr qsizetype tagCount = 128;  // bytes of the header; the first four state the length
    const auto number = [&](qsizetype at) { return qFromBigEndian<quint32>(profile.data() + at); };
    if (profile.size() < tagCount + 4 || number(0) != profile.size()) {
        return false;
    }
    const std::unique_ptr<void, ProfileCloser> opened(
        cmsOpenProfileFromMem(profile.data(), static_cast<cmsUInt32Number>(profile.size())));
    // lcms2 passes over tags that lie outside of the profile; who reads our files may not.
    return opened && cmsGetColorSpace(opened.get()) == cmsSigRgbData && IsOfDevice(opened.get()) &&
           static_cast<quint32>(cmsGetTagCount(opened.get())) == number(tagCount);
}

BitmapHandle To24Bits(LibraryBitmap bitmap) {
    const FREE_IMAGE_TYPE type = FreeImage_GetImageType(bitmap.get());
    if (type == FIT_COMPLEX || type == FIT_UNKNOWN) {
        return nullptr;
    }
    BitmapMetadata metadata = LibraryMetadata(bitmap.get());
    // Tone-mapped colours are no longer those of the profile.
    if (IsFloatColour(type) || !IsProfileForRgb(metadata.colourProfile)) {
        metadata.colourProfile.clear();
    }
    const bool isReady = type == FIT_BITMAP && FreeImage_GetBPP(bitmap.get()) == 24;
    BitmapHandle result = isReady ? TakeOver(std::move(bitmap)) : Converted(bitmap.get(), type);
    result->metadata = std::move(metadata);
    return result;
}

}  // namespace varnel
