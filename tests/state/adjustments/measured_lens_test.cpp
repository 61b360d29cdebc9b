// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/measured_lens.h"

#include <gtest/gtest.h>

#include "gear/catalogue/gear_catalogue.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {
namespace {

ImageRecord Taken(std::int16_t width, std::int16_t height) {
    GearRecord gear;
    FillGearFromCatalogue({QStringLiteral("Canon"), QStringLiteral("EOS 5D"),
                           QStringLiteral("Sigma"), QStringLiteral("EX 8 mm f:3.5")},
                          gear);
    ImageRecord image;
    image.Width = width;
    image.Height = height;
    image.Landscape = width >= height;
    AssignGear(gear, image);
    return image;
}

LensReference Measured(SampledLens::Unit unit) {
    SampledLens lens;
    lens.name = QStringLiteral("mine");
    lens.unit = unit;
    const double rim = unit == SampledLens::Unit::Millimetres ? 11.0 : 1.0;
    for (int n = 0; n < lensKnots; ++n) {
        const double angle = 1.6 * n / (lensKnots - 1);
        lens.knots[static_cast<std::size_t>(n)] = {angle, rim * std::sin(0.6 * angle)};
    }
    lens.centre = LensCentre{1511.3, 1003.7, {3000, 2000}};
    lens.pixelsPerUnit = 900.0 / rim;
    return std::make_shared<const SampledLens>(lens);
}

TEST(MeasuredLens, DrawsOnItsPhotoAsItWasMeasured) {
    EXPECT_FALSE(KnownLensOf(ImageRecord()));
    for (const auto unit : {SampledLens::Unit::Millimetres, SampledLens::Unit::CircleRadii}) {
        const LensReference lens = Measured(unit);
        // The photo, and a crop of the sensor that the gear says nothing of.
        for (ImageRecord image : {Taken(3000, 2000), Taken(1500, 1000)}) {
            const double reduced = image.Width / 3000.0;
            image.OfsetX = 7.0F;
            image.OutputAOV = 95.0F;
            PutLens(lens, image);
            const auto known = KnownLensOf(image);
            ASSERT_TRUE(known);
            EXPECT_NEAR(known->view.curve.Radius(0.8), reduced * 900.0 * std::sin(0.48), 0.02);
            EXPECT_NEAR(known->view.centre.x, reduced * 1511.3, 0.01);
            EXPECT_NEAR(known->view.centre.y, reduced * 1003.7, 0.01);
            EXPECT_EQ(image.OutputAOV, 95.0F) << "it was chosen";
            EXPECT_TRUE(image.SettingsApplied);
            EXPECT_EQ(image.GearName, QStringLiteral("Canon EOS 5D + My lenses mine"));
        }
    }
}

TEST(MeasuredLens, NamesTheGearWithoutACameraToo) {
    ImageRecord image = Taken(3000, 2000);
    image.CameraBrand = image.CameraModel = QString();
    PutLens(Measured(SampledLens::Unit::CircleRadii), image);
    EXPECT_EQ(image.GearName, QStringLiteral("My lenses mine"));
}

TEST(MeasuredLens, TurnsWithThePicture) {
    const LensReference lens = Measured(SampledLens::Unit::Millimetres);
    // Turned clockwise, what was 1511.3 from the left is as far from the top.
    const LensCentre upright = *TurnedLens(lens, 1, 6)->centre;
    EXPECT_EQ(upright.size.width, 2000);
    EXPECT_NEAR(upright.x, 1003.7, 0.01);
    EXPECT_NEAR(upright.y, 3000.0 - 1511.3, 0.01);
    const LensCentre back =
        *TurnedLens(std::make_shared<const SampledLens>(*TurnedLens(lens, 1, 6)), 6, 1)->centre;
    EXPECT_NEAR(back.x, 1511.3, 0.01);
    EXPECT_NEAR(back.y, 1003.7, 0.01);
}

}  // namespace
}  // namespace varnel
