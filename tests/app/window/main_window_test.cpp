// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/main_window.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QMenuBar>

#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::WindowDesk;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(MainWindow, SlidersHaveTheirRangesAndSteps) {
    struct {
        const char* name;
        int minimum, maximum, start, large, small, tick;
    } const rows[] = {
        {"SliderAOVoutput", 60, 180, 70, 10, 10, 10}, {"SliderEffect", 0, 100, 100, 10, 1, 5},
        {"SliderX", -40, 40, 0, 10, 10, 10},          {"SliderY", -40, 40, 0, 10, 10, 10},
        {"SliderZ", -40, 40, 0, 10, 10, 10},          {"SliderXtranslate", -40, 40, 0, 5, 1, 10},
        {"SliderYtranslate", -40, 40, 0, 5, 1, 10},   {"SliderAOVinput", 70, 280, 80, 10, 10, 10},
    };
    WindowDesk desk;
    for (const auto& row : rows) {
        const QSlider* const slider = desk.Slider(row.name);
        ASSERT_NE(slider, nullptr);
        EXPECT_EQ(slider->orientation(), Qt::Horizontal);
        EXPECT_EQ(slider->minimum(), row.minimum) << row.name;
        EXPECT_EQ(slider->maximum(), row.maximum) << row.name;
        EXPECT_EQ(slider->value(), row.start) << row.name;
        EXPECT_EQ(slider->pageStep(), row.large) << row.name;
        EXPECT_EQ(slider->singleStep(), row.small) << row.name;
        EXPECT_EQ(slider->tickInterval(), row.tick) << row.name;
    }
}

TEST(MainWindow, EveryControlHasItsKindAndText) {
    struct {
        const char *name, *kind, *text;
    } const rows[] = {
        {"OptionRemap_0", "QRadioButton", "Varnel"},
        {"OptionRemap_1", "QRadioButton", "Rectilinear"},
        {"OptionRemap_2", "QRadioButton", "Equidistance"},
        {"OptionRemap_3", "QRadioButton", "Horizon"},
        {"CmdApplyAll2", "QPushButton", "Apply to all"},
        {"CmdApplyAll", "QPushButton", "Apply to all"},
        {"CheckAutoPreview", "QCheckBox", "Auto preview"},
        {"CheckAntialiased", "QCheckBox", "Antialiased"},
        {"CmdFreeImage", "QPushButton", "Preview"},
        {"CommandAddToBatchQue", "QPushButton", "Add to batch que"},
        {"CmdBatchProcess", "QPushButton", "Process batch que"},
        {"CommandSaveFreeimage", "QPushButton", "Save image as ..."},
        {"Command1", "QPushButton", "Add image(s)"},
        {"CmdRemoveImages", "QPushButton", "Remove image(s)"},
        {"LabelAOVoutput2", "QLabel", "Output AOV"},
        {"LabelAOVoutput", "QLabel", "hAOV"},
        {"LabelEffect2", "QLabel", "Partial effect"},
        {"LabelEffect", "QLabel", "100 %"},
        {"LabelRotate1", "QLabel", "Rotate camera"},
        {"LabelRotate2", "QLabel", "Up/Down"},
        {"LabelRotate3", "QLabel", "Left/Right"},
        {"LabelRotate4", "QLabel", "Z-axis"},
        {"LabelRotateX", "QLabel", "0° Up/Down"},
        {"LabelRotateY", "QLabel", "0° Left/Right"},
        {"LabelRotateZ", "QLabel", "0° Z"},
        {"LabelTranslate1", "QLabel", "Transpose image"},
        {"LabelTranslate2", "QLabel", "Left/Right"},
        {"LabelTranslate3", "QLabel", "Up/Down"},
        {"LabelTranslateX", "QLabel", "0% Left/Right"},
        {"LabelTranslateY", "QLabel", "0% Up/Down"},
        {"LabelAOVinput", "QLabel", "Input hAOV"},
        {"Label2", "QLabel", "Camera + lens combination"},
        {"FrameRemap", "QGroupBox", "Remap"},
        {"FrameSave", "QGroupBox", "Save"},
        {"Frame1", "QGroupBox", "Refine equipment parameters"},
        {"FrameEquip", "QGroupBox", "Equipment"},
        {"Frame4", "QGroupBox", "Image list"},
        {"GearCombo", "QComboBox", nullptr},
        {"ImageList1", "QListWidget", nullptr},
        {"ImgProgressBar", "QProgressBar", nullptr},
        {"PicSmallFrom", "QWidget", nullptr},
        {"PicSmallTo", "QWidget", nullptr},
        {"OptionRemap", "QButtonGroup", nullptr},
    };
    WindowDesk desk;
    for (const auto& row : rows) {
        const QObject* const control = desk.window.findChild<QObject*>(Q(row.name));
        ASSERT_NE(control, nullptr) << row.name;
        EXPECT_TRUE(control->inherits(row.kind)) << row.name;
        if (row.text != nullptr) {
            const char* const property =
                qobject_cast<const QGroupBox*>(control) != nullptr ? "title" : "text";
            EXPECT_EQ(control->property(property).toString(), Q(row.text)) << row.name;
        }
    }
    EXPECT_FALSE(desk.Entry("CmdFileOpen")->isEnabled());
    EXPECT_FALSE(desk.Find("CmdBatchProcess")->isVisible());
}

