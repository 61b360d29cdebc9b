// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/window/main_window.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QMenuBar>

#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

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
    TestWindow workspace;
    for (const auto& row : rows) {
        const QSlider* const slider = workspace.Slider(row.name);
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
    TestWindow workspace;
    for (const auto& row : rows) {
        const QObject* const control = workspace.window.findChild<QObject*>(Q(row.name));
        ASSERT_NE(control, nullptr) << row.name;
        EXPECT_TRUE(control->inherits(row.kind)) << row.name;
        if (row.text != nullptr) {
            const char* const property =
                qobject_cast<const QGroupBox*>(control) != nullptr ? "title" : "text";
            EXPECT_EQ(control->property(property).toString(), Q(row.text)) << row.name;
        }
    }
    EXPECT_FALSE(workspace.Entry("CmdFileOpen")->isEnabled());
    EXPECT_FALSE(workspace.Find("CmdBatchProcess")->isVisible());
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
    const TestWindow workspace;
    // Others may stand between them.
    QStringList shown;
    for (const QAction* const menu : workspace.window.menuBar()->actions()) {
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
    TestWindow workspace;
    for (const auto& row : rows) {
        workspace.Slider(row.slider)->setValue(row.value);
        EXPECT_EQ(workspace.Label(row.label), Q(row.text)) << row.slider;
    }
}

TEST(MainWindow, TheProjectionDecidesWhatIsShown) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")});
    const char* const rectilinearOnly[] = {
        "SliderAOVoutput", "LabelAOVoutput",   "LabelAOVoutput2", "SliderX",
        "SliderY",         "SliderZ",          "LabelRotate1",    "LabelRotate2",
        "LabelRotateZ",    "SliderXtranslate", "LabelTranslate1", "LabelTranslateY"};
    for (int k = 0; k < 4; ++k) {
        workspace.Click(qPrintable(QStringLiteral("OptionRemap_%1").arg(k)));
        for (const char* const name : rectilinearOnly) {
            EXPECT_EQ(workspace.Find(name)->isVisible(), k == 1) << name << k;
        }
        EXPECT_EQ(workspace.Find("SliderEffect")->isVisible(), k < 2);
        EXPECT_EQ(workspace.Find("LabelEffect2")->isVisible(), k < 2);
        EXPECT_TRUE(workspace.Find("SliderAOVinput")->isVisible());
        EXPECT_EQ(workspace.Record(1).Projection, k);
    }
}

TEST(MainWindow, TheFirstStartAsksForAGear) {
    TestWindow workspace;
    EXPECT_EQ(workspace.prompt.explained,
              QStringList{Q("Please define at least one camera + lens combination ...")});
    EXPECT_EQ(workspace.Find<QComboBox>("GearCombo")->currentText(),
              Q("Canon EOS 5D + Sigma EX 8 mm f:3.5"));
}

TEST(MainWindow, AddedPhotosShowAndTheFirstGetsItsGear) {
    TestWindow workspace;
    workspace.AddPhotos({Q("wide.bmp"), Q("wide2.bmp")});
    EXPECT_EQ(workspace.Find<QListWidget>("ImageList1")->currentRow(), 0);
    EXPECT_EQ(workspace.Record(1).Width, 60);
    EXPECT_TRUE(workspace.Record(1).Landscape);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 130.0F);
    EXPECT_EQ(workspace.Record(2).Width, 0);  // not clicked yet
    EXPECT_TRUE(workspace.window.windowTitle().contains(Q("wide.bmp")));
    // The pictures show position colours, not the empty box.
    EXPECT_GT(workspace.Shown("PicSmallFrom").width(), 0);
    workspace.ClickLine(1);
    EXPECT_EQ(workspace.Record(2).Width, 60);
    EXPECT_TRUE(workspace.notices.texts.isEmpty());
}

TEST(MainWindow, AKeyOnASliderStoresIntoEverySelectedPhoto) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp")});
    workspace.ClickLine(2, Qt::ControlModifier);
    workspace.Click("OptionRemap_1");
    workspace.Press("SliderXtranslate", Qt::Key_Right);
    EXPECT_EQ(workspace.Record(1).TranslateX, 1.0F);
    EXPECT_EQ(workspace.Record(2).TranslateX, 0.0F);
    EXPECT_EQ(workspace.Record(3).TranslateX, 1.0F);
    EXPECT_EQ(workspace.Record(3).Projection, 1);
    EXPECT_TRUE(workspace.Find("SliderXtranslate")->hasFocus());
    workspace.Slider("SliderEffect")->setValue(0);
    EXPECT_EQ(workspace.Record(1).EffectRectilinear, 0.1F);
    EXPECT_EQ(workspace.Record(1).EffectVarnel, 100.0F);
}

