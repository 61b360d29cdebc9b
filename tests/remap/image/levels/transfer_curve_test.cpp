// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/levels/transfer_curve.h"

#include <gtest/gtest.h>

#include <cmath>

#include "tests/support/seeds/profiles.h"

namespace varnel {
namespace {

TransferCurve::Handle CurveOf(const QByteArray& profile, PixelFormat format = PixelFormat::Bgr16) {
    const BitmapHandle bitmap = NewBitmap({1, 1}, format);
    bitmap->metadata.colourProfile = profile;
    return TransferCurve::Of(*bitmap);
}

// But for the darkest of curves that are flat there, which are one apart.
TEST(TransferCurve, SamplesComeBackFromTheirLight) {
    for (const TransferCurve::Handle& curve :
         {CurveOf({}), CurveOf(testing::RgbProfile(1.8)), CurveOf(testing::RgbProfile(1.0)),
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
    EXPECT_NEAR(CurveOf(testing::RgbProfile(1.8))->LightOf(middle), std::pow(sample, 1.8), 1e-3);
    EXPECT_NEAR(CurveOf(testing::RgbProfile(3.0))->LightOf(middle), std::pow(sample, 3.0), 1e-3);
    EXPECT_TRUE(CurveOf({}, PixelFormat::BgrFloat)->IsStraight());
    EXPECT_FALSE(CurveOf(testing::RgbProfile(1.8), PixelFormat::BgrFloat)->IsStraight());
}

TEST(TransferCurve, OfAProfileThatSaysNothingIsThatOfSrgb) {
    const float srgb = CurveOf({})->LightOf(std::uint8_t{128});
    EXPECT_EQ(CurveOf("no profile")->LightOf(std::uint8_t{128}), srgb);
    EXPECT_EQ(TransferCurve([](double) { return 0.5; }).LightOf(std::uint8_t{128}), srgb);
}

}  // namespace
}  // namespace varnel