TEST(MainWindow, TheMenusHaveTheirEntriesInOrder) {
    const QStringList rows[] = {
        {Q("&File"), Q("CmdFileOpen: &OpenOld"), Q("CmdFileOpenFreeImage: Open image(s)"),
         Q("CmdFileSaveImage: Save image as ..."), Q("Sep2: "), Q("CmdFileExit: &Exit"),
         Q("CmdOpenSample: Open the sa&mple")},
        {Q("&Edit"), Q("CmdEditRemoveImages: Remove image(s)")},
        {Q("&Setup"), Q("CmdSetupEquipment: &Manage equipment"), Q("CmdSetupSetup: &Defaults")},
        {Q("&Tools"), Q("CmdToolsMorph: Morph"), Q("CmdToolsStretch: Stretch")},
        {Q("&About"), Q("CmdAboutAbout: &About")},
    };
    const WindowDesk desk;
    // Others may stand between them.
    QStringList shown;
    for (const QAction* const menu : desk.window.menuBar()->actions()) {
        shown.append(menu->text());
        for (const QAction* const entry : menu->menu()->actions()) {
            shown.append(entry->objectName() + Q(": ") + entry->text());
        }
    }
    QStringList given;
    for (const QStringList& row : rows) {
        given += row;
    }
    shown.removeIf([&given](const QString& text) { return !given.contains(text); });
    EXPECT_EQ(shown, given);
}

TEST(MainWindow, CaptionsFollowTheSliders) {
    struct {
        const char* slider;
        int value;
        const char *label, *text;
    } const rows[] = {
        {"SliderX", -15, "LabelRotateX", "15° Up"},
        {"SliderX", 15, "LabelRotateX", "15° Down"},
        {"SliderX", 0, "LabelRotateX", "0°"},
        {"SliderY", -1, "LabelRotateY", "1° Left"},
        {"SliderY", 40, "LabelRotateY", "40° Right"},
        {"SliderZ", 5, "LabelRotateZ", "5° c.clockwise"},
        {"SliderZ", -5, "LabelRotateZ", "5° clockwise"},
        {"SliderXtranslate", 3, "LabelTranslateX", "3% Right"},
        {"SliderXtranslate", -3, "LabelTranslateX", "3% Left"},
        {"SliderXtranslate", 0, "LabelTranslateX", "0%"},
        {"SliderYtranslate", 7, "LabelTranslateY", "7% Up"},
        {"SliderYtranslate", -7, "LabelTranslateY", "7% Down"},
        {"SliderAOVoutput", 95, "LabelAOVoutput", "95° hAOV"},
        {"SliderAOVinput", 180, "LabelAOVinput", "180° hAOV"},
        {"SliderEffect", 0, "LabelEffect", "0 %"},
    };
    WindowDesk desk;
    for (const auto& row : rows) {
        desk.Slider(row.slider)->setValue(row.value);
        EXPECT_EQ(desk.Label(row.label), Q(row.text)) << row.slider;
    }
}