TEST(MainWindow, WhileControlsAreLoadedNothingIsStored) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")});
    workspace.state.loadingControls = true;
    workspace.Slider("SliderAOVinput")->setValue(90);
    EXPECT_NE(workspace.Record(1).InputAOV, 90.0F);
    EXPECT_EQ(workspace.Label("LabelAOVinput"), Q("90° hAOV"));
}

TEST(MainWindow, ADragPreviewsAndOnlyItsEndIsStored) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {300, 200});
    workspace.Click("OptionRemap_1");
    const QImage before = workspace.Shown("PicSmallTo");
    QSlider* const slider = workspace.Slider("SliderY");
    slider->setSliderDown(true);
    slider->setValue(20);
    QApplication::processEvents();
    EXPECT_EQ(workspace.Record(1).RotateY, 0.0F);
    const QImage dragged = workspace.Shown("PicSmallTo");
    EXPECT_NE(dragged, before);
    slider->setSliderDown(false);
    EXPECT_EQ(workspace.Record(1).RotateY, 20.0F);
    EXPECT_EQ(workspace.Shown("PicSmallTo"), dragged);
}

TEST(MainWindow, WithoutAutoPreviewValuesAreStoredAndNothingIsDrawn) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {300, 200});
    workspace.Click("OptionRemap_1");
    workspace.Click("CheckAutoPreview");
    const QImage before = workspace.Shown("PicSmallTo");
    workspace.Slider("SliderY")->setValue(20);
    EXPECT_EQ(workspace.Record(1).RotateY, 20.0F);
    EXPECT_EQ(workspace.Shown("PicSmallTo"), before);
    workspace.Click("CmdFreeImage");
    EXPECT_NE(workspace.Shown("PicSmallTo"), before);
}

TEST(MainWindow, ADoubleClickOnAHeadingResetsItsSlider) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")});
    workspace.Click("OptionRemap_1");
    const std::pair<const char*, const char*> rows[] = {{"LabelRotate2", "SliderX"},
                                                        {"LabelRotate3", "SliderY"},
                                                        {"LabelRotate4", "SliderZ"},
                                                        {"LabelTranslate2", "SliderXtranslate"},
                                                        {"LabelTranslate3", "SliderYtranslate"}};
    for (const auto& [label, slider] : rows) {
        workspace.Slider(slider)->setValue(30);
        QTest::mouseDClick(workspace.Find(label), Qt::LeftButton);
        EXPECT_EQ(workspace.Slider(slider)->value(), 0) << slider;
    }
    const ImageRecord& record = workspace.Record(1);
    EXPECT_EQ(record.RotateX + record.RotateY + record.RotateZ, 0.0F);
    EXPECT_EQ(record.TranslateX + record.TranslateY, 0.0F);
}

TEST(MainWindow, EachEffectComesBackWithItsProjection) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")});
    workspace.Slider("SliderEffect")->setValue(80);
    workspace.Click("OptionRemap_1");
    EXPECT_EQ(workspace.Slider("SliderEffect")->value(), 100);
    workspace.Slider("SliderEffect")->setValue(30);
    workspace.Click("OptionRemap_3");
    workspace.Click("OptionRemap_0");
    EXPECT_EQ(workspace.Slider("SliderEffect")->value(), 80);
    EXPECT_EQ(workspace.Record(1).EffectRectilinear, 30.0F);
}

TEST(MainWindow, SettingsGoToAllEvenToPhotosNeverClicked) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp")});
    workspace.window.AddFiles({workspace.files.Picture(Q("tall.bmp"), OutputType::Bmp, {40, 60})});
    workspace.Click("OptionRemap_1");
    workspace.Slider("SliderX")->setValue(10);
    workspace.Click("CmdApplyAll2");
    for (int n = 1; n <= 4; ++n) {
        EXPECT_EQ(workspace.Record(n).RotateX, 10.0F) << n;
        EXPECT_EQ(workspace.Record(n).Projection, 1);
        EXPECT_EQ(workspace.Record(n).Height, n == 4 ? 60 : 40);
        EXPECT_EQ(workspace.Record(n).Landscape, n != 4);
        EXPECT_EQ(workspace.Record(n).SensorWidth, workspace.Record(1).SensorWidth);
    }
}

