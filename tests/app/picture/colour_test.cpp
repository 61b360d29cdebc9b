// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The colours of the screen, and the levels of the result.

#include <gtest/gtest.h>

#include "app/picture/histogram_overlay.h"
#include "remap/render/outside.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/profiles.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

QRgb OnScreen(QRgb colour, const QByteArray& picture, const QByteArray& screen) {
    QImage image(2, 2, QImage::Format_RGB32);
    image.fill(colour);
    ScreenColour(picture, screen).Apply(image);
    return image.pixel(1, 1);
}

TEST(ScreenColour, GoesFromThePhotosProfileToTheScreens) {
    const QByteArray wide = testing::RgbProfile();
    const QRgb green = qRgb(30, 200, 60);
    EXPECT_EQ(OnScreen(green, {}, {}), green);
    EXPECT_EQ(OnScreen(green, wide, wide), green);
    EXPECT_EQ(OnScreen(green, testing::GreyProfile(), {}), green);  // no picture of three channels
    EXPECT_EQ(OnScreen(green, QByteArray("no profile"), {}), green);
    // The wide profile's green is beyond sRGB's: less red is left there, and the way back adds it.
    EXPECT_LT(qRed(OnScreen(green, wide, {})), 10);
    EXPECT_GT(qRed(OnScreen(green, {}, wide)), 60);
    EXPECT_NEAR(qGreen(OnScreen(qRgb(128, 128, 128), wide, {})), 128, 3);
}

TEST(ScreenColour, IsToldByTheWindowAndCanBeLeftOut) {
    testing::TestWindow workspace;
    workspace.AddPhotos({QStringLiteral("a.bmp")}, {300, 200});
    ASSERT_TRUE(testing::Settle());
    const QImage plain = workspace.Shown("PicSmallTo");
    Bitmap& photo = *workspace.state.bitmaps.FullSourceBitmap;
    photo.metadata.colourProfile = testing::RgbProfile();
    for (const bool on : {false, true}) {
        workspace.Entry("CmdViewColours")->setChecked(on);
        ASSERT_TRUE(testing::Settle());
        EXPECT_EQ(workspace.Shown("PicSmallTo") == plain, !on);
    }
}

TEST(Histogram, CountsThePhotosPixelsAndWhatIsCutOff) {
    const BitmapHandle picture = testing::Painted({100, 10}, [](int x, int y) {
        if (y == 0) {
            return black;  // not of the photo
        }
        return PixelColor{static_cast<BYTE>(x == 0 ? 255 : 100), 90, static_cast<BYTE>(x + 1), 0};
    });
    const Histogram found = Histogram::Of(*picture);
    EXPECT_EQ(found.pixels, 900);
    EXPECT_EQ(found.counts[0][255], 9);
    EXPECT_EQ(found.counts[1][90], 900);
    EXPECT_TRUE(found.IsLightCut());
    EXPECT_FALSE(found.IsDarkCut());
}

TEST(Histogram, LeavesOutWhatStandsOutside) {
    using Kind = OutsideFill::Kind;
    for (const OutsideFill& outside :
         {OutsideFill{}, OutsideFill{Kind::Transparent}, OutsideFill{Kind::Colour, 200, 0, 255}}) {
        const BitmapHandle picture = testing::Painted({40, 30}, [&outside](int x, int y) {
            return y < 10 ? OutsideColour(outside, x, y) : PixelColor{90, 90, 90, 0};
        });
        EXPECT_EQ(Histogram::Of(*picture, outside).pixels, 800);
        EXPECT_EQ(Histogram::Of(*picture, outside).counts[0][90], 800);
    }
}

TEST(Histogram, LiesOverTheResultWhileItIsChosen) {
    testing::TestWindow workspace;
    workspace.AddPhotos({QStringLiteral("a.bmp")}, {300, 200});
    ASSERT_TRUE(testing::Settle());
    const QImage plain = workspace.Shown("PicSmallTo");
    workspace.Entry("CmdViewHistogram")->trigger();
    EXPECT_NE(workspace.Shown("PicSmallTo"), plain);
    workspace.Entry("CmdViewHistogram")->trigger();
    EXPECT_EQ(workspace.Shown("PicSmallTo"), plain);
}

}  // namespace
}  // namespace varnel