TEST(MainWindow, TheProjectionDecidesWhatIsShown) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")});
    const char* const rectilinearOnly[] = {
        "SliderAOVoutput", "LabelAOVoutput",   "LabelAOVoutput2", "SliderX",
        "SliderY",         "SliderZ",          "LabelRotate1",    "LabelRotate2",
        "LabelRotateZ",    "SliderXtranslate", "LabelTranslate1", "LabelTranslateY"};
    for (int k = 0; k < 4; ++k) {
        desk.Click(qPrintable(QStringLiteral("OptionRemap_%1").arg(k)));
        for (const char* const name : rectilinearOnly) {
            EXPECT_EQ(desk.Find(name)->isVisible(), k == 1) << name << k;
        }
        EXPECT_EQ(desk.Find("SliderEffect")->isVisible(), k < 2);
        EXPECT_EQ(desk.Find("LabelEffect2")->isVisible(), k < 2);
        EXPECT_TRUE(desk.Find("SliderAOVinput")->isVisible());
        EXPECT_EQ(desk.Record(1).Projection, k);
    }
}

TEST(MainWindow, TheFirstStartAsksForAGear) {
    WindowDesk desk;
    EXPECT_EQ(desk.prompt.explained,
              QStringList{Q("Please define at least one camera + lens combination ...")});
    EXPECT_EQ(desk.Find<QComboBox>("GearCombo")->currentText(),
              Q("Canon EOS 5D + Sigma EX 8 mm f:3.5"));
}

TEST(MainWindow, AddedPhotosShowAndTheFirstGetsItsGear) {
    WindowDesk desk;
    desk.AddPhotos({Q("wide.bmp"), Q("wide2.bmp")});
    EXPECT_EQ(desk.Find<QListWidget>("ImageList1")->currentRow(), 0);
    EXPECT_EQ(desk.Record(1).Width, 60);
    EXPECT_TRUE(desk.Record(1).Landscape);
    EXPECT_EQ(desk.Record(1).OutputAOV, 130.0F);
    EXPECT_EQ(desk.Record(2).Width, 0);  // not clicked yet
    EXPECT_TRUE(desk.window.windowTitle().contains(Q("wide.bmp")));
    // The pictures show position colours, not the empty box.
    EXPECT_GT(desk.Shown("PicSmallFrom").width(), 0);
    desk.ClickLine(1);
    EXPECT_EQ(desk.Record(2).Width, 60);
    EXPECT_TRUE(desk.notices.texts.isEmpty());
}

TEST(MainWindow, AKeyOnASliderStoresIntoEverySelectedPhoto) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp")});
    desk.ClickLine(2, Qt::ControlModifier);
    desk.Click("OptionRemap_1");
    desk.Press("SliderXtranslate", Qt::Key_Right);
    EXPECT_EQ(desk.Record(1).TranslateX, 1.0F);
    EXPECT_EQ(desk.Record(2).TranslateX, 0.0F);
    EXPECT_EQ(desk.Record(3).TranslateX, 1.0F);
    EXPECT_EQ(desk.Record(3).Projection, 1);
    EXPECT_TRUE(desk.Find("SliderXtranslate")->hasFocus());
    desk.Slider("SliderEffect")->setValue(0);
    EXPECT_EQ(desk.Record(1).EffectRectilinear, 0.1F);
    EXPECT_EQ(desk.Record(1).EffectVarnel, 100.0F);
}

TEST(MainWindow, WhileControlsAreLoadedNothingIsStored) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")});
    desk.state.loadingControls = true;
    desk.Slider("SliderAOVinput")->setValue(90);
    EXPECT_NE(desk.Record(1).InputAOV, 90.0F);
    EXPECT_EQ(desk.Label("LabelAOVinput"), Q("90° hAOV"));
}

