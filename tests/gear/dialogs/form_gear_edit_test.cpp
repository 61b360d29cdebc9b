// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/form_gear_edit.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QTest>
#include <QWheelEvent>
#include <cstdlib>
#include <functional>
#include <memory>

namespace varnel {
namespace {

// The editor on a table of its own, worked by keys and clicks.
class GearEditor : public ::testing::Test {
  protected:
    void Open() {
        form_ = std::make_unique<FormGearEdit>(table_);
        form_->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form_.get()));
    }
    template <class Control>
    Control* Get(const char* name) {
        auto* control = form_->findChild<Control*>(QString::fromLatin1(name));
        EXPECT_NE(control, nullptr) << name;
        return control;
    }
    void Choose(const char* name, const char* text) {
        auto* combo = Get<QComboBox>(name);
        QTest::keyClick(combo, Qt::Key_Home);
        for (int n = 1; n < combo->count() && combo->currentText() != QLatin1StringView(text);
             ++n) {
            QTest::keyClick(combo, Qt::Key_Down);
        }
        EXPECT_EQ(combo->currentText(), QLatin1StringView(text));
    }
    void ChooseCamera(const char* brand, const char* model) {
        Choose("CameraBrandCombo", brand);
        Choose("CameraCombo", model);
    }
    void ChooseLens(const char* brand, const char* model) {
        Choose("LensBrandCombo", brand);
        Choose("LensCombo", model);
    }
    // 130.9048 degrees by 95.8779, 75.8772 percent.
    void ChooseZuiko() {
        ChooseCamera("Olympus", "E-3");
        ChooseLens("Olympus", "Zuiko ED 8mm f/3.5");
    }
    void Click(const char* name) { QTest::mouseClick(Get<QPushButton>(name), Qt::LeftButton); }
    void Move(const char* slider, int steps) {
        for (int n = 0; n < std::abs(steps); ++n) {
            QTest::keyClick(Get<QSlider>(slider), steps > 0 ? Qt::Key_Right : Qt::Key_Left);
        }
    }
    // Angle, ratio and offsets as the labels tell them.
    std::string Labels() {
        QStringList texts;
        for (const char* name : {"LabelhAOV", "LabelRatio", "LabelXofset", "LabelYofset"}) {
            texts.append(Get<QLabel>(name)->text());
        }
        return texts.join(u'|').toStdString();
    }
    GearRecord& Gear() { return table_(0); }
    // A gear as it is after loading: its own angle, ratio and offset.
    void PutLoadedGear() {
        Gear().GearName = QStringLiteral("mine");
        FillGearFromCatalogue({QStringLiteral("Olympus"), QStringLiteral("E-3"),
                               QStringLiteral("Olympus"), QStringLiteral("Zuiko ED 8mm f/3.5")},
                              Gear());
        Gear().hAOV = Gear().vAOV = 118.0F;
        Gear().GearRatio = 450.0F;
        Gear().OfsetX = -4.0F;
        Gear().UserAdjusted = Gear().SetByHand = true;
    }

    GearTable table_;
    std::unique_ptr<FormGearEdit> form_;
};

// What is only offered is the user's to confirm.
TEST_F(GearEditor, BeginsWithTheCameraAndLensThatAreKnown) {
    Open();
    form_->Propose(GearNamed({QStringLiteral("Olympus"), QStringLiteral("E-3"), {}, {}}));
    EXPECT_EQ(Get<QComboBox>("CameraCombo")->currentText(), u"E-3");
    EXPECT_EQ(Get<QComboBox>("LensBrandCombo")->currentIndex(), -1);
    EXPECT_FALSE(Get<QPushButton>("CmdAdd")->isEnabled());
    const GearNames zuiko{QStringLiteral("Olympus"), QStringLiteral("E-3"),
                          QStringLiteral("Olympus"), QStringLiteral("Zuiko ED 8mm f/3.5")};
    form_->Propose(GearNamed(zuiko));
    EXPECT_EQ(Labels(), "131 \u00b0|76 %|0 \u2030 hor.|0 \u2030 vert.");
    EXPECT_TRUE(Gear().GearName.isEmpty());
    Click("CmdAdd");
    EXPECT_EQ(Gear().GearName, u"Olympus E-3 + Olympus Zuiko ED 8mm f/3.5");
}

