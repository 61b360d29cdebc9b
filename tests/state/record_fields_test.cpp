// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/record_fields.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnel {
namespace {

TEST(FieldNames, ListsAllFieldsInTheRecordsOrder) {
    EXPECT_EQ(
        FieldNames().join(u' '),
        QStringLiteral(
            "Width Height Landscape GearName CameraBrand CameraModel SensorWidth SensorHeight "
            "CameraData1 CameraData2 LensBrand LensModel ImageCircleRadius LensShift "
            "LensData3 LensMapScale LensMapFactor Projection SettingsApplied OfsetX OfsetY "
            "Ratio InputAOV OutputAOV EffectVarnel EffectRectilinear RotateX RotateY RotateZ "
            "TranslateX TranslateY Folder FileName NameSuffix Orientation"));
}

// A field whose row points at another member would set two names to one place.
TEST(SetField, ReachesADifferentMemberByEveryName) {
    std::vector<ImageRecord> seen{ImageRecord()};
    for (const QString& name : FieldNames()) {
        ImageRecord image;
        EXPECT_EQ(SetField(image, name, QStringLiteral("-1")), FieldResult::Ok)
            << name.toStdString();
        EXPECT_EQ(std::count(seen.begin(), seen.end(), image), 0) << name.toStdString();
        seen.push_back(image);
    }
    ImageRecord image;
    SetField(image, QStringLiteral("RotateY"), QStringLiteral("-7.5"));
    SetField(image, QStringLiteral("Height"), QStringLiteral("-32768"));
    SetField(image, QStringLiteral("LensModel"), QStringLiteral("8 mm, f/3.5"));
    EXPECT_EQ(image.RotateY, -7.5F);
    EXPECT_EQ(image.Height, -32768);
    EXPECT_EQ(image.LensModel, QStringLiteral("8 mm, f/3.5"));
}

TEST(SetField, ChecksValuesByTheFieldsKind) {
    using enum FieldResult;
    const struct {
        const char* field;
        const char* value;
        FieldResult result;
    } cases[] = {
        {"Width", "32767", Ok},
        {"Width", "32768", BadValue},
        {"Width", "-32769", BadValue},
        {"Width", "1.5", BadValue},
        {"Width", "", BadValue},
        {"Landscape", "True", Ok},
        {"Landscape", "false", Ok},
        {"Landscape", "-1", Ok},
        {"Landscape", "TRUE", BadValue},
        {"Landscape", "2", BadValue},
        {"OfsetX", "-2.5", Ok},
        {"OfsetX", "2,5", BadValue},
        {"OfsetX", "inf", BadValue},
        {"OfsetX", "1e39", BadValue},
        {"Projection", "horizon", Ok},
        {"Projection", "3", Ok},
        {"Projection", "Round", BadValue},
        {"Projection", "70000", BadValue},
        {"GearName", "", Ok},
        {"ofsetX", "1", UnknownField},
        {"OffsetX", "1", UnknownField},
        {"", "1", UnknownField},
        {"RotateX ", "1", UnknownField},
    };
    for (const auto& c : cases) {
        ImageRecord image;
        EXPECT_EQ(SetField(image, QString::fromLatin1(c.field), QString::fromLatin1(c.value)),
                  c.result)
            << c.field << '=' << c.value;
        EXPECT_TRUE(c.result == Ok || image == ImageRecord()) << c.field << '=' << c.value;
    }
}

TEST(SetField, StoresFlagsAndProjectionsByAnyOfTheirForms) {
    const struct {
        const char* field;
        const char* value;
        std::int16_t stored;
    } cases[] = {
        {"Landscape", "True", -1},
        {"Landscape", "true", -1},
        {"Landscape", "1", -1},
        {"Landscape", "-1", -1},
        {"Landscape", "False", 0},
        {"Landscape", "false", 0},
        {"Landscape", "0", 0},
        {"Projection", "Varnel", 0},
        {"Projection", "Rectilinear", 1},
        {"Projection", "Equidistance", 2},
        {"Projection", "Horizon", 3},
        {"Projection", "2", 2},
    };
    for (const auto& c : cases) {
        ImageRecord image;
        image.Landscape = c.stored == 0;  // the other one
        image.Projection = 9;
        SetField(image, QString::fromLatin1(c.field), QString::fromLatin1(c.value));
        const bool flag = QLatin1StringView(c.field) == QLatin1StringView("Landscape");
        EXPECT_EQ(flag ? image.Landscape.Value() : image.Projection, c.stored) << c.value;
    }
}

}  // namespace
}  // namespace varnel
