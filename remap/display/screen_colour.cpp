// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/display/screen_colour.h"

#include <lcms2.h>

namespace varnel {

namespace {

using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;

Profile ProfileOf(const QByteArray& icc) {
    return {icc.isEmpty()
                ? cmsCreate_sRGBProfile()
                : cmsOpenProfileFromMem(icc.constData(), static_cast<cmsUInt32Number>(icc.size())),
            &cmsCloseProfile};
}

bool IsOfRgb(const Profile& profile) {
    return profile && cmsGetColorSpace(profile.get()) == cmsSigRgbData;
}

// An RGB32 pixel is a number of 32 bits with blue in its lowest byte.
constexpr cmsUInt32Number pixelType = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? TYPE_BGRA_8 : TYPE_ARGB_8;

}  // namespace

ScreenColour::ScreenColour(const QByteArray& picture, const QByteArray& screen) {
    if (picture == screen) {
        return;
    }
    const Profile from = ProfileOf(picture);
    const Profile to = ProfileOf(screen);
    if (!IsOfRgb(from) || !IsOfRgb(to)) {
        return;
    }
    transform_.reset(
        cmsCreateTransform(from.get(), pixelType, to.get(), pixelType, INTENT_RELATIVE_COLORIMETRIC,
                           cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA),
        [](void* transform) {
            if (transform != nullptr) {
                cmsDeleteTransform(transform);
            }
        });
}

void ScreenColour::Apply(QImage& image) const {
    if (!transform_ || image.isNull()) {
        return;
    }
    for (int y = 0; y < image.height(); ++y) {
        std::uint8_t* const line = image.scanLine(y);
        cmsDoTransform(transform_.get(), line, line, static_cast<cmsUInt32Number>(image.width()));
    }
}

}  // namespace varnel
