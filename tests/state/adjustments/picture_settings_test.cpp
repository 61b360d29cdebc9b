// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/picture_settings.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <limits>
#include <random>

#include "state/adjustments/adjustment_set.h"
#include "state/adjustments/record_fields.h"
#include "tests/support/lenses.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Every field that is written, each with a value that its text could lose.
ImageRecord AwkwardRecord() {
    ImageRecord record = testing::FisheyeRecord();
    record.GearName = Text("Gear \"ä\" <&'> 100% \\ =;, 写真");
    record.CameraBrand = Text(" leading and trailing ");
    record.CameraModel = Text("😀");
    record.LensModel = Text("Zuiko ED 8mm f/3.5");
    record.SensorWidth = std::nextafter(36.0F, 37.0F);
    record.SensorHeight = std::numeric_limits<float>::denorm_min();
    record.CameraData1 = -0.1F;
    record.CameraData2 = 1.0F / 3.0F;
    record.ImageCircleRadius = 11.399999F;
    record.LensShift = -0.0F;
    record.LensData3 = 16777217.0F / 1000.0F;
    record.LensMapFactor = 0.49999997F;
    record.Projection = 3;
    record.SettingsApplied = true;
    record.OfsetX = -2.7F;
    record.OfsetY = std::numeric_limits<float>::min();
    record.EffectVarnel = 0.01F;
    record.RotateX = -39.999996F;
    record.RotateY = 1e-7F;
    record.RotateZ = 350.0F;
    record.TranslateX = -150.0F;
    record.TranslateY = 0.3F;
    record.Folder = Text("/photos/of today & \"tomorrow\"");
    record.FileName = Text("100% <fish>.tar.jpg");
    record.NameSuffix = Text("Morph0007");
    record.Orientation = 6;
    record.OutputWidth = 32767;
    record.OutputHeight = 1;
    record.CropLeft = 1.0F / 3.0F;
    record.CropTop = 0.1F;
    record.CropWidth = 0.6F;
    record.CropHeight = 1e-3F;
    record.Outside = {OutsideFill::Kind::Colour, 1, 0, 255};
    record.PaniniD = 0.3F;
    record.PaniniSqueeze = 12.3F;
    record.UnrollStart = -90.1F;
    record.UnrollDirection = -1;
    record.UnrollFrom = 0.1F;
    record.UnrollTo = 179.9F;
    record.Pose = CameraPose::Up;
    record.Tunnel = true;
    record.Marks = true;
    record.Sampling = SamplingKind::Fine;
    record.Lens = testing::OffCentreLensOf(record, {6000, 4000});
    record.Faces = {{0.1 + 0.2, 0.4, 1.0 / 3.0, 0.2, -12.5}, {1.2, -0.1, 0.05, 0.1, 0.0}};
    record.FurtherSettings = {{Text("Softness"), Text("12,5 %")}, {Text("Empty"), Text("")}};
    return record;
}

void ExpectBack(const ImageRecord& record) {
    ImageRecord back;
    EXPECT_EQ(TakeSettings(SettingsFrom(record), back).join(u'|').toStdString(), "");
    back.Landscape = record.Landscape;  // the photo's own
    EXPECT_TRUE(back == record);
    EXPECT_TRUE(SettingsFrom(back) == SettingsFrom(record));
}

TEST(PictureSettings, ARecordComesBackAsItWasInEveryLocale) {
    for (const auto& locale : {QLocale::c(), QLocale(QLocale::German), QLocale(Text("ar_EG"))}) {
        QLocale::setDefault(locale);
        ExpectBack(AwkwardRecord());
    }
    QLocale::setDefault(QLocale::c());
    ImageRecord inRoot = AwkwardRecord();
    inRoot.Folder.clear();
    ExpectBack(inRoot);
    std::mt19937 random(8);
    std::uniform_real_distribution<float> angle(-180.0F, 180.0F);
    for (int n = 0; n < 2000; ++n) {
        ImageRecord record = AwkwardRecord();
        record.RotateX = angle(random);
        record.OfsetX = angle(random) * 1e-3F;
        record.InputAOV = 180.5F + angle(random) * 0.99F;
        ExpectBack(record);
    }
}

