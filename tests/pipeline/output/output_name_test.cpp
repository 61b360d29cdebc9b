// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/output_name.h"

#include <gtest/gtest.h>

#include "remap/encode/output_format.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(OutputType, SettingsTextsEndingsAndAbilities) {
    struct {
        OutputType type;
        const char *text, *extension, *filter;
        bool metadata, profile, quality;
    } const rows[] = {
        {OutputType::Tiff, "TIFF", ".TIF", "Tiff (*.TIF)", true, true, false},
        {OutputType::Jpeg, "JPEG", ".JPG", "Jpeg (*.JPG)", true, true, true},
        {OutputType::Bmp, "BMP", ".BMP", "BMP (*.BMP)", false, false, false},
        {OutputType::Png, "PNG", ".PNG", "PNG (*.PNG)", true, true, false},
        {*OutputTypeByName(u"exr"), "EXR", ".EXR", "OpenEXR (*.EXR)", false, false, false},
        {*OutputTypeByName(u"hdr"), "HDR", ".HDR", "Radiance (*.HDR)", false, false, false},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ToText(row.type), Text(row.text));
        EXPECT_EQ(OutputTypeFromText(Text(row.text)), row.type);
        EXPECT_EQ(ExtensionOf(row.type), Text(row.extension));
        EXPECT_EQ(FilterOf(row.type), Text(row.filter));
        EXPECT_EQ(FormatOf(row.type).holds.metadata, row.metadata);
        EXPECT_EQ(FormatOf(row.type).holds.profile, row.profile);
        EXPECT_EQ(FormatOf(row.type).takesQuality, row.quality);
    }
    EXPECT_EQ(OutputTypeFromText(u"JPG"), OutputType::Tiff);
    EXPECT_EQ(OutputTypeByEnding(u"a.b.jpeg"), OutputType::Jpeg);
    EXPECT_EQ(OutputTypeByEnding(u"a.TIFF"), OutputType::Tiff);
    EXPECT_EQ(OutputTypeByEnding(u"a.gif"), std::nullopt);
}

TEST(WithExtension, IsAppendedUnlessAlreadyThere) {
    struct {
        const char* name;
        OutputType type;
        const char* expected;
    } const rows[] = {{"IMG_0001.Rectilinear", OutputType::Tiff, "IMG_0001.Rectilinear.TIF"},
                      {"out.tif", OutputType::Tiff, "out.tif"},
                      {"out.jpg", OutputType::Tiff, "out.jpg.TIF"},
                      {"out.tiff", OutputType::Tiff, "out.tiff.TIF"},
                      {"a", OutputType::Png, "a.PNG"}};
    for (const auto& row : rows) {
        EXPECT_EQ(WithExtension(Text(row.name), row.type), Text(row.expected));
    }
}

TEST(OutputNames, TheDotOfTheOldExtensionStaysAndNoNameLeadsOutOfItsFolder) {
    const struct {
        const char *name, *cut, *kept;
    } rows[] = {
        {"IMG_0001.jpg", "IMG_0001.Horizon", "IMG_0001.jpg.Horizon"},
        {"IMG.tiff", "IMG.tHorizon", "IMG.tiff.Horizon"},
        {"01", "01Horizon", "01.Horizon"},
        {"7", "7Horizon", "7.Horizon"},
        {"123", "Horizon", "123.Horizon"},
        {".jpg", ".Horizon", ".jpg.Horizon"},
        {"a. ", "Horizon", "a. .Horizon"},
        {"a\nb\"%1.jpg", "a\nb\"%1.Horizon", "a\nb\"%1.jpg.Horizon"},
    };
    for (const auto& [name, cut, kept] : rows) {
        ImageRecord image;
        image.FileName = Text(name);
        image.Projection = static_cast<std::int16_t>(Projection::Horizon);
        for (const bool keeps : {false, true}) {
            const PhotoEnding ending = keeps ? PhotoEnding::Kept : PhotoEnding::Cut;
            const QString expected = Text(keeps ? kept : cut);
            EXPECT_EQ(ProposedName(image.FileName, Text("Horizon"), ending), expected);
            EXPECT_EQ(ProposedName(Text("/p/") + image.FileName, Text("Horizon"), ending),
                      Text("/p/") + expected);
            EXPECT_EQ(BatchName(image, Text("/o"), {}, OutputType::Png, ending),
                      Text("/o/") + expected + Text(".PNG"));
        }
    }
    EXPECT_EQ(ProposedName(Text("/p/IMG.jpg"), Projection::Rectilinear),
              Text("/p/IMG.Rectilinear"));
}

