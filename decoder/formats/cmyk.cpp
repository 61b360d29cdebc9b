// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/cmyk.h"

#include <memory>
#include <utility>

#include "remap/image/levels/lcms_handles.h"

namespace varnel {

bool IsProfileForCmyk(QByteArrayView profile) {
    constexpr qsizetype header = 128;      // bytes
    constexpr qsizetype colourSpace = 16;  // where its four letters are
    return profile.size() > header && profile.sliced(colourSpace, 4) == QByteArrayView("CMYK");
}

BitmapHandle FromCmyk(const SampleRows& cmyk, QByteArrayView profile, SampleKind samples) {
    const ProfileHandle inks = OpenProfile(profile);
    const ProfileHandle screen(cmsCreate_sRGBProfile());
    if (!inks || !screen || cmsGetColorSpace(inks.get()) != cmsSigCmykData) {
        return nullptr;
    }
    const cmsUInt32Number depth = cmyk.bytesPerSample == 1 ? TYPE_CMYK_8 : TYPE_CMYK_16;
    const ColourTransform transform(cmsCreateTransform(
        inks.get(), depth, screen.get(), samples == SampleKind::Word ? TYPE_BGR_16 : TYPE_BGR_8,
        INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION));
    if (!transform) {
        return nullptr;
    }
    BitmapHandle result = NewBitmap(cmyk.size, PixelFormatOf(samples, false));
    for (int y = 0; y < cmyk.size.height; ++y) {
        cmsDoTransform(transform.get(), cmyk.Row(y), ScanLine(result.get(), y).data(),
                       static_cast<cmsUInt32Number>(cmyk.size.width));
    }
    return result;
}

BitmapHandle FromInks(const LibraryReader& reader, const BitmapMetadata& metadata, bool ownDepth) {
    if (!IsProfileForCmyk(metadata.colourProfile)) {
        return nullptr;
    }
    const LibraryPicture picture = reader.WithInks();
    const std::optional<SampleRows> inks = picture.Inks();
    const bool isDeep = ownDepth && inks && inks->bytesPerSample == 2;
    BitmapHandle colours =
        inks ? FromCmyk(*inks, metadata.colourProfile, isDeep ? SampleKind::Word : SampleKind::Byte)
             : nullptr;
    if (colours) {
        colours->metadata = metadata;
        colours->metadata.colourProfile.clear();
    }
    return colours;
}

}  // namespace varnel