// What is as in a new record leaves pictures as they always were.
TEST(PictureSettings, StateAFrameOnlyWhereThereIsOne) {
    const PictureSettings settings = SettingsFrom(testing::FisheyeRecord());
    for (const char* name : {"OutputWidth", "OutputHeight", "CropLeft", "CropTop", "CropWidth",
                             "CropHeight", "Outside", "Sampling"}) {
        EXPECT_FALSE(settings.contains(Text(name))) << name;
    }
}

// A field that is added to the record must be written, too, or be named here.
TEST(PictureSettings, HoldEveryFieldButThePhotosOwn) {
    const PictureSettings settings = SettingsFrom(AwkwardRecord());
    QStringList missing;
    for (const QString& name : FieldNames()) {
        if (!settings.contains(name)) {
            missing.append(name);
        }
    }
    EXPECT_EQ(missing.join(u' '), Text("Width Height Landscape SettingsApplied Folder FileName"));
    EXPECT_EQ(settings[Text("Version")], Text("1"));
    EXPECT_EQ(settings[Text("Source")], Text("100% <fish>.tar.jpg"));
    EXPECT_EQ(settings[Text("Projection")], Text("Horizon"));
    EXPECT_EQ(settings[Text("OfsetX")], Text("-2.70000005"));
}

TEST(PictureSettings, NumbersOfSingleProjectionsAreWrittenWhereTheyAreChanged) {
    ImageRecord record = testing::FisheyePhoto(Text("/p"), Text("a.jpg"));
    record.Landscape = false;
    record.SettingsApplied = true;
    record.Projection = static_cast<std::int16_t>(Projection::FisheyeEquidistant);
    EXPECT_FALSE(SettingsFrom(record).contains(Text("UnrollTo")));
    EXPECT_FALSE(SettingsFrom(record).contains(Text("Pose")));
    EXPECT_EQ(SettingsFrom(record)[Text("Projection")], Text("fisheye-equidistant"));
    ExpectBack(record);
    // Copied, they undo what is there.
    ImageRecord changed = AwkwardRecord();
    EXPECT_TRUE(GiveAdjustments(AdjustmentsOf(record), changed));
    EXPECT_EQ(changed.UnrollTo, 90.0F);
    EXPECT_EQ(changed.Pose, CameraPose::Level);
    EXPECT_EQ(changed.Projection, 9);
}

TEST(PictureSettings, WhatCannotBeWrittenIsMissing) {
    ImageRecord record = AwkwardRecord();
    record.FileName = Text("two\nlines.jpg");
    record.CameraModel = QChar(0xD83D);  // half a character
    record.RotateX = std::numeric_limits<float>::quiet_NaN();
    QStringList lost = SettingsFrom(AwkwardRecord()).keys();
    for (const QString& name : SettingsFrom(record).keys()) {
        lost.removeOne(name);
    }
    EXPECT_EQ(lost.join(u' '), Text("CameraModel RotateX Source"));
}