// A gear that a photo remembers: its own numbers, but not what a slider made of the catalogue's.
TEST_F(GearEditor, BeginsWithTheNumbersThatAreKnown) {
    PutLoadedGear();
    GearRecord known = Gear();
    known.hAOV = 131.0F;
    Gear() = GearRecord();
    Open();
    form_->Propose(known);
    EXPECT_EQ(Labels(), "131 \u00b0|450 %|-4 \u2030 hor.|0 \u2030 vert.");
    EXPECT_EQ(Get<QLabel>("LabelAdjusted")->text(), u"Ratio and offsets are set by hand.");
    Click("CmdAdd");
    EXPECT_EQ(Gear().GearName, u"mine");
    EXPECT_EQ(Gear().GearRatio, 450.0F);
    EXPECT_NEAR(Gear().hAOV, 130.9048F, 1e-4F);
    EXPECT_NEAR(Gear().vAOV, 95.8779F, 1e-4F);
}

TEST_F(GearEditor, HasEveryControl) {
    Open();
    EXPECT_EQ(form_->objectName(), u"FormGearEdit");
    const struct {
        const char *name, *type, *text;
    } cases[] = {
        {"GearNameText", "QLineEdit", "Enter gear name here"},
        {"CameraBrandCombo", "QComboBox", ""},
        {"CameraCombo", "QComboBox", ""},
        {"LensBrandCombo", "QComboBox", ""},
        {"LensCombo", "QComboBox", ""},
        {"LabelhAOV", "QLabel", "180 \u00b0"},
        {"LabelRatio", "QLabel", "100 %"},
        {"LabelRatio2", "QLabel", "Sensor &width / image circle"},
        {"LabelXofset", "QLabel", "0 \u2030 hor."},
        {"LabelYofset", "QLabel", "0 \u2030 vert."},
        {"CmdAdd", "QPushButton", "Add"},
        {"CmdCancel", "QPushButton", "Cancel"},
    };
    for (const auto& c : cases) {
        auto* control = Get<QWidget>(c.name);
        EXPECT_STREQ(control->metaObject()->className(), c.type) << c.name;
        const char* property = qobject_cast<QComboBox*>(control) ? "currentText" : "text";
        EXPECT_EQ(control->property(property).toString().toStdString(), c.text) << c.name;
    }
    EXPECT_EQ(Get<QComboBox>("CameraBrandCombo")->count(), 20);
    EXPECT_EQ(Get<QComboBox>("LensBrandCombo")->count(), 19);
}

TEST_F(GearEditor, RangesStartAsForMostGears) {
    Open();
    const struct {
        const char *slider, *spin;
        int minimum, maximum;
    } cases[] = {{"SliderhAOV", "SpinhAOV", 10, 280},
                 {"SliderRatio", "SpinRatio", 10, 400},
                 {"SliderXofset", "SpinXofset", -200, 200},
                 {"SliderYofset", "SpinYofset", -200, 200}};
    for (const auto& c : cases) {
        EXPECT_EQ(Get<QSlider>(c.slider)->minimum(), c.minimum) << c.slider;
        EXPECT_EQ(Get<QSlider>(c.slider)->maximum(), c.maximum) << c.slider;
        EXPECT_EQ(Get<QSpinBox>(c.spin)->minimum(), c.minimum) << c.spin;
        EXPECT_EQ(Get<QSpinBox>(c.spin)->maximum(), c.maximum) << c.spin;
        EXPECT_FALSE(Get<QSlider>(c.slider)->isEnabled()) << c.slider;
    }
}

TEST_F(GearEditor, NeedsBothModels) {
    Open();
    ChooseCamera("Canon", "EOS 5D");
    EXPECT_EQ(Gear().SensorWidth, 35.8F);
    Choose("LensBrandCombo", "Samyang");
    EXPECT_EQ(Get<QComboBox>("LensCombo")->count(), 4);
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentIndex(), -1);
    EXPECT_FALSE(Get<QPushButton>("CmdAdd")->isEnabled());
    Choose("LensCombo", "8 mm f/3.5");
    EXPECT_TRUE(Get<QPushButton>("CmdAdd")->isEnabled());
    EXPECT_TRUE(Get<QSlider>("SliderRatio")->isEnabled());
    EXPECT_EQ(Labels(), "179 \u00b0|119 %|0 \u2030 hor.|0 \u2030 vert.");
    EXPECT_FALSE(Gear().UserAdjusted);
    Choose("CameraBrandCombo", "Nikon");
    EXPECT_FALSE(Get<QPushButton>("CmdAdd")->isEnabled());
}

