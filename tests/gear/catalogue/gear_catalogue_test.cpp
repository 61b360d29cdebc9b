// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/catalogue/gear_catalogue.h"

#include <gtest/gtest.h>

#include <cmath>

#include "gear/catalogue/camera_catalogue.h"
#include "gear/catalogue/lens_catalogue.h"
#include "remap/projection/geometry.h"

namespace varnel {
namespace {

QString Text(const char* text) {
    return QString::fromLatin1(text);
}

GearNames Names(const char* cameraBrand, const char* camera, const char* lensBrand,
                const char* lens) {
    return {Text(cameraBrand), Text(camera), Text(lensBrand), Text(lens)};
}

TEST(CameraCatalogue, ListsBrandsAndModelsInOrder) {
    EXPECT_EQ(FillCameraBrands().join(u'|'),
              Text("By sensor size|Canon|Contax|Epson|Fuji|GoPro|Hasselblad|Kodak|Konica Minolta|"
                   "Leica|Nikon|Olympus|OM System|Panasonic|Pentax|Samsung|Sigma|Sony|YI|Drones"));
    EXPECT_EQ(FillCameraModels(Text("Canon")).size(), 80);
    EXPECT_EQ(FillCameraModels(Text("Drones")), QStringList{Text("Parrot Bebop")});
    EXPECT_TRUE(FillCameraModels(Text("canon")).isEmpty());
    const QStringList nikon = FillCameraModels(Text("Nikon"));
    EXPECT_GE(nikon.indexOf(Text("D2x 2x crop mode")), 0);
}

TEST(CameraCatalogue, KnowsTheSensorSizes) {
    const struct {
        const char *brand, *model;
        float width, height;
    } cases[] = {
        {"By sensor size", "1/3.6 inch - 4.0 x 3.0 mm", 4.0F, 3.0F},
        {"By sensor size", "1/3.2 inch - 4.536 x 3.416 mm", 4.536F, 3.416F},
        {"By sensor size", "1/3.0 inch - 4.8 x 3.6 mm", 4.8F, 3.6F},
        {"By sensor size", "1/2.7 inch - 5.27 x 3.96 mm", 5.27F, 3.96F},
        {"By sensor size", "1/2.3 inch - 6.17 x 4.55 mm", 6.17F, 4.55F},
        {"By sensor size", "1/2.0 inch - 6.4 x 4.8 mm", 6.4F, 4.8F},
        {"By sensor size", "1/1.8 inch - 7.178 x 5.319 mm", 7.178F, 5.319F},
        {"By sensor size", "2/3 inch - 8.8 x 6.6 mm", 8.8F, 6.6F},
        {"By sensor size", "1 inch - 12.8 x 9.6 mm", 12.8F, 9.6F},
        {"Drones", "Parrot Bebop", 10.0F, 7.135F},
    };
    for (const auto& c : cases) {
        const auto camera = FindCamera(Text(c.brand), Text(c.model));
        ASSERT_TRUE(camera) << c.model;
        EXPECT_EQ(camera->sensorWidth, c.width) << c.model;
        EXPECT_EQ(camera->sensorHeight, c.height) << c.model;
    }
    for (const char* model : {"D700", "D3x", "D600"}) {
        const auto camera = FindCamera(Text("Nikon"), Text(model));
        const auto twin = FindCamera(Text("Nikon"), Text("D3"));
        ASSERT_TRUE(camera && twin) << model;
        EXPECT_EQ(camera->sensorWidth, twin->sensorWidth);
        EXPECT_EQ(camera->sensorHeight, twin->sensorHeight);
    }
    EXPECT_FALSE(FindCamera(Text("Canon"), Text("D3")));
    EXPECT_FALSE(FindCamera(Text("Nikon"), Text("d3")));
    EXPECT_FALSE(FindCamera(Text("Nikon"), QStringLiteral("D\u0663")));
}

TEST(LensCatalogue, ListsBrandsAndModelsInOrder) {
    EXPECT_EQ(FillLensBrands().join(u'|'),
              Text("Canon|Entaniya|GoPro|Konica Minolta|Nikon|Olympus|Panasonic|Peleng|Pentax|"
                   "Samsung|Samyang|Sigma|Sony|Tokina|Venus Laowa|Yasuhara|Zeiss|Zenitar|Drones"));
    EXPECT_EQ(FillLensModels(Text("Samyang")).join(u'|'),
              Text("7.5 mm f/3.5|8 mm f/2.8|8 mm f/3.5|12 mm f/2.8"));
    EXPECT_EQ(FillLensModels(Text("Canon")).last(), Text("EF 8-15 mm f:4.0 at 15 mm"));
    EXPECT_EQ(FillLensModels(Text("Tokina")).first(), Text("10-17 mm f/3.5-4.5 at 10 mm"));
    EXPECT_TRUE(FillLensModels(Text("")).isEmpty());
}

TEST(LensCatalogue, KnowsTheCurves) {
    const struct {
        const char *brand, *model;
        float radius, shift, field, scale, factor;
    } cases[] = {
        {"Olympus", "Zuiko ED 8mm f/3.5", 11.4F, 0.0F, 180.0F, 16.0F, 0.5F},
        {"Sigma", "EX 8 mm f:3.5", 12.0F, 0.0F, 180.0F, 15.6F, 0.54F},
        {"Nikon", "AF 10.5mm f/2.8G ED DX", 14.1F, 0.0F, 180.0F, 15.5526F, 0.713F},
        {"Peleng", "PELENG 8mm f/3.5", 12.25F, 0.0F, 180.0F, 23.8F, 0.34F},
        {"Entaniya", "HAL 250 2.3mm f/2.8", 4.5F, 0.0F, 250.0F, 6.1372F, 0.3834F},
        {"Entaniya", "M12 280", 2.04F, 0.0F, 280.0F, 2.296F, 0.4597F},
        {"Olympus", "FCON-T01", 3.833F, 0.0F, 120.0F, 18.3577F, 5.3766F},
        {"Samyang", "7.5 mm f/3.5", 11.6667F, 0.0F, 180.0F, 18.1005F, 0.418F},
        {"Samyang", "8 mm f/3.5", 15.0F, 0.0F, 180.0F, 26.1F, 3.0F},
        {"Samyang", "8 mm f/2.8", 14.58F, 0.0F, 180.0F, 28.7824F, 3.3628F},
        {"Samyang", "12 mm f/2.8", 21.0F, 0.0F, 180.0F, 33.117F, 2.6659F},
        {"Drones", "Parrot Bebop", 4.095F, 0.0F, 180.0F, 5.4105F, 0.5215F},
    };
    for (const auto& c : cases) {
        const auto lens = FindLens(Text(c.brand), Text(c.model));
        ASSERT_TRUE(lens) << c.model;
        EXPECT_EQ(lens->imageCircleRadius, c.radius) << c.model;
        EXPECT_EQ(lens->shift, c.shift) << c.model;
        EXPECT_EQ(lens->fieldAngle, c.field) << c.model;
        EXPECT_EQ(lens->mapScale, c.scale) << c.model;
        EXPECT_EQ(lens->mapFactor, c.factor) << c.model;
    }
    const struct {
        const char *brand, *model;
        float shift, radius, field;
    } partial[] = {
        {"Nikon", "8 mm", 0.2F, 11.5F, 180.0F},
        {"Sigma", "EX 8 mm f:4.0", 0.4F, 11.31F, 180.0F},
        {"Canon", "EF 8-15 mm f:4.0 at 8 mm", 0.0F, 11.5F, 180.0F},
        {"Tokina", "10-17 mm f/3.5-4.5 at 10 mm", 0.0F, 14.98F, 180.0F},
        {"Entaniya", "M12 220", 0.0F, 2.55F, 220.0F},
    };
    for (const auto& c : partial) {
        const auto lens = FindLens(Text(c.brand), Text(c.model));
        ASSERT_TRUE(lens) << c.model;
        EXPECT_EQ(lens->shift, c.shift) << c.model;
        EXPECT_EQ(lens->imageCircleRadius, c.radius) << c.model;
        EXPECT_EQ(lens->fieldAngle, c.field) << c.model;
    }
}

// Each figure is fitted in one form; by the other form the lens would see a nonsensical angle.
TEST(LensCatalogue, UsesTheTangentFormForFourLensesOnly) {
    QStringList tangent;
    for (const QString& brand : FillLensBrands()) {
        for (const QString& model : FillLensModels(brand)) {
            if (CatalogueMappingKind(brand.toStdString(), model.toStdString()) == LensKind::Tan) {
                tangent.append(brand + u' ' + model);
            }
        }
    }
    EXPECT_EQ(tangent.join(u'|'),
              Text("GoPro Hero 3 Black|Samyang 8 mm f/2.8|Samyang 8 mm f/3.5|Samyang 12 mm f/2.8"));
}

// A slip in a curve's figures would miss by far more than these fits do.
TEST(LensCatalogue, ReachesHalfTheFieldAngleAtTheCirclesEdge) {
    for (const QString& brand : FillLensBrands()) {
        for (const QString& model : FillLensModels(brand)) {
            const LensRow lens = FindLens(brand, model).value();
            const LensKind kind = LensMappingKind(lens.brand, lens.model);
            const double edge = static_cast<double>(lens.imageCircleRadius / lens.mapScale);
            const double factor = static_cast<double>(lens.mapFactor);
            const double theta =
                kind == LensKind::Sin ? std::asin(edge) / factor : std::atan(edge) * factor;
            const double field = static_cast<double>(lens.fieldAngle);
            EXPECT_NEAR(360.0 * theta / M_PI, field, 0.07 * field) << lens.model;
        }
    }
}

TEST(FillGearFromCatalogue, ComputesAnglesAndRatio) {
    const struct {
        GearNames names;
        float horizontal, vertical, ratio;
    } cases[] = {
        // The whole circle fits: 360 asin(11.4 / 16) / (0.5 pi) along both sides.
        {Names("Canon", "EOS 1D X", "Olympus", "Zuiko ED 8mm f/3.5"), 181.7547F, 181.7547F,
         157.8947F},
        // The sensor cuts the circle: 8.65 and 6.5 mm from the axis.
        {Names("Olympus", "E-3", "Olympus", "Zuiko ED 8mm f/3.5"), 130.9048F, 95.8779F, 75.8772F},
        // 3 * 360 atan(15 / 26.1) / pi, and 11.95 mm from the axis.
        {Names("Canon", "EOS 5D", "Samyang", "8 mm f/3.5"), 179.3192F, 147.6053F, 119.3333F},
        // The one Samyang in the sine form.
        {Names("Olympus", "E-3", "Samyang", "7.5 mm f/3.5"), 136.5910F, 100.6953F, 74.1426F},
        // In the sine form here though the projections use the tangent for this lens.
        {Names("Olympus", "E-3", "Olympus", "FCON-T01"), 4.48304F, 4.48304F, 225.6718F},
        // The circle fits across 10 mm but not across 7.135 mm.
        {Names("Drones", "Parrot Bebop", "Drones", "Parrot Bebop"), 188.6416F, 158.2034F,
         122.1001F},
    };
    for (const auto& c : cases) {
        GearRecord gear;
        FillGearFromCatalogue(c.names, gear);
        const std::string name = BuiltGearName(c.names).toStdString();
        EXPECT_NEAR(gear.hAOV, c.horizontal, 1e-4F) << name;
        EXPECT_NEAR(gear.vAOV, c.vertical, 1e-4F) << name;
        EXPECT_NEAR(gear.GearRatio, c.ratio, 1e-4F) << name;
        EXPECT_EQ(NamesOf(gear), c.names);
    }
}

// A radius as long as the scale is the sine of a right angle; ArcSin answers pi there.
TEST(FillGearFromCatalogue, KeepsTheConstantAngleWhereTheSineEnds) {
    GearRecord gear;
    gear.SensorWidth = 36.0F;
    gear.SensorHeight = 24.0F;
    gear.ImageCircleRadius = 12.0F;
    gear.LensMapScale = 12.0F;
    gear.LensMapFactor = 2.0F;
    FillGearFromCatalogue(Names("", "", "", ""), gear);
    EXPECT_NEAR(gear.hAOV, 180.0F, 1e-4F);  // 360 * 3.14159265359 / (2 pi)
}

TEST(FillGearFromCatalogue, WritesTheLensRowAndClearsTheUnusedNumbers) {
    GearRecord gear;
    gear.CameraData1 = gear.CameraData2 = gear.LensData3 = 5.0F;
    gear.LensDataVersion = 3;
    gear.OfsetX = 8.0F;
    FillGearFromCatalogue(Names("Canon", "EOS 5D", "Nikon", "8 mm"), gear);
    EXPECT_EQ(gear.SensorWidth, 35.8F);
    EXPECT_EQ(gear.SensorHeight, 23.9F);
    EXPECT_EQ(gear.ImageCircleRadius, 11.5F);
    EXPECT_EQ(gear.LensShift, 0.2F);
    EXPECT_EQ(gear.LensFieldAngle, 180.0F);
    EXPECT_EQ(gear.LensDataVersion, 0);
    EXPECT_EQ(gear.CameraData1 + gear.CameraData2 + gear.LensData3, 0.0F);
    EXPECT_EQ(gear.OfsetX, 8.0F);  // only the drone resets it
    FillGearFromCatalogue(Names("Drones", "Parrot Bebop", "Nikon", "8 mm"), gear);
    EXPECT_EQ(gear.OfsetX, 0.0F);
    EXPECT_EQ(gear.LensDataVersion, 1);
}

TEST(FillGearFromCatalogue, LeavesNumbersOfUnknownNamesAlone) {
    GearRecord gear;
    FillGearFromCatalogue(Names("Canon", "EOS 5D", "Nikon", "nothing"), gear);
    EXPECT_EQ(gear.SensorWidth, 35.8F);
    EXPECT_EQ(gear.hAOV, 0.0F);
    EXPECT_EQ(gear.vAOV, 0.0F);
    EXPECT_EQ(gear.GearRatio, 0.0F);
    EXPECT_EQ(gear.LensModel, Text("nothing"));

    FillGearFromCatalogue(Names("Olympus", "E-3", "Olympus", "Zuiko ED 8mm f/3.5"), gear);
    FillGearFromCatalogue(Names("Olympus", "E-33", "Olympus", "Zuiko ED 8mm f/3.5"), gear);
    EXPECT_EQ(gear.SensorWidth, 17.3F);
    EXPECT_NEAR(gear.hAOV, 130.9048F, 1e-4F);
}

TEST(FillGearFromCatalogue, TakesTheEditorsSlidersOnlyWhenAdjusted) {
    const EditorSliders sliders{88, -3, 4};
    GearRecord gear;
    const GearNames names = Names("Drones", "Parrot Bebop", "Drones", "Parrot Bebop");
    FillGearFromCatalogue(names, gear, sliders);
    EXPECT_NEAR(gear.GearRatio, 122.1001F, 1e-4F);
    EXPECT_EQ(gear.OfsetX, 0.0F);
    gear.UserAdjusted = true;
    FillGearFromCatalogue(names, gear, sliders);
    EXPECT_EQ(gear.GearRatio, 88.0F);
    EXPECT_EQ(gear.OfsetX, -3.0F);
    EXPECT_EQ(gear.OfsetY, 4.0F);
    EXPECT_NEAR(gear.hAOV, 188.6416F, 1e-4F);
}

TEST(UniqueGearName, AddsATwoForEveryMatchInOnePass) {
    const QString built = BuiltGearName(Names("Canon", "EOS 5D", "Samyang", "8 mm f/3.5"));
    EXPECT_EQ(built, Text("Canon EOS 5D + Samyang 8 mm f/3.5"));
    const struct {
        std::vector<const char*> table;
        const char* unique;
    } cases[] = {
        {{}, "a"},
        {{"b"}, "a"},
        {{"a"}, "a 2"},
        {{"a", "a 2"}, "a 2 2"},
        {{"a 2", "a"}, "a 2"},  // the earlier gear is not looked for again
        {{"A"}, "a"},
    };
    for (const auto& c : cases) {
        GearTable table;
        table(0).GearName = Text("a");  // the scratch slot is no gear
        for (const char* name : c.table) {
            table.Resize(table.UpperBound() + 1);
            table(table.UpperBound()).GearName = Text(name);
        }
        EXPECT_EQ(UniqueGearName(table, Text("a")), Text(c.unique));
    }
}

}  // namespace
}  // namespace varnel