TEST(PictureSettings, UnusableOnesLeaveTheRecordAndAreTold) {
    const QString tooLong(1001, u'x');
    const std::pair<const char*, QStringList> unusable[] = {
        {"RotateX", {Text("nan"), Text("-inf"), Text("1e39"), Text("3600.1"), Text("1,5"), {}}},
        {"InputAOV", {Text("0")}},
        {"OutputAOV", {Text("3601")}},
        {"EffectVarnel", {Text("0")}},
        {"EffectRectilinear", {Text("-5")}},
        {"TranslateY", {Text("-1001")}},
        {"OfsetX", {Text("1001")}},
        {"Ratio", {Text("-1")}},
        {"LensMapScale", {Text("1e30")}},
        {"SensorWidth", {Text("0x10")}},
        {"Projection", {Text("Conic"), Text("1")}},
        {"PaniniD", {Text("-0.1"), Text("1.1")}},
        {"UnrollDirection", {Text("0"), Text("0.5"), Text("2")}},
        {"UnrollTo", {Text("181")}},
        {"Pose", {Text("sideways"), {}}},
        {"Tunnel", {Text("2")}},
        {"Orientation", {Text("0"), Text("9"), Text("6.0")}},
        {"Source", {Text("../../etc/passwd"), Text(".."), {}}},
        {"NameSuffix", {Text("/../x")}},
        {"GearName", {tooLong, Text("a\x01z"), QString(QChar(0xDC00))}},
        {"SourceFolder", {Text("/a\nb")}},
        {"2ndLater", {Text("x")}},
        {"La ter", {Text("x")}},
        {"", {Text("x")}},
        {"Later", {tooLong}}};
    for (const auto& [name, values] : unusable) {
        for (const QString& value : values) {
            ImageRecord record = AwkwardRecord();
            const QStringList notes = TakeSettings({{Text(name), value}}, record);
            ASSERT_EQ(notes.size(), 1) << name << '=' << value.toStdString();
            EXPECT_TRUE(notes.front().contains(Text(name))) << name;
            EXPECT_LT(notes.front().size(), 150);
            EXPECT_TRUE(record == AwkwardRecord()) << name << '=' << value.toStdString();
        }
    }
    PictureSettings many;
    for (int n = 0; n < 5000; ++n) {
        many.insert(Text("Later%1").arg(n), Text("x"));
    }
    ImageRecord record;
    TakeSettings(many, record);
    EXPECT_EQ(record.FurtherSettings.size(), 100);
}

TEST(PictureSettings, TellTheFolderOnlyAsItLiesBesideTheFile) {
    const struct {
        const char *folder, *file, *written, *back;
    } cases[] = {
        {"/home/me/in", "/home/me/out/r.jpg", "../in", "/home/me/in"},
        {"/home/me/in", "/home/me/in/r.jpg", ".", "/home/me/in"},
        {"/home/me/in/a & b", "/home/me/in/r.jpg", "a & b", "/home/me/in/a & b"},
        {"", "/out/r.jpg", "..", ""},
        {"/home/me/in", "", "none", "/elsewhere"},
    };
    for (const auto& c : cases) {
        ImageRecord record = AwkwardRecord();
        record.Folder = Text(c.folder);
        const BitmapHandle bitmap = NewBitmap({1, 1});
        NoteSettings(bitmap.get(), record, true, Text(c.file));
        const PictureSettings settings = bitmap->metadata.settings;
        EXPECT_EQ(settings.value(Text("SourceFolder"), Text("none")), Text(c.written)) << c.folder;
        ImageRecord back;
        back.Folder = Text("/elsewhere");
        TakeSettings(settings, back);
        EXPECT_EQ(SourceFolderOf(back, Text(c.file)), Text(c.back)) << c.folder;
    }
}

TEST(PictureSettings, AreShownWithoutWhatCannotBeSeenOrIsTooLong) {
    EXPECT_EQ(Shown(Text("a\u202Eb😀写\n")), Text("a?b😀写?"));
    EXPECT_EQ(Shown(QString(50, u'x'), 3), Text("xxx ..."));
}

TEST(PictureSettings, OfALaterVersionAreReadAsFarAsKnownAndWrittenAgain) {
    ImageRecord record;
    EXPECT_TRUE(TakeSettings({{Text("Version"), Text("27")},
                              {Text("RotateY"), Text("-7.5")},
                              {Text("Projection"), Text("rectilinear")},
                              {Text("Curl"), Text("soft; 3")}},
                             record)
                    .isEmpty());
    EXPECT_EQ(record.RotateY, -7.5F);
    EXPECT_EQ(record.Projection, 1);
    EXPECT_TRUE(record.SettingsApplied);
    EXPECT_EQ(SettingsFrom(record)[Text("Curl")], Text("soft; 3"));
    EXPECT_EQ(SettingsFrom(record)[Text("Version")], Text("1"));
}

}  // namespace
}  // namespace varnel
