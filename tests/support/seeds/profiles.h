// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Colour profiles.
#pragma once

#include <lcms2.h>

#include <QByteArray>
#include <algorithm>
#include <array>

namespace varnel::testing {

// Its bytes; closes it.
inline QByteArray Saved(cmsHPROFILE profile) {
    cmsUInt32Number length = 0;
    cmsSaveProfileToMem(profile, nullptr, &length);
    QByteArray bytes(static_cast<qsizetype>(length), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &length);
    cmsCloseProfile(profile);
    return bytes;
}

// With a plain power as its curve. Not sRGB, so that nobody takes it for that.
inline QByteArray RgbProfile(double gamma = 2.2) {
    const cmsCIExyY white{0.3127, 0.3290, 1};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1}, {0.21, 0.71, 1}, {0.15, 0.06, 1}};
    cmsToneCurve* const curve = cmsBuildGamma(nullptr, gamma);
    const std::array curves{curve, curve, curve};
    const QByteArray bytes = Saved(cmsCreateRGBProfile(&white, &primaries, curves.data()));
    cmsFreeToneCurve(curve);
    return bytes;
}

inline QByteArray GreyProfile() {
    cmsToneCurve* const curve = cmsBuildGamma(nullptr, 2.2);
    const QByteArray bytes = Saved(cmsCreateGrayProfile(cmsD50_xyY(), curve));
    cmsFreeToneCurve(curve);
    return bytes;
}

// Neutral inks: black takes all the light away, cyan 40 % of it by L*, the others none.
inline QByteArray InkProfile() {
    const auto light = [](const cmsUInt16Number in[], cmsUInt16Number out[], void*) {
        const double lightness = 1 - in[3] / 65535.0 - 0.4 * in[0] / 65535.0;
        out[0] = static_cast<cmsUInt16Number>(std::max(lightness, 0.0) * 65280);  // as ICC 2 has it
        out[1] = out[2] = 0x8000;
        return 1;
    };
    cmsHPROFILE const profile = cmsCreateProfilePlaceholder(nullptr);
    cmsSetProfileVersion(profile, 2.4);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsPipeline* const pipeline = cmsPipelineAlloc(nullptr, 4, 3);
    cmsStage* const table = cmsStageAllocCLut16bit(nullptr, 6, 4, 3, nullptr);
    cmsStageSampleCLut16bit(table, light, nullptr, 0);
    cmsPipelineInsertStage(pipeline, cmsAT_END, table);
    cmsWriteTag(profile, cmsSigAToB0Tag, pipeline);
    cmsPipelineFree(pipeline);
    return Saved(profile);
}

}  // namespace varnel::testing