TEST_F(GearEditor, AddsWithTheCataloguesNumbersAndTheBuiltName) {
    Open();
    ChooseCamera("Canon", "EOS 5D");
    ChooseLens("Samyang", "8 mm f/3.5");
    QTest::keyClick(Get<QLineEdit>("GearNameText"), Qt::Key_Return);
    EXPECT_EQ(form_->result(), QDialog::Accepted);
    EXPECT_EQ(Gear().GearName, u"Canon EOS 5D + Samyang 8 mm f/3.5");
    EXPECT_NEAR(Gear().GearRatio, 119.3333F, 1e-4F);
    EXPECT_NEAR(Gear().hAOV, 179.3192F, 1e-4F);
    EXPECT_NEAR(Gear().vAOV, 147.6053F, 1e-4F);
}

TEST_F(GearEditor, TypingReplacesThePrompt) {
    Open();
    auto* name = Get<QLineEdit>("GearNameText");
    QTest::mouseClick(name, Qt::LeftButton, {}, QPoint(30, name->height() / 2));
    QTest::keyClicks(name, QStringLiteral("my gear"));
    EXPECT_EQ(name->text(), u"my gear");
    QTest::keyClick(name, Qt::Key_Left);
    QTest::keyClicks(name, QStringLiteral("-"));
    EXPECT_EQ(name->text(), u"my gea-r");
    ChooseZuiko();
    Click("CmdAdd");
    EXPECT_EQ(Gear().GearName, u"my gea-r");
}

TEST_F(GearEditor, MovedSlidersReplaceTheCataloguesNumbers) {
    Open();
    ChooseZuiko();
    Move("SliderRatio", 2);
    Move("SliderXofset", -3);
    auto* spin = Get<QSpinBox>("SpinYofset");
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("12"));
    EXPECT_EQ(Labels(), "131 \u00b0|78 %|-3 \u2030 hor.|12 \u2030 vert.");
    EXPECT_TRUE(Gear().UserAdjusted);
    Click("CmdAdd");
    EXPECT_EQ(Gear().GearRatio, 78.0F);
    EXPECT_EQ(Gear().OfsetX, -3.0F);
    EXPECT_EQ(Gear().OfsetY, 12.0F);
    EXPECT_NEAR(Gear().hAOV, 130.9048F, 1e-4F);
}

// What was not moved stays as exact as it was; an angle counts as when it is read back.
TEST_F(GearEditor, AMovedAngleIsTheVerticalOneToo) {
    Open();
    ChooseZuiko();
    Move("SliderhAOV", -11);
    EXPECT_EQ(Get<QLabel>("LabelAdjusted")->text(), u"The angle of view is set by hand.");
    Click("CmdAdd");
    EXPECT_EQ(Gear().hAOV, 120.0F);
    EXPECT_EQ(Gear().vAOV, 120.0F);
    EXPECT_NEAR(Gear().GearRatio, 75.8772F, 1e-4F);
}

TEST_F(GearEditor, AnotherModelComesWithItsOwnNumbers) {
    Open();
    ChooseZuiko();
    Move("SliderhAOV", 5);
    Move("SliderRatio", 5);
    ChooseLens("Samyang", "7.5 mm f/3.5");
    EXPECT_EQ(Labels(), "137 \u00b0|74 %|0 \u2030 hor.|0 \u2030 vert.");
    Click("CmdAdd");
    EXPECT_NEAR(Gear().GearRatio, 74.1426F, 1e-4F);
    EXPECT_NEAR(Gear().hAOV, 136.5910F, 1e-4F);
    EXPECT_FALSE(Gear().UserAdjusted);
}

TEST_F(GearEditor, CatalogueValuesCanBeHadBack) {
    Open();
    ChooseZuiko();
    EXPECT_FALSE(Get<QPushButton>("CmdCatalogue")->isEnabled());
    Move("SliderXofset", 5);
    Click("CmdCatalogue");
    EXPECT_EQ(Labels(), "131 \u00b0|76 %|0 \u2030 hor.|0 \u2030 vert.");
    Click("CmdAdd");
    EXPECT_FALSE(Gear().UserAdjusted);
    EXPECT_NEAR(Gear().GearRatio, 75.8772F, 1e-4F);
    EXPECT_EQ(Gear().OfsetX, 0.0F);
}

