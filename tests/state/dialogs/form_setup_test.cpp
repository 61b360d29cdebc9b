// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/dialogs/form_setup.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <array>

#include "remap/encode/output_type.h"
#include "state/settings/default_choices.h"
#include "tests/support/dialogs.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Notes what is written, in order, as "section/key=value".
class WritingStore : public SettingsStore {
  public:
    QString Get(const QString&, const QString&, const QString& fallback) const override {
        return fallback;
    }
    void Save(const QString& section, const QString& key, const QString& value) override {
        written.append(section + u'/' + key + u'=' + value);
    }
    QStringList written;
};

class FormSetupTest : public testing::DialogTest<FormSetup> {
  protected:
    FormSetupTest() {
        gear.Resize(3);
        for (int n = 0; n <= 3; ++n) {
            gear(n).GearName = Text("Gear %1").arg(n);
        }
        gear.DefaultGearName = Text("Gear 2");
    }
    FormSetup& Open() {
        form = std::make_unique<FormSetup>(gear, settings, store);
        form->show();
        return *form;
    }
    void Choose(const char* combo, int row) const { The<QComboBox>(combo).setCurrentIndex(row); }

    GearTable gear;
    GeneralSettings settings;
    WritingStore store;
};

TEST_F(FormSetupTest, ShowsTheFirstRunWithTiffInPlaceOfJpg) {
    Open();
    EXPECT_EQ(form->objectName(), Text("FormSetup"));
    EXPECT_EQ(The<QComboBox>("GearCombo").count(), 3);
    EXPECT_EQ(The<QComboBox>("GearCombo").itemText(0), Text("Gear 1"));
    EXPECT_EQ(The<QComboBox>("GearCombo").currentText(), Text("Gear 2"));
    EXPECT_EQ(Label("LabelPreviewWidth"), Text("400 pixels"));
    EXPECT_EQ(Label("LabelPreviewHeight"), Text("300 pixels"));
    EXPECT_EQ(
        testing::Items(The<QComboBox>("ComboFileType")),
        Text("TIFF JPEG BMP PNG EXR HDR") + (OutputTypeByName(u"jxl") ? Text(" JXL") : Text("")));
    EXPECT_EQ(The<QComboBox>("ComboFileType").currentText(), Text("TIFF"));
    const struct {
        const char* name;
        int minimum, maximum, value;
    } sliders[] = {{"SliderPreviewWidth", 100, 1000, 400},
                   {"SliderPreviewHeight", 100, 1000, 300},
                   {"SliderJPEGcompression", 1, 100, 100}};
    for (const auto& row : sliders) {
        const auto& slider = The<QSlider>(row.name);
        const auto& spinBox = The<QSpinBox>(QByteArray("Spin").append(row.name).constData());
        EXPECT_EQ((std::array{slider.minimum(), slider.maximum(), slider.value()}),
                  (std::array{row.minimum, row.maximum, row.value}));
        EXPECT_EQ((std::array{spinBox.minimum(), spinBox.maximum(), spinBox.value()}),
                  (std::array{row.minimum, row.maximum, row.value}));
    }
    EXPECT_EQ(settings.FileType, Text("JPG")) << "opening must not change the setting";
    Click("CommandOK");
    EXPECT_EQ(settings.FileType, Text("TIFF"));
}

TEST_F(FormSetupTest, SelectsTheFileTypeByItsExactText) {
    const struct {
        const char* text;
        int row;
    } cases[] = {{"TIFF", 0}, {"JPEG", 1}, {"BMP", 2}, {"PNG", 3}, {"JPG", 0}, {"png", 0}, {"", 0}};
    for (const auto& c : cases) {
        settings.FileType = Text(c.text);
        Open();
        EXPECT_EQ(The<QComboBox>("ComboFileType").currentIndex(), c.row) << c.text;
    }
}

TEST_F(FormSetupTest, ClampsWhatLiesOutsideTheSliders) {
    settings = {4000, 20, Text("BMP"), 0};
    Open();
    EXPECT_EQ(The<QSlider>("SliderPreviewWidth").value(), 1000);
    EXPECT_EQ(Label("LabelPreviewWidth"), Text("1000 pixels"));
    EXPECT_EQ(Label("LabelPreviewHeight"), Text("100 pixels"));
    Click("CommandOK");
    EXPECT_EQ(settings, (GeneralSettings{1000, 100, Text("BMP"), 1}));
}