TEST(MainWindow, AnotherGearResetsWhatItIsGivenTo) {
    TestWindow workspace;
    workspace.AddGear(Q("other"), 100.0F);
    EXPECT_EQ(workspace.dialogs.opened, QStringList{Q("FormGearList")});
    workspace.AddPhotos({Q("a.bmp"), Q("b.bmp")});
    workspace.Slider("SliderAOVinput")->setValue(200);
    workspace.ClickLine(1);
    workspace.ClickLine(0, Qt::ControlModifier);
    workspace.Press("GearCombo", Qt::Key_Down);
    for (const int n : {1, 2}) {
        EXPECT_EQ(workspace.Record(n).GearName, Q("other"));
        EXPECT_EQ(workspace.Record(n).InputAOV, 100.0F);
        EXPECT_FALSE(workspace.Record(n).SettingsApplied);
    }
    // The same gear again leaves adjustments alone.
    workspace.Slider("SliderAOVinput")->setValue(150);
    auto* const gears = workspace.Find<QComboBox>("GearCombo");
    Q_EMIT gears->activated(gears->currentIndex());
    EXPECT_EQ(workspace.Record(1).InputAOV, 150.0F);
}

TEST(MainWindow, AGearForAllReachesEachPhotoByAClick) {
    TestWindow workspace;
    workspace.AddGear(Q("other"), 100.0F);
    workspace.AddPhotos({Q("a.bmp"), Q("b.bmp")});
    workspace.Find<QComboBox>("GearCombo")->setCurrentIndex(1);
    workspace.Slider("SliderAOVinput")->setValue(133);
    workspace.Click("CmdApplyAll");
    EXPECT_EQ(workspace.Record(2).GearName, Q("other"));
    EXPECT_FALSE(workspace.Record(1).SettingsApplied);
    EXPECT_EQ(workspace.Record(1).InputAOV, 133.0F);
    workspace.ClickLine(0);  // current already
    EXPECT_EQ(workspace.Record(1).InputAOV, 100.0F);
    EXPECT_EQ(workspace.Slider("SliderAOVinput")->value(), 100);
}

TEST(MainWindow, RemovingClosesTheGapsAndAnEmptyListEmptiesThePictures) {
    TestWindow workspace;
    const QImage empty = workspace.Shown("PicSmallTo");
    workspace.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp"), Q("d.bmp")});
    workspace.ClickLine(0);
    workspace.ClickLine(2, Qt::ControlModifier);
    workspace.Click("CmdRemoveImages");
    ASSERT_EQ(workspace.state.Images.UpperBound(), 2);
    EXPECT_EQ(workspace.Record(1).FileName, Q("b.bmp"));
    EXPECT_EQ(workspace.Record(2).FileName, Q("d.bmp"));
    EXPECT_EQ(workspace.Record(1).Width, 60);  // line 0 became current as by a click
    workspace.ClickLine(0);
    workspace.ClickLine(1, Qt::ShiftModifier);
    workspace.Press("ImageList1", Qt::Key_Delete);
    EXPECT_TRUE(workspace.state.Images.Empty());
    EXPECT_EQ(workspace.Shown("PicSmallTo"), empty);
    EXPECT_FALSE(workspace.Find("CommandSaveFreeimage")->isEnabled());
    EXPECT_FALSE(workspace.state.bitmaps.FullSourceBitmap);
}

TEST(MainWindow, TheDefaultsChangeThePreviewsSize) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {900, 600});
    EXPECT_EQ(SizeOf(workspace.state.bitmaps.PreviewSourceBitmap.get()).width, 400);
    workspace.dialogs.onDefaults = [&] {
        workspace.state.settings.PreviewWidth = 200;
        workspace.state.settings.PreviewHeight = 200;
    };
    workspace.Entry("CmdSetupSetup")->trigger();
    EXPECT_EQ(SizeOf(workspace.state.bitmaps.PreviewSourceBitmap.get()).width, 200);
}

}  // namespace
}  // namespace varnel