TEST(MainWindow, ADragPreviewsAndOnlyItsEndIsStored) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")}, {300, 200});
    desk.Click("OptionRemap_1");
    const QImage before = desk.Shown("PicSmallTo");
    QSlider* const slider = desk.Slider("SliderY");
    slider->setSliderDown(true);
    slider->setValue(20);
    QApplication::processEvents();
    EXPECT_EQ(desk.Record(1).RotateY, 0.0F);
    const QImage dragged = desk.Shown("PicSmallTo");
    EXPECT_NE(dragged, before);
    slider->setSliderDown(false);
    EXPECT_EQ(desk.Record(1).RotateY, 20.0F);
    EXPECT_EQ(desk.Shown("PicSmallTo"), dragged);
}

TEST(MainWindow, WithoutAutoPreviewValuesAreStoredAndNothingIsDrawn) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")}, {300, 200});
    desk.Click("OptionRemap_1");
    desk.Click("CheckAutoPreview");
    const QImage before = desk.Shown("PicSmallTo");
    desk.Slider("SliderY")->setValue(20);
    EXPECT_EQ(desk.Record(1).RotateY, 20.0F);
    EXPECT_EQ(desk.Shown("PicSmallTo"), before);
    desk.Click("CmdFreeImage");
    EXPECT_NE(desk.Shown("PicSmallTo"), before);
}

TEST(MainWindow, ADoubleClickOnAHeadingResetsItsSlider) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")});
    desk.Click("OptionRemap_1");
    const std::pair<const char*, const char*> rows[] = {{"LabelRotate2", "SliderX"},
                                                        {"LabelRotate3", "SliderY"},
                                                        {"LabelRotate4", "SliderZ"},
                                                        {"LabelTranslate2", "SliderXtranslate"},
                                                        {"LabelTranslate3", "SliderYtranslate"}};
    for (const auto& [label, slider] : rows) {
        desk.Slider(slider)->setValue(30);
        QTest::mouseDClick(desk.Find(label), Qt::LeftButton);
        EXPECT_EQ(desk.Slider(slider)->value(), 0) << slider;
    }
    const ImageRecord& record = desk.Record(1);
    EXPECT_EQ(record.RotateX + record.RotateY + record.RotateZ, 0.0F);
    EXPECT_EQ(record.TranslateX + record.TranslateY, 0.0F);
}

TEST(MainWindow, EachEffectComesBackWithItsProjection) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")});
    desk.Slider("SliderEffect")->setValue(80);
    desk.Click("OptionRemap_1");
    EXPECT_EQ(desk.Slider("SliderEffect")->value(), 100);
    desk.Slider("SliderEffect")->setValue(30);
    desk.Click("OptionRemap_3");
    desk.Click("OptionRemap_0");
    EXPECT_EQ(desk.Slider("SliderEffect")->value(), 80);
    EXPECT_EQ(desk.Record(1).EffectRectilinear, 30.0F);
}

TEST(MainWindow, SettingsGoToAllEvenToPhotosNeverClicked) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp")});
    desk.window.AddFiles({desk.files.Picture(Q("tall.bmp"), FIF_BMP, {40, 60})});
    desk.Click("OptionRemap_1");
    desk.Slider("SliderX")->setValue(10);
    desk.Click("CmdApplyAll2");
    for (int n = 1; n <= 4; ++n) {
        EXPECT_EQ(desk.Record(n).RotateX, 10.0F) << n;
        EXPECT_EQ(desk.Record(n).Projection, 1);
        EXPECT_EQ(desk.Record(n).Height, n == 4 ? 60 : 40);
        EXPECT_EQ(desk.Record(n).Landscape, n != 4);
        EXPECT_EQ(desk.Record(n).SensorWidth, desk.Record(1).SensorWidth);
    }
}