TEST_F(FormSetupTest, AnUnknownDefaultGearGivesWayToTheFirst) {
    gear.DefaultGearName = Text("Gear 0");
    Open();
    EXPECT_EQ(The<QComboBox>("GearCombo").currentText(), Text("Gear 1"));
}

TEST_F(FormSetupTest, LabelAndSpinBoxFollowTheSliderAndTheSpinBoxMovesIt) {
    Open();
    QTest::keyClick(&The<QSlider>("SliderPreviewWidth"), Qt::Key_PageUp);
    EXPECT_EQ(Label("LabelPreviewWidth"), Text("450 pixels"));
    EXPECT_EQ(The<QSpinBox>("SpinSliderPreviewWidth").value(), 450);
    auto& spinBox = The<QSpinBox>("SpinSliderPreviewHeight");
    spinBox.selectAll();
    QTest::keyClicks(&spinBox, Text("517"));
    QTest::keyClick(&spinBox, Qt::Key_Tab);
    EXPECT_EQ(The<QSlider>("SliderPreviewHeight").value(), 517);
    EXPECT_EQ(Label("LabelPreviewHeight"), Text("517 pixels"));
}

TEST_F(FormSetupTest, OkAppliesForThisRunOnly) {
    Open();
    Choose("GearCombo", 2);
    Choose("ComboFileType", 3);
    The<QSlider>("SliderPreviewWidth").setValue(640);
    The<QSlider>("SliderPreviewHeight").setValue(480);
    The<QSlider>("SliderJPEGcompression").setValue(85);
    QTest::keyClick(form.get(), Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    EXPECT_EQ(form->result(), QDialog::Accepted);
    EXPECT_EQ(gear.DefaultGearName, Text("Gear 3"));
    EXPECT_EQ(settings, (GeneralSettings{640, 480, Text("PNG"), 85}));
    EXPECT_TRUE(store.written.isEmpty());
}

TEST_F(FormSetupTest, CancelAndEscapeLeaveEverythingAsItWas) {
    for (const bool byEscape : {false, true}) {
        Open();
        Choose("GearCombo", 0);
        The<QSlider>("SliderPreviewWidth").setValue(640);
        byEscape ? QTest::keyClick(form.get(), Qt::Key_Escape) : Click("CommandCancel");
        EXPECT_FALSE(form->isVisible());
        EXPECT_EQ(form->result(), QDialog::Rejected);
        EXPECT_EQ(gear.DefaultGearName, Text("Gear 2"));
        EXPECT_EQ(settings, GeneralSettings());
    }
    EXPECT_TRUE(store.written.isEmpty());
}

TEST_F(FormSetupTest, SaveAsDefaultAppliesWritesInOrderAndStaysOpen) {
    Open();
    Choose("GearCombo", 0);
    Choose("ComboFileType", 1);
    The<QSlider>("SliderPreviewWidth").setValue(1000);
    Click("CommandSaveDefault");
    EXPECT_TRUE(form->isVisible());
    EXPECT_EQ(settings, (GeneralSettings{1000, 300, Text("JPEG"), 100}));
    EXPECT_EQ(store.written.join(u'\n'),
              Text("Gear/DefaultGearName=Gear 1\nsetting/PreviewWidth=1000\n"
                   "setting/PreviewHeight=300\nsetting/FileType=JPEG\n"
                   "setting/JPEGcompression=100\nsetting/JPEGchroma444=0\nsetting/FineSampling=0\n"
                   "setting/AutoOrient=1\nsetting/OfferGear=1\nsetting/TakeGear=1\n"
                   "setting/WriteMetadata=1\nsetting/WriteSettings=1\nsetting/KeepDepth=1\n"
                   "setting/LessMemory=0\n"
                   "setting/TiffCompression=auto\nsetting/Language=en"));
    EXPECT_EQ(Label("LabelSaved"), Text("Saved"));
    Choose("ComboFileType", 0);
    EXPECT_TRUE(Label("LabelSaved").isEmpty()) << "no longer what was saved";
    Click("CommandCancel");
    EXPECT_EQ(settings.FileType, Text("JPEG"));
}

TEST_F(FormSetupTest, EachCheckBoxIsAppliedAndSavedUnderItsKey) {
    const struct {
        const char *name, *text, *key;
        bool GeneralSettings::*flag;
        bool atFirst;
    } rows[] = {
        {"Chroma444Check", "Full colour resolution (4:4:4)", "JPEGchroma444",
         &GeneralSettings::JPEGchroma444, false},
        {"FineSamplingCheck", "Best quality (fine sampling)", "FineSampling",
         &GeneralSettings::FineSampling, false},
        {"AutoOrientCheck", "Turn photos upright", "AutoOrient", &GeneralSettings::AutoOrient,
         true},
        {"OfferGearCheck", "Offer the gear that a photo tells", "OfferGear",
         &GeneralSettings::OfferGear, true},
        {"TakeGearCheck", "Give added photos their own gear", "TakeGear",
         &GeneralSettings::TakeGear, true},
        {"WriteMetadataCheck", "Keep the photo's metadata", "WriteMetadata",
         &GeneralSettings::WriteMetadata, true},
        {"WriteSettingsCheck", "Write the settings into the picture", "WriteSettings",
         &GeneralSettings::WriteSettings, true},
        {"KeepDepthCheck", "Keep the depth of photos", "KeepDepth", &GeneralSettings::KeepDepth,
         true},
        {"LessMemoryCheck", "Less memory", "LessMemory", &GeneralSettings::LessMemory, false}};
    for (const auto& row : rows) {
        settings = {};
        Open();
        const auto& box = The<QCheckBox>(row.name);
        EXPECT_EQ(box.text(), Text(row.text));
        EXPECT_EQ(box.isChecked(), row.atFirst) << row.name;
        Click("CommandSaveDefault");
        store.written.clear();
        QTest::keyClick(&The<QCheckBox>(row.name), Qt::Key_Space);
        EXPECT_TRUE(Label("LabelSaved").isEmpty());
        EXPECT_EQ(settings.*row.flag, row.atFirst) << "not before a button";
        Click("CommandSaveDefault");
        GeneralSettings expected{400, 300, Text("TIFF"), 100};
        expected.*row.flag = !row.atFirst;
        EXPECT_EQ(settings, expected) << row.name;
        EXPECT_TRUE(store.written.contains(
            Text("setting/%1=%2").arg(Text(row.key)).arg(row.atFirst ? 0 : 1)))
            << row.name;
        Open();
        EXPECT_EQ(The<QCheckBox>(row.name).isChecked(), !row.atFirst) << row.name;
    }
}

TEST_F(FormSetupTest, OffersTheCompressionsOfTiff) {
    const struct {
        const char* stored;
        const char* shown;
    } cases[] = {{"auto", "Automatic"}, {"lzw", "LZW"},   {"deflate", "Deflate"},
                 {"zstd", "Zstandard"}, {"none", "None"}, {"packed", "Automatic"}};
    for (const auto& c : cases) {
        settings.TiffCompression = Text(c.stored);
        Open();
        EXPECT_EQ(The<QComboBox>("ComboTiffCompression").currentText(), Text(c.shown)) << c.stored;
    }
    Choose("ComboTiffCompression", 3);
    Click("CommandSaveDefault");
    EXPECT_EQ(settings.TiffCompression, Text("zstd"));
    EXPECT_TRUE(store.written.contains(Text("setting/TiffCompression=zstd")));
}

TEST_F(FormSetupTest, OffersLanguagesByTheirOwnNamesAndStartsWithEnglish) {
    const struct {
        const char* stored;
        const char* shown;
    } cases[] = {{"en", "English"},  {"de", "Deutsch"}, {"es", "Español"},
                 {"fr", "Français"}, {"DE", "English"}, {"", "English"}};
    for (const auto& c : cases) {
        settings.Language = Text(c.stored);
        Open();
        EXPECT_EQ(The<QComboBox>("ComboLanguage").currentText(), Text(c.shown)) << c.stored;
    }
    Choose("ComboLanguage", 1);
    Click("CommandSaveDefault");
    EXPECT_EQ(settings.Language, Text("de"));
    EXPECT_EQ(store.written.constLast(), Text("setting/Language=de"));
}

TEST_F(FormSetupTest, TheWheelMovesOnlyTheSliderWithTheFocus) {
    Open();
    ExpectWheelOnlyWithFocus(The<QSlider>("SliderPreviewWidth"), The<QComboBox>("GearCombo"));
}

}  // namespace
}  // namespace varnel
