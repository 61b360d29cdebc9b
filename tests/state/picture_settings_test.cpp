// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/picture_settings.h"

#include <gtest/gtest.h>

#include <QLocale>
#include <cmath>
#include <limits>
#include <random>

#include "state/record_fields.h"
#include "tests/support/records.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// Every field that is written, each with a value that its text could lose.
ImageRecord AwkwardRecord() {
    ImageRecord record = testing::FisheyeRecord();
    record.GearName = Q("Gear \"ä\" <&'> 100% \\ =;, 写真");
    record.CameraBrand = Q(" leading and trailing ");
    record.CameraModel = Q("😀");
    record.LensModel = Q("Zuiko ED 8mm f/3.5");
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
    record.Folder = Q("/photos/of today & \"tomorrow\"");
    record.FileName = Q("100% <fish>.tar.jpg");
    record.NameSuffix = Q("Morph0007");
    record.Orientation = 6;
    record.FurtherSettings = {{Q("Softness"), Q("12,5 %")}, {Q("Empty"), Q("")}};
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
    for (const auto& locale : {QLocale::c(), QLocale(QLocale::German), QLocale(Q("ar_EG"))}) {
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

// A field that is added to the record must be written, too, or be named here.
TEST(PictureSettings, HoldEveryFieldButThePhotosOwn) {
    const PictureSettings settings = SettingsFrom(AwkwardRecord());
    QStringList missing;
    for (const QString& name : FieldNames()) {
        if (!settings.contains(name)) {
            missing.append(name);
        }
    }
    EXPECT_EQ(missing.join(u' '), Q("Width Height Landscape SettingsApplied Folder FileName"));
    EXPECT_EQ(settings[Q("Version")], Q("1"));
    EXPECT_EQ(settings[Q("Source")], Q("100% <fish>.tar.jpg"));
    EXPECT_EQ(settings[Q("Projection")], Q("Horizon"));
    EXPECT_EQ(settings[Q("OfsetX")], Q("-2.70000005"));
}

TEST(PictureSettings, WhatCannotBeWrittenIsMissing) {
    ImageRecord record = AwkwardRecord();
    record.FileName = Q("two\nlines.jpg");
    record.CameraModel = QChar(0xD83D);  // half a character
    record.RotateX = std::numeric_limits<float>::quiet_NaN();
    QStringList lost = SettingsFrom(AwkwardRecord()).keys();
    for (const QString& name : SettingsFrom(record).keys()) {
        lost.removeOne(name);
    }
    EXPECT_EQ(lost.join(u' '), Q("CameraModel RotateX Source"));
}

TEST(PictureSettings, UnusableOnesLeaveTheRecordAndAreTold) {
    const struct {
        const char* name;
        QString value;
    } cases[] = {
        {"RotateX", Q("nan")},
        {"RotateX", Q("-inf")},
        {"RotateX", Q("1e39")},
        {"RotateX", Q("3600.1")},
        {"RotateX", Q("1,5")},
        {"RotateX", Q("")},
        {"InputAOV", Q("0")},
        {"OutputAOV", Q("3601")},
        {"EffectVarnel", Q("0")},
        {"EffectRectilinear", Q("-5")},
        {"TranslateY", Q("-1001")},
        {"OfsetX", Q("1001")},
        {"Ratio", Q("-1")},
        {"LensMapScale", Q("1e30")},
        {"SensorWidth", Q("0x10")},
        {"Projection", Q("Stereographic")},
        {"Projection", Q("1")},
        {"Orientation", Q("0")},
        {"Orientation", Q("9")},
        {"Orientation", Q("6.0")},
        {"Source", Q("../../etc/passwd")},
        {"Source", Q("..")},
        {"Source", Q("")},
        {"NameSuffix", Q("/../x")},
        {"GearName", QString(1001, u'x')},
        {"GearName", Q("a\x01z")},
        {"GearName", QString(QChar(0xDC00))},
        {"SourceFolder", Q("/a\nb")},
        {"2ndLater", Q("x")},
        {"La ter", Q("x")},
        {"", Q("x")},
        {"Later", QString(1001, u'x')},
    };
    for (const auto& c : cases) {
        ImageRecord record = AwkwardRecord();
        const QStringList notes = TakeSettings({{Q(c.name), c.value}}, record);
        ASSERT_EQ(notes.size(), 1) << c.name << '=' << c.value.toStdString();
        EXPECT_TRUE(notes.front().contains(Q(c.name))) << c.name;
        EXPECT_LT(notes.front().size(), 150);
        EXPECT_TRUE(record == AwkwardRecord()) << c.name << '=' << c.value.toStdString();
    }
    PictureSettings many;
    for (int n = 0; n < 5000; ++n) {
        many.insert(Q("Later%1").arg(n), Q("x"));
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
        record.Folder = Q(c.folder);
        const BitmapHandle bitmap(FreeImage_Allocate(1, 1, 24));
        NoteSettings(bitmap.get(), record, true, Q(c.file));
        const PictureSettings settings = SettingsOf(bitmap.get());
        EXPECT_EQ(settings.value(Q("SourceFolder"), Q("none")), Q(c.written)) << c.folder;
        ImageRecord back;
        back.Folder = Q("/elsewhere");
        TakeSettings(settings, back);
        EXPECT_EQ(SourceFolderOf(back, Q(c.file)), Q(c.back)) << c.folder;
    }
}

TEST(PictureSettings, AreShownWithoutWhatCannotBeSeenOrIsTooLong) {
    EXPECT_EQ(Shown(Q("a\u202Eb😀写\n")), Q("a?b😀写?"));
    EXPECT_EQ(Shown(QString(50, u'x'), 3), Q("xxx ..."));
}

TEST(PictureSettings, OfALaterVersionAreReadAsFarAsKnownAndWrittenAgain) {
    ImageRecord record;
    EXPECT_TRUE(TakeSettings({{Q("Version"), Q("27")},
                              {Q("RotateY"), Q("-7.5")},
                              {Q("Projection"), Q("rectilinear")},
                              {Q("Curl"), Q("soft; 3")}},
                             record)
                    .isEmpty());
    EXPECT_EQ(record.RotateY, -7.5F);
    EXPECT_EQ(record.Projection, 1);
    EXPECT_TRUE(record.SettingsApplied);
    EXPECT_EQ(SettingsFrom(record)[Q("Curl")], Q("soft; 3"));
    EXPECT_EQ(SettingsFrom(record)[Q("Version")], Q("1"));
}

}  // namespace
}  // namespace varnel
