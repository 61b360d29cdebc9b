// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/record_fields.h"

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
            "TranslateX TranslateY Folder FileName NameSuffix Orientation OutputWidth OutputHeight "
            "CropLeft CropTop CropWidth CropHeight Outside PaniniD PaniniSqueeze "
            "UnrollStart UnrollDirection UnrollFrom UnrollTo Pose Tunnel Marks Faces "
            "Sampling"));
}

// A field whose row points at another member would set two names to one place.
TEST(SetField, ReachesADifferentMemberByEveryName) {
    std::vector<ImageRecord> seen{ImageRecord()};
    for (const QString& name : FieldNames()) {
        ImageRecord image;
        const bool isFrame =
            name.startsWith(u"Crop") || name == u"OutputWidth" || name == u"OutputHeight";
        const QString value = name == u"Outside"    ? QStringLiteral("#010203")
                              : name == u"Pose"     ? QStringLiteral("up")
                              : name == u"Sampling" ? QStringLiteral("fine")
                              : name == u"Faces"    ? QStringLiteral("0.5,0.5,0.1,0.1")
                              : isFrame             ? QStringLiteral("1")
                                                    : QStringLiteral("-1");
        EXPECT_EQ(SetField(image, name, value), FieldResult::Ok) << name.toStdString();
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

TEST(SetField, TakesValuesByTheFieldsKind) {
    using enum FieldResult;
    const struct {
        const char* field;
        const char* value;
        FieldResult result;
        const char* stored = "";
    } cases[] = {
        {"Width", "32767", Ok, "32767"},
        {"OutputWidth", "32767", Ok, "32767"},
        {"OutputWidth", "32768", BadValue},
        {"OutputHeight", "-1", BadValue},
        {"CropLeft", "0.25", Ok, "0.25"},
        {"CropWidth", "1.01", BadValue},
        {"Outside", "Transparent", Ok, "transparent"},
        {"Outside", "#0aFF10", Ok, "#0aff10"},
        {"Outside", "#12345g", BadValue},
        {"Outside", "white", BadValue},
        {"Sampling", "Fine", Ok, "fine"},
        {"Sampling", "classic", Ok, "classic"},
        {"Sampling", "1", BadValue},
        {"Width", "32768", BadValue},
        {"Width", "-32769", BadValue},
        {"Width", "1.5", BadValue},
        {"Width", "", BadValue},
        {"UnrollDirection", "1", Ok, "1"},
        {"UnrollDirection", "0", BadValue},
        {"Pose", "Down", Ok, "down"},
        {"Pose", "1", Ok, "up"},
        {"Pose", "3", BadValue},
        {"Projection", "fisheye-EQUISOLID", Ok, "10"},
        {"Projection", "LittlePlanet", Ok, "12"},
        {"Landscape", "True", Ok, "True"},
        {"Landscape", "true", Ok, "True"},
        {"Landscape", "1", Ok, "True"},
        {"Landscape", "-1", Ok, "True"},
        {"Landscape", "False", Ok, "False"},
        {"Landscape", "false", Ok, "False"},
        {"Landscape", "0", Ok, "False"},
        {"Landscape", "TRUE", BadValue},
        {"Landscape", "2", BadValue},
        {"OfsetX", "-2.5", Ok, "-2.5"},
        {"OfsetX", "2,5", BadValue},
        {"OfsetX", "inf", BadValue},
        {"OfsetX", "1e39", BadValue},
        {"Projection", "Varnel", Ok, "0"},
        {"Projection", "Rectilinear", Ok, "1"},
        {"Projection", "Equidistance", Ok, "2"},
        {"Projection", "Horizon", Ok, "3"},
        {"Projection", "horizon", Ok, "3"},
        {"Projection", "2", Ok, "2"},
        {"Projection", "Round", BadValue},
        {"Projection", "70000", BadValue},
        {"GearName", "", Ok},
        {"ofsetX", "1", UnknownField},
        {"OffsetX", "1", UnknownField},
        {"", "1", UnknownField},
        {"RotateX ", "1", UnknownField},
    };
    for (const auto& c : cases) {
        ImageRecord before;
        before.Landscape = QLatin1StringView(c.stored) == QLatin1StringView("False");
        before.Projection = 9;
        ImageRecord image = before;
        const QString field = QString::fromLatin1(c.field);
        EXPECT_EQ(SetField(image, field, QString::fromLatin1(c.value)), c.result)
            << c.field << '=' << c.value;
        if (c.result == Ok) {
            EXPECT_EQ(FieldText(image, field), QLatin1StringView(c.stored)) << c.value;
        } else {
            EXPECT_EQ(image, before) << c.field << '=' << c.value;
        }
    }
    ImageRecord image;  // a flag is 16 bits wide, and all of them are set
    SetField(image, QStringLiteral("Landscape"), QStringLiteral("1"));
    EXPECT_EQ(image.Landscape.Value(), -1);
}

TEST(SetField, TakesFacesAsText) {
    const struct {
        const char* value;
        const char* stored;  // null for one that is refused
    } cases[] = {
        {"0.85,0.4,0.15,0.3", "0.85,0.4,0.15,0.3,0"},
        {"0.85,0.4,0.15,0.3,-10;0.1,0.2,1e-3,4,0", "0.85,0.4,0.15,0.3,-10;0.1,0.2,0.001,4,0"},
        {"", ""},
        {"0.85,0.4,0.15", nullptr},
        {"0.85,0.4,0.15,0.3,0,0", nullptr},
        {"0.85,0.4,0,0.3", nullptr},
        {"0.85,0.4,0.15,nan", nullptr},
        {"5,0.4,0.15,0.3", nullptr},
        {"0.85,0.4,0.15,0.3;", nullptr},
    };
    for (const auto& c : cases) {
        ImageRecord image;
        const FieldResult result =
            SetField(image, QStringLiteral("Faces"), QString::fromLatin1(c.value));
        EXPECT_EQ(result, c.stored == nullptr ? FieldResult::BadValue : FieldResult::Ok) << c.value;
        EXPECT_EQ(FieldText(image, QStringLiteral("Faces")), QLatin1StringView(c.stored))
            << c.value;
    }
}

}  // namespace
}  // namespace varnel