TEST(MainWindow, AnotherGearResetsWhatItIsGivenTo) {
    WindowDesk desk;
    desk.AddGear(Q("other"), 100.0F);
    EXPECT_EQ(desk.dialogs.opened, QStringList{Q("FormGearList")});
    desk.AddPhotos({Q("a.bmp"), Q("b.bmp")});
    desk.Slider("SliderAOVinput")->setValue(200);
    desk.ClickLine(1);
    desk.ClickLine(0, Qt::ControlModifier);
    desk.Press("GearCombo", Qt::Key_Down);
    for (const int n : {1, 2}) {
        EXPECT_EQ(desk.Record(n).GearName, Q("other"));
        EXPECT_EQ(desk.Record(n).InputAOV, 100.0F);
        EXPECT_FALSE(desk.Record(n).SettingsApplied);
    }
    // The same gear again leaves adjustments alone.
    desk.Slider("SliderAOVinput")->setValue(150);
    auto* const gears = desk.Find<QComboBox>("GearCombo");
    Q_EMIT gears->activated(gears->currentIndex());
    EXPECT_EQ(desk.Record(1).InputAOV, 150.0F);
}

TEST(MainWindow, AGearForAllReachesEachPhotoByAClick) {
    WindowDesk desk;
    desk.AddGear(Q("other"), 100.0F);
    desk.AddPhotos({Q("a.bmp"), Q("b.bmp")});
    desk.Find<QComboBox>("GearCombo")->setCurrentIndex(1);
    desk.Slider("SliderAOVinput")->setValue(133);
    desk.Click("CmdApplyAll");
    EXPECT_EQ(desk.Record(2).GearName, Q("other"));
    EXPECT_FALSE(desk.Record(1).SettingsApplied);
    EXPECT_EQ(desk.Record(1).InputAOV, 133.0F);
    desk.ClickLine(0);  // current already
    EXPECT_EQ(desk.Record(1).InputAOV, 100.0F);
    EXPECT_EQ(desk.Slider("SliderAOVinput")->value(), 100);
}

TEST(MainWindow, RemovingClosesTheGapsAndAnEmptyListEmptiesThePictures) {
    WindowDesk desk;
    const QImage empty = desk.Shown("PicSmallTo");
    desk.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp"), Q("d.bmp")});
    desk.ClickLine(0);
    desk.ClickLine(2, Qt::ControlModifier);
    desk.Click("CmdRemoveImages");
    ASSERT_EQ(desk.state.Images.UpperBound(), 2);
    EXPECT_EQ(desk.Record(1).FileName, Q("b.bmp"));
    EXPECT_EQ(desk.Record(2).FileName, Q("d.bmp"));
    EXPECT_EQ(desk.Record(1).Width, 60);  // line 0 became current as by a click
    desk.ClickLine(0);
    desk.ClickLine(1, Qt::ShiftModifier);
    desk.Press("ImageList1", Qt::Key_Delete);
    EXPECT_TRUE(desk.state.Images.Empty());
    EXPECT_EQ(desk.Shown("PicSmallTo"), empty);
    EXPECT_FALSE(desk.Find("CommandSaveFreeimage")->isEnabled());
    EXPECT_FALSE(desk.state.bitmaps.FullSourceBitmap);
}

TEST(MainWindow, TheDefaultsChangeThePreviewsSize) {
    WindowDesk desk;
    desk.AddPhotos({Q("a.bmp")}, {900, 600});
    EXPECT_EQ(SizeOf(desk.state.bitmaps.PreviewSourceBitmap.get()).width, 400);
    desk.dialogs.onDefaults = [&] {
        desk.state.settings.PreviewWidth = 200;
        desk.state.settings.PreviewHeight = 200;
    };
    desk.Entry("CmdSetupSetup")->trigger();
    EXPECT_EQ(SizeOf(desk.state.bitmaps.PreviewSourceBitmap.get()).width, 200);
    EXPECT_EQ(desk.Find("PicSmallTo")->size(), QSize(200, 200));
}

}  // namespace
}  // namespace varnel
