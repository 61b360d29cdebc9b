// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QDir>
#include <sstream>

#include "cli/convert.h"
#include "state/picture_settings.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"

namespace varnel {
namespace {

using testing::Contents;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// Runs varnel-convert without any gear in its settings.
class Like : public ::testing::Test {
  protected:
    int Run(const QString& line) {
        out_.str({});
        err_.str({});
        QStringList arguments{Q("varnel-convert"), Q("--quiet"), Q("--force")};
        for (QString word : line.split(u' ')) {
            arguments.append(word.replace(u'~', u' ').replace(Q("@"), files_.Path({}) + u'/'));
        }
        return RunConvert(arguments, store_, {out_, err_, false});
    }
    PictureSettings SettingsIn(const char* name) {
        return PhotoLoader(testing::Reader()).Facts(files_.Path(Q(name))).metadata.settings;
    }
    QByteArray Bytes(const char* name) const { return Contents(files_.Path(Q(name))); }
    bool ErrorHas(const char* text) const { return err_.str().find(text) != std::string::npos; }

    testing::PictureFolder files_;
    MemoryStore store_;
    std::ostringstream out_, err_;
    const QString gear_ = Q("--camera Canon/EOS~5D --lens Sigma/EX~8~mm~f:3.5 ");
};

TEST_F(Like, APictureBringsItsSettingsToItsOwnPhotoAndToOthers) {
    files_.Picture(Q("a.png"), FIF_PNG);
    files_.Picture(Q("b.png"), FIF_PNG);
    ASSERT_EQ(Run(gear_ + Q("--projection rectilinear --output-aov 95.7 --rotate-y -7.3 --effect "
                            "33.3 --set OfsetX=1.1 --output @r.JPG @a.png")),
              exitAllWritten)
        << err_.str();
    EXPECT_EQ(SettingsIn("r.JPG")[Q("RotateY")], Q("-7.30000019"));
    // The same pixels again, from the photo that the picture names, without any gear given.
    EXPECT_EQ(Run(Q("--like @r.JPG --type png --output @again.png")), exitAllWritten) << err_.str();
    ASSERT_EQ(Run(gear_ + Q("--projection rectilinear --output-aov 95.7 --rotate-y -7.3 --effect "
                            "33.3 --set OfsetX=1.1 --output @plain.png @a.png")),
              exitAllWritten);
    EXPECT_EQ(Bytes("again.png"), Bytes("plain.png"));
    EXPECT_EQ(Run(Q("--like @r.JPG --output @b1.tif --rotate-y 3 @b.png")), exitAllWritten);
    PictureSettings expected = SettingsIn("r.JPG");
    expected[Q("Source")] = Q("b.png");
    expected[Q("RotateY")] = Q("3");
    EXPECT_TRUE(SettingsIn("b1.tif") == expected);
    // Projection and gear, too, can be others.
    EXPECT_EQ(Run(Q("--like @r.JPG --projection horizon --camera Canon/EOS~5D --lens "
                    "Canon/EF~15~mm~f:2.8 --output @b2.tif @b.png")),
              exitAllWritten);
    const PictureSettings other = SettingsIn("b2.tif");
    EXPECT_EQ(other[Q("Projection")], Q("Horizon"));
    EXPECT_EQ(other[Q("LensBrand")], Q("Canon"));
    EXPECT_NE(other[Q("OfsetX")], expected[Q("OfsetX")]);
    EXPECT_EQ(other[Q("EffectRectilinear")], expected[Q("EffectRectilinear")]);
    EXPECT_EQ(other[Q("OutputAOV")], expected[Q("OutputAOV")]);
}

TEST_F(Like, TheCentreIsTurnedAndTheFolderToldOnlyBesideTheMetadata) {
    files_.Picture(Q("a.png"), FIF_PNG);
    Run(gear_ + Q("--rotate-z 270 --translate-x 150 --set OfsetX=3 --set OfsetY=-5 "
                  "--set Orientation=6 --output @r.JPG @a.png"));
    EXPECT_EQ(Run(Q("--like @r.JPG --no-metadata --output @s.JPG @a.png")), exitAllWritten);
    EXPECT_EQ(err_.str(), "");
    EXPECT_EQ(SettingsIn("r.JPG")[Q("SourceFolder")], Q("."));
    const PictureSettings settings = SettingsIn("s.JPG");
    EXPECT_FALSE(settings.contains(Q("SourceFolder")));
    EXPECT_EQ(settings[Q("RotateZ")] + u' ' + settings[Q("TranslateX")], Q("270 150"));
    EXPECT_EQ(settings[Q("OfsetX")] + u' ' + settings[Q("OfsetY")], Q("-5 -3"));
    EXPECT_EQ(Run(Q("--like @s.JPG --output @t.JPG")), exitAllWritten) << err_.str();
}

TEST_F(Like, FramesOfASequenceHoldTheirOwnSettings) {
    files_.Picture(Q("a.png"), FIF_PNG);
    Run(gear_ + Q("--projection rectilinear --output @r.JPG @a.png"));
    EXPECT_EQ(Run(Q("--like @r.JPG --type png --morph 2 --from EffectRectilinear=20 --output-dir @ "
                    "@a.png")),
              exitAllWritten)
        << err_.str();
    const PictureSettings frame = SettingsIn("a.Rectilinear_Morph0001_hAOV130_Eff020.PNG");
    EXPECT_EQ(frame[Q("EffectRectilinear")], Q("20"));
    EXPECT_EQ(frame[Q("NameSuffix")], Q("Morph0001"));
    // The name of the frame does not come along, and effects go with the picture's projection.
    EXPECT_EQ(Run(Q("--like @a.Rectilinear_Morph0001_hAOV130_Eff020.PNG --output @n.png")),
              exitAllWritten);
    EXPECT_EQ(SettingsIn("n.png")[Q("NameSuffix")], QString());
    EXPECT_EQ(Run(Q("--like @r.JPG --morph 2 --from EffectVarnel=20 @a.png")), exitUsage);
    EXPECT_TRUE(ErrorHas("EffectVarnel is not an effect of the projection Rectilinear"));
}

TEST_F(Like, APictureThatDoesNotServeIsRefusedWithTheReason) {
    files_.Picture(Q("a.png"), FIF_PNG);
    Run(gear_ + Q("--no-settings --output @bare.JPG @a.png"));
    Run(gear_ + Q("--output @r.JPG @a.png"));
    QFile::rename(files_.Path(Q("a.png")), files_.Path(Q("moved.png")));
    const struct {
        const char* line;
        const char* reason;
    } cases[] = {
        {"--like @bare.JPG @moved.png", "bare.JPG: holds no settings of Varnel"},
        {"--like @none.JPG @moved.png", "none.JPG: there is no such file"},
        {"--like @r.JPG", "r.JPG: the photo that it was made of is not there: "},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(Run(Q(c.line)), exitUsage) << c.line;
        EXPECT_TRUE(ErrorHas(c.reason)) << err_.str();
    }
}

TEST_F(Like, WhatEveryFileIsWithoutIsSaidOnce) {
    for (const char* const name : {"a.png", "b.png", "c.png"}) {
        files_.Picture(Q(name), FIF_PNG);
    }
    Run(gear_ + Q("--type bmp --output-dir @ @a.png @b.png @c.png"));
    const std::string note = "BMP files hold no settings\n";
    EXPECT_EQ(err_.str(), "varnel-convert: " + files_.Path(Q("a.Varnel.BMP")).toStdString() + ": " +
                              note + "varnel-convert: 2 more: " + note);
}

TEST_F(Like, HostileSettingsNeverReachTheConversion) {
    const QString photo = files_.Picture(Q("a.png"), FIF_PNG);
    Run(gear_ + Q("--output @r.JPG @a.png"));
    PictureSettings settings = SettingsIn("r.JPG");
    settings[Q("EffectVarnel")] = Q("0");
    settings[Q("Ratio")] = Q("nan");
    settings[Q("Source")] = Q("../a.png");
    const BitmapHandle bitmap = testing::PositionPicture({6, 4});
    SetSettings(bitmap.get(), settings);
    SaveBitmap(FIF_JPEG, bitmap.get(), files_.Path(Q("evil.jpg")), 0);
    EXPECT_EQ(Run(Q("--like @evil.jpg")), exitUsage);
    EXPECT_TRUE(ErrorHas("evil.jpg: does not say which photo it was made of"));
    EXPECT_NE(Run(Q("--like @evil.jpg --output @e.tif @a.png")), exitUsage);
    EXPECT_TRUE(ErrorHas("evil.jpg: the setting EffectVarnel is out of range: 0"));
    EXPECT_TRUE(ErrorHas("evil.jpg: the setting Ratio cannot be \"nan\""));
}

}  // namespace
}  // namespace varnel
