// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/linear_light.h"

#include <memory>
#include <new>
#include <type_traits>

#include "remap/image/levels/lcms_handles.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// IEC 61966-2-1 without its curve.
ProfileHandle LinearProfile() {
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.30, 0.60, 1.0}, {0.15, 0.06, 1.0}};
    const ToneCurve line(cmsBuildGamma(nullptr, 1.0));
    cmsToneCurve* const lines[3] = {line.get(), line.get(), line.get()};
    return ProfileHandle(cmsCreateRGBProfile(&white, &primaries, lines));
}

// Null when the profile cannot be used.
ColourTransform TransformFrom(const ProfileHandle& profile, bool alpha) {
    const auto format = static_cast<cmsUInt32Number>(alpha ? TYPE_BGRA_FLT : TYPE_BGR_FLT);
    return ColourTransform(
        profile ? cmsCreateTransform(profile.get(), format, LinearProfile().get(), format,
                                     INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOCACHE)
                : nullptr);
}

}  // namespace

BitmapHandle InLinearLight(const Bitmap& bitmap, BlockRunner& runner) {
    BitmapHandle linear = CloneBitmap(&bitmap);
    linear->metadata.colourProfile.clear();
    const PixelSize size = bitmap.Size();
    const bool alpha = HasAlpha(bitmap.Format());
    ColourTransform transform = TransformFrom(OpenProfile(bitmap.metadata.colourProfile), alpha);
    if (!transform) {
        transform = TransformFrom(ProfileHandle(cmsCreate_sRGBProfile()), alpha);
    }
    if (!transform) {
        throw std::bad_alloc();
    }
    // The alpha of the copy stays: the transform leaves what is no colour alone.
    runner.Run(size.height, [&](int y) {
        cmsDoTransform(transform.get(), bitmap.ScanLine(y).data(), linear->ScanLine(y).data(),
                       static_cast<cmsUInt32Number>(size.width));
    });
    return linear;
}

}  // namespace varnel
