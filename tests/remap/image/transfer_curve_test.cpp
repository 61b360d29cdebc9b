// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/transfer_curve.h"

#include <gtest/gtest.h>
#include <lcms2.h>

#include <cmath>

namespace varnel {
namespace {

// A profile whose colours have a plain power as their curve.
QByteArray ProfileOf(double gamma) {
    cmsToneCurve* const curve = cmsBuildGamma(nullptr, gamma);
    cmsToneCurve* const curves[] = {curve, curve, curve};
    const cmsCIExyY white{0.3127, 0.3290, 1.0};
    const cmsCIExyYTRIPLE primaries{{0.64, 0.33, 1.0}, {0.21, 0.71, 1.0}, {0.15, 0.06, 1.0}};
    const cmsHPROFILE profile = cmsCreateRGBProfile(&white, &primaries, curves);
    cmsUInt32Number size = 0;
    cmsSaveProfileToMem(profile, nullptr, &size);
    QByteArray bytes(static_cast<qsizetype>(size), '\0');
    cmsSaveProfileToMem(profile, bytes.data(), &size);
    cmsCloseProfile(profile);
    cmsFreeToneCurve(curve);
    return bytes;
}

TransferCurve::Handle CurveOf(const QByteArray& profile, PixelFormat format = PixelFormat::Bgr16) {
    const BitmapHandle bitmap = NewBitmap({1, 1}, format);
    bitmap->metadata.colourProfile = profile;
    return TransferCurve::Of(*bitmap);
}

// But for the darkest of curves that are flat there, which are one apart.
TEST(TransferCurve, SamplesComeBackFromTheirLight) {
    for (const TransferCurve::Handle& curve :
         {CurveOf({}), CurveOf(ProfileOf(1.8)), CurveOf(ProfileOf(1.0)),
          CurveOf({}, PixelFormat::BgrFloat)}) {
        for (int n = 0; n <= 65535; ++n) {
            const float light = curve->LightOf(static_cast<std::uint16_t>(n));
            const long back = std::lround(curve->SampleOf(light) * 65535.0F);
            ASSERT_LE(std::abs(back - n), n < 32 ? 1 : 0) << n;
        }
        EXPECT_NEAR(curve->SampleOf(curve->LightOf(2.5F)), 2.5F, 1e-5F);
        EXPECT_NEAR(curve->SampleOf(curve->LightOf(0.123F)), 0.123F, 1e-5F);
    }
}

TEST(TransferCurve, IsTheProfiles) {
    const std::uint8_t middle = 128;
    const double sample = 128.0 / 255.0;
    EXPECT_NEAR(CurveOf({})->LightOf(middle), std::pow((sample + 0.055) / 1.055, 2.4), 1e-3);
    EXPECT_NEAR(CurveOf(ProfileOf(1.8))->LightOf(middle), std::pow(sample, 1.8), 1e-3);
    EXPECT_NEAR(CurveOf(ProfileOf(3.0))->LightOf(middle), std::pow(sample, 3.0), 1e-3);
    EXPECT_TRUE(CurveOf({}, PixelFormat::BgrFloat)->IsStraight());
    EXPECT_FALSE(CurveOf(ProfileOf(1.8), PixelFormat::BgrFloat)->IsStraight());
}

TEST(TransferCurve, OfAProfileThatSaysNothingIsThatOfSrgb) {
    const float srgb = CurveOf({})->LightOf(std::uint8_t{128});
    EXPECT_EQ(CurveOf("no profile")->LightOf(std::uint8_t{128}), srgb);
    EXPECT_EQ(TransferCurve([](double) { return 0.5; }).LightOf(std::uint8_t{128}), srgb);
}

}  // namespace
}  // namespace varnel
