// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <sstream>

#include "cli/convert.h"
#include "state/adjustments/picture_settings.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Contents;
using testing::Text;

// Runs varnel-convert without any gear in its settings.
class Like : public ::testing::Test {
  protected:
    int Run(const QString& line) {
        out_.str({});
        err_.str({});
        QStringList arguments{Text("varnel-convert"), Text("--quiet"), Text("--force")};
        for (QString word : line.split(u' ')) {
            arguments.append(word.replace(u'~', u' ').replace(Text("@"), files_.Path({}) + u'/'));
        }
        return RunConvert(arguments, store_, {out_, err_, false});
    }
    PictureSettings SettingsIn(const char* name) {
        return PhotoLoader(testing::Reader()).Facts(files_.Path(Text(name))).metadata.settings;
    }
    QByteArray Bytes(const char* name) const { return Contents(files_.Path(Text(name))); }
    bool ErrorHas(const char* text) const { return err_.str().find(text) != std::string::npos; }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
    const QString gear_ = Text("--camera Canon/EOS~5D --lens Sigma/EX~8~mm~f:3.5 ");
};

TEST_F(Like, APictureBringsItsSettingsToItsOwnPhotoAndToOthers) {
    files_.Picture(Text("a.png"), OutputType::Png);
    files_.Picture(Text("b.png"), OutputType::Png);
    ASSERT_EQ(
        Run(gear_ + Text("--projection rectilinear --output-aov 95.7 --rotate-y -7.3 --effect "
                         "33.3 --set OfsetX=1.1 --output @r.JPG @a.png")),
        exitAllWritten)
        << err_.str();
    EXPECT_EQ(SettingsIn("r.JPG")[Text("RotateY")], Text("-7.30000019"));
    // The same pixels again, from the photo that the picture names, without any gear given.
    EXPECT_EQ(Run(Text("--like @r.JPG --type png --output @again.png")), exitAllWritten)
        << err_.str();
    ASSERT_EQ(
        Run(gear_ + Text("--projection rectilinear --output-aov 95.7 --rotate-y -7.3 --effect "
                         "33.3 --set OfsetX=1.1 --output @plain.png @a.png")),
        exitAllWritten);
    EXPECT_EQ(Bytes("again.png"), Bytes("plain.png"));
    EXPECT_EQ(Run(Text("--like @r.JPG --output @b1.tif --rotate-y 3 @b.png")), exitAllWritten);
    PictureSettings expected = SettingsIn("r.JPG");
    expected[Text("Source")] = Text("b.png");
    expected[Text("RotateY")] = Text("3");
    EXPECT_TRUE(SettingsIn("b1.tif") == expected);
    // Projection and gear, too, can be others.
    EXPECT_EQ(Run(Text("--like @r.JPG --projection horizon --camera Canon/EOS~5D --lens "
                       "Canon/EF~15~mm~f:2.8 --output @b2.tif @b.png")),
              exitAllWritten);
    const PictureSettings other = SettingsIn("b2.tif");
    EXPECT_EQ(other[Text("Projection")], Text("Horizon"));
    EXPECT_EQ(other[Text("LensBrand")], Text("Canon"));
    EXPECT_NE(other[Text("OfsetX")], expected[Text("OfsetX")]);
    EXPECT_EQ(other[Text("EffectRectilinear")], expected[Text("EffectRectilinear")]);
    EXPECT_EQ(other[Text("OutputAOV")], expected[Text("OutputAOV")]);
}

TEST_F(Like, TheCentreIsTurnedAndTheFolderToldOnlyBesideTheMetadata) {
    files_.Picture(Text("a.png"), OutputType::Png);
    Run(gear_ + Text("--rotate-z 270 --translate-x 150 --set OfsetX=3 --set OfsetY=-5 "
                     "--set Orientation=6 --output @r.JPG @a.png"));
    EXPECT_EQ(Run(Text("--like @r.JPG --no-metadata --output @s.JPG @a.png")), exitAllWritten);
    EXPECT_EQ(err_.str(), "");
    EXPECT_EQ(SettingsIn("r.JPG")[Text("SourceFolder")], Text("."));
    const PictureSettings settings = SettingsIn("s.JPG");
    EXPECT_FALSE(settings.contains(Text("SourceFolder")));
    EXPECT_EQ(settings[Text("RotateZ")] + u' ' + settings[Text("TranslateX")], Text("270 150"));
    EXPECT_EQ(settings[Text("OfsetX")] + u' ' + settings[Text("OfsetY")], Text("-5 -3"));
    EXPECT_EQ(Run(Text("--like @s.JPG --output @t.JPG")), exitAllWritten) << err_.str();
}