TEST_F(GearEditor, WidensARangeForOneGearOnly) {
    Open();
    ChooseCamera("Olympus", "E-3");
    ChooseLens("Olympus", "FCON-T01");
    EXPECT_EQ(Labels(), "4 \u00b0|226 %|0 \u2030 hor.|0 \u2030 vert.");
    EXPECT_EQ(Get<QSlider>("SliderhAOV")->minimum(), 4);
    Choose("LensCombo", "Zuiko ED 8mm f/3.5");
    EXPECT_EQ(Get<QSlider>("SliderhAOV")->minimum(), 10);
    EXPECT_FALSE(Gear().UserAdjusted);
}

TEST_F(GearEditor, OpensAGearForRedefining) {
    PutLoadedGear();
    const GearRecord before = Gear();
    Open();
    EXPECT_EQ(Get<QPushButton>("CmdAdd")->text(), u"Update");
    EXPECT_TRUE(Get<QPushButton>("CmdAdd")->isEnabled());
    EXPECT_EQ(Get<QLineEdit>("GearNameText")->text(), u"mine");
    EXPECT_EQ(Get<QComboBox>("CameraCombo")->currentText(), u"E-3");
    EXPECT_EQ(Get<QComboBox>("LensCombo")->currentText(), u"Zuiko ED 8mm f/3.5");
    EXPECT_EQ(Labels(), "118 \u00b0|450 %|-4 \u2030 hor.|0 \u2030 vert.");
    EXPECT_EQ(Gear(), before);
    EXPECT_TRUE(Get<QPushButton>("CmdCatalogue")->isEnabled());

    ChooseLens("Samyang", "7.5 mm f/3.5");
    EXPECT_EQ(Labels(), "137 \u00b0|74 %|0 \u2030 hor.|0 \u2030 vert.");
    EXPECT_EQ(Get<QLabel>("LabelAdjusted")->text(), u"Values of the catalogue.");
    ChooseLens("Olympus", "Zuiko ED 8mm f/3.5");
    EXPECT_EQ(Gear(), before);
}

// An angle of one's own outlives another offset and another name.
TEST_F(GearEditor, RedefiningKeepsEveryNumberThatWasNotMoved) {
    PutLoadedGear();
    Gear().hAOV = Gear().vAOV = 118.3F;
    GearRecord wanted = Gear();
    Open();
    EXPECT_EQ(Get<QLabel>("LabelhAOV")->text(), u"118 \u00b0");
    Get<QLineEdit>("GearNameText")->setText(QStringLiteral("other"));
    Move("SliderYofset", 2);
    Click("CmdAdd");
    wanted.GearName = QStringLiteral("other");
    wanted.OfsetY = 2.0F;
    EXPECT_EQ(Gear(), wanted);
}

TEST_F(GearEditor, RedefinesAnUnadjustedGearFromTheCatalogue) {
    PutLoadedGear();
    Gear().UserAdjusted = false;
    Open();
    EXPECT_EQ(Labels(), "131 \u00b0|76 %|-4 \u2030 hor.|0 \u2030 vert.");
}

TEST_F(GearEditor, RedefiningToTheSameNameKeepsIt) {
    PutLoadedGear();
    table_.Resize(1);
    table_(1) = table_(0);
    Open();
    Click("CmdAdd");
    EXPECT_EQ(Gear().GearName, u"mine");
}

TEST_F(GearEditor, ClosingWithoutAResultEmptiesTheName) {
    const std::function<void()> ways[] = {
        [this] { Click("CmdCancel"); },
        [this] { QTest::keyClick(form_.get(), Qt::Key_Escape); },
        [this] { form_->close(); },
    };
    for (const auto& close : ways) {
        PutLoadedGear();
        Open();
        close();
        EXPECT_FALSE(form_->isVisible());
        EXPECT_TRUE(Gear().GearName.isEmpty());
    }
}

TEST_F(GearEditor, TheWheelNeedsTheFocus) {
    Open();
    ChooseZuiko();
    auto* slider = Get<QSlider>("SliderRatio");
    const auto turn = [slider] {
        QWheelEvent wheel(QPointF(5, 5), slider->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(slider, &wheel);
    };
    turn();
    EXPECT_EQ(slider->value(), 76);
    slider->setFocus();
    turn();
    EXPECT_GT(slider->value(), 76);
}

}  // namespace
}  // namespace varnel