struct Entry {
    int projection = 1;
    float outputAov = 95.0F, effect = 100.0F;
    float x = 0.0F, y = 0.0F, z = 0.0F;
    const char* suffix = "";
    const char* expected;
};

TEST(BatchName, TagsTellTheSettings) {
    const Entry rows[] = {
        {.expected = "/o/IMG.Rectilinear_hAOV095.TIF"},
        {.outputAov = 130.0F, .y = -5.0F, .expected = "/o/IMG.Rectilinear_hAOV130_LR-5.TIF"},
        {.effect = 7.0F,
         .x = 12.0F,
         .y = 3.0F,
         .z = -40.0F,
         .expected = "/o/IMG.Rectilinear_hAOV095_Eff007_LR3_UD12_Zr-40.TIF"},
        {.outputAov = 94.5F,
         .effect = 0.1F,
         .y = 0.4F,
         .expected = "/o/IMG.Rectilinear_hAOV094_Eff000_LR0.TIF"},
        {.projection = 0, .x = 5.0F, .expected = "/o/IMG.Varnel.TIF"},
        {.projection = 0,
         .effect = 80.0F,
         .suffix = "Morph0001",
         .expected = "/o/IMG.Varnel_Morph0001_Eff080.TIF"},
        {.projection = 2, .effect = 80.0F, .expected = "/o/IMG.Equidistance.TIF"},
        {.projection = 3, .x = 5.0F, .expected = "/o/IMG.Horizon.TIF"},
        {.projection = 14, .expected = "/o/IMG.Horizon.TIF"},
        {.projection = 4, .effect = 80.0F, .expected = "/o/IMG.Stereographic_hAOV095_Eff080.TIF"},
        // As wide as it is, not as was asked for.
        {.projection = 11, .outputAov = 250.0F, .expected = "/o/IMG.Orthographic_hAOV180.TIF"},
        {.projection = 9,
         .outputAov = 180.0F,
         .effect = 80.0F,
         .x = 90.0F,
         .expected = "/o/IMG.FisheyeEquidistant_hAOV180_UD90.TIF"},
    };
    for (const Entry& row : rows) {
        ImageRecord image;
        image.FileName = Text("IMG.jpg");
        image.Projection = static_cast<std::int16_t>(row.projection);
        image.OutputAOV = row.outputAov;
        image.EffectVarnel = row.effect;
        image.EffectRectilinear = row.effect;
        image.RotateX = row.x;
        image.RotateY = row.y;
        image.RotateZ = row.z;
        image.NameSuffix = Text(row.suffix);
        EXPECT_EQ(BatchName(image, Text("/o"), {}, OutputType::Tiff), Text(row.expected));
    }
}

TEST(BatchName, AnAdditionReplacesTheProjectionsName) {
    NameAdditions additions;
    additions.texts[Projection::Varnel] = Text("wide");
    ImageRecord image;
    image.FileName = Text("IMG.jpg");
    image.EffectVarnel = 100.0F;
    EXPECT_EQ(BatchName(image, Text("/o"), additions, OutputType::Jpeg), Text("/o/IMG.wide.JPG"));
    EXPECT_EQ(BatchName(image, Text("/o/"), additions, OutputType::Jpeg), Text("/o/IMG.wide.JPG"));
}

}  // namespace
}  // namespace varnel
