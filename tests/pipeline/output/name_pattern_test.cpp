// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/output/name_pattern.h"

#include <gtest/gtest.h>

#include "remap/image/photo_date.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

ImageRecord Frame() {
    ImageRecord image;
    image.FileName = Text("a.b.tiff");
    image.Projection = 1;
    image.OutputAOV = 95.0F;
    image.EffectRectilinear = 100.0F;
    image.RotateY = -5.0F;
    image.NameSuffix = Text("Morph0003");
    return image;
}

TEST(NamePattern, TokensStandForWhatTheyName) {
    const NameFacts facts{7, 120, QDate(2014, 5, 3)};
    const std::pair<const char*, const char*> rows[] = {
        {"{name}.{projection}{suffix}{tags}", "a.b.tRectilinear_Morph0003_hAOV095_LR-5"},
        {"{name}", "a.b"},
        {"{name}-{projection}.{ending}", "a.b-Rectilinear.tiff"},
        {"{n}{n}", "007007"},
        {"x {date}}", "x 2014-05-03}"},
        {"{tags}", "_hAOV095_LR-5"},
        {"{name}-{sampling}", "a.b-classic"},
    };
    for (const auto& [pattern, name] : rows) {
        EXPECT_TRUE(PatternError(Text(pattern)).isEmpty()) << pattern;
        EXPECT_EQ(NameByPattern(Frame(), {Text(pattern)}, facts), Text(name)) << pattern;
    }
    EXPECT_EQ(NameByPattern(Frame(), {Text("{name}_{n}"), {}, PhotoEnding::Kept}, {1, 9}),
              Text("a.b.tiff_1"));
    ImageRecord fine = Frame();
    fine.Sampling = SamplingKind::Fine;
    EXPECT_EQ(NameByPattern(fine, {Text("{n} {sampling}{tags}")}, {}), Text("1 fine_hAOV095_LR-5"));
    NameRules wide{Text("{projection}")};
    wide.additions.texts[Projection::Rectilinear] = Text("wide");
    EXPECT_EQ(NameByPattern(Frame(), wide, {}), Text("wide"));
}

TEST(NamePattern, ANameThatWouldBeNothingIsTheUsualOne) {
    ImageRecord image;
    image.FileName = Text("IMG.jpg");
    image.EffectVarnel = 100.0F;
    EXPECT_EQ(NameByPattern(image, {Text("{suffix}")}, {}), Text("IMG.Varnel"));
    image.FileName = Text(".jpg");
    EXPECT_EQ(NameByPattern(image, {Text("{name}_")}, {}), Text(".jpg_"));
}

TEST(NamePattern, FoldersAndUnknownTokensAreRefused) {
    for (const char* pattern : {"", "  ", "a/{n}", "a\\{n}", "{nom}", "{name", "{ n}", "{name}{"}) {
        EXPECT_FALSE(PatternError(Text(pattern)).isEmpty()) << pattern;
    }
    const QString error = PatternError(Text("{name}_{numer}"));
    EXPECT_TRUE(error.contains(Text("{numer}"))) << error.toStdString();
    EXPECT_TRUE(error.contains(Text("{date}"))) << error.toStdString();
}

// A directory of one entry that leads to one with the day, as cameras write it.
TEST(PhotoDate, IsTheDayOfTheExif) {
    const auto block = [](const char* day) {
        QByteArray bytes = QByteArray::fromHex(
            "49492a00080000000100698704000100000"
            "01a00000000000000"
            "0100039002001400000"
            "02c00000000000000");
        bytes.append(day, 20);
        return ExifBlock{bytes};
    };
    EXPECT_EQ(ExifDate(block("2014:05:03 17:12:46")), QDate(2014, 5, 3));
    EXPECT_FALSE(ExifDate(block("0000:00:00 00:00:00")).isValid());
    EXPECT_FALSE(ExifDate(block("   :  :     :  :   ")).isValid());
    EXPECT_FALSE(ExifDate({}).isValid());
}

}  // namespace
}  // namespace varnel