TEST_F(Like, FramesOfASequenceHoldTheirOwnSettings) {
    files_.Picture(Text("a.png"), OutputType::Png);
    Run(gear_ + Text("--projection rectilinear --output @r.JPG @a.png"));
    EXPECT_EQ(
        Run(Text("--like @r.JPG --type png --morph 2 --from EffectRectilinear=20 --output-dir @ "
                 "@a.png")),
        exitAllWritten)
        << err_.str();
    const PictureSettings frame = SettingsIn("a.Rectilinear_Morph0001_hAOV130_Eff020.PNG");
    EXPECT_EQ(frame[Text("EffectRectilinear")], Text("20"));
    EXPECT_EQ(frame[Text("NameSuffix")], Text("Morph0001"));
    // The name of the frame does not come along, and effects go with the picture's projection.
    EXPECT_EQ(Run(Text("--like @a.Rectilinear_Morph0001_hAOV130_Eff020.PNG --output @n.png")),
              exitAllWritten);
    EXPECT_EQ(SettingsIn("n.png")[Text("NameSuffix")], QString());
    EXPECT_EQ(Run(Text("--like @r.JPG --morph 2 --from EffectVarnel=20 @a.png")), exitUsage);
    EXPECT_TRUE(ErrorHas("EffectVarnel is not an effect of the projection Rectilinear"));
    EXPECT_EQ(Run(Text("--like @r.JPG --projection horizon --type png --morph 2 "
                       "--from EffectVarnel=50 --to EffectVarnel=100 --output-dir @ @a.png")),
              exitAllWritten)
        << err_.str();
    EXPECT_EQ(SettingsIn("a.Horizon_Morph0001.PNG")[Text("EffectVarnel")], Text("50"));
}

TEST_F(Like, APictureThatDoesNotServeIsRefusedWithTheReason) {
    files_.Picture(Text("a.png"), OutputType::Png);
    Run(gear_ + Text("--no-settings --output @bare.JPG @a.png"));
    Run(gear_ + Text("--output @r.JPG @a.png"));
    QFile::rename(files_.Path(Text("a.png")), files_.Path(Text("moved.png")));
    const struct {
        const char* line;
        const char* reason;
    } cases[] = {
        {"--like @bare.JPG @moved.png", "bare.JPG: holds no settings of Varnel"},
        {"--like @none.JPG @moved.png", "none.JPG: there is no such file"},
        {"--like @r.JPG", "r.JPG: the photo that it was made of is not there: "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Run(Text(c.line)), exitUsage) << c.line;
        EXPECT_TRUE(ErrorHas(c.reason)) << err_.str();
    }
}

TEST_F(Like, WhatEveryFileIsWithoutIsSaidOnce) {
    for (const char* const name : {"a.png", "b.png", "c.png"}) {
        files_.Picture(Text(name), OutputType::Png);
    }
    Run(gear_ + Text("--type bmp --output-dir @ @a.png @b.png @c.png"));
    const std::string note = "BMP files hold no settings\n";
    EXPECT_EQ(err_.str(), "varnel-convert: " + files_.Path(Text("a.Varnel.BMP")).toStdString() +
                              ": " + note + "varnel-convert: 2 more: " + note);
}

TEST_F(Like, HostileSettingsNeverReachTheConversion) {
    const QString photo = files_.Picture(Text("a.png"), OutputType::Png);
    Run(gear_ + Text("--output @r.JPG @a.png"));
    PictureSettings settings = SettingsIn("r.JPG");
    settings[Text("EffectVarnel")] = Text("0");
    settings[Text("Ratio")] = Text("nan");
    settings[Text("Source")] = Text("../a.png");
    const BitmapHandle bitmap = testing::PositionPicture({6, 4});
    bitmap->metadata.settings = settings;
    SaveBitmap(OutputType::Jpeg, bitmap.get(), files_.Path(Text("evil.jpg")));
    EXPECT_EQ(Run(Text("--like @evil.jpg")), exitUsage);
    EXPECT_TRUE(ErrorHas("evil.jpg: does not say which photo it was made of"));
    EXPECT_NE(Run(Text("--like @evil.jpg --output @e.tif @a.png")), exitUsage);
    EXPECT_TRUE(ErrorHas("evil.jpg: the setting EffectVarnel is out of range: 0"));
    EXPECT_TRUE(ErrorHas("evil.jpg: the setting Ratio cannot be \"nan\""));
}

}  // namespace
}  // namespace varnel
