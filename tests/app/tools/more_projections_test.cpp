// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections behind the button "More": chosen, adjusted, undone and reset like the first ones.

#include <gtest/gtest.h>

#include "app/panels/reset_dot.h"
#include "remap/projection/projection_info.h"
#include "state/adjustments/choice_table.h"
#include "state/adjustments/slider_table.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

std::vector<Projection> Further() {
    std::vector<Projection> further;
    for (const Projection projection : AllProjections()) {
        if (!InfoOf(projection).basic) {
            further.push_back(projection);
        }
    }
    return further;
}

class MoreProjections : public ::testing::Test {
  protected:
    MoreProjections() { workspace.AddPhotos({QStringLiteral("a.bmp")}); }
    QString UndoText() { return workspace.Entry("CmdEditUndo")->text(); }
    void Undo() { workspace.Entry("CmdEditUndo")->trigger(); }
    // What a person sees in the control.
    int ShownChoice(const ChoiceRowData& row) {
        QWidget* const control = workspace.Find(row.control);
        const auto* const list = qobject_cast<const QComboBox*>(control);
        return list != nullptr ? list->currentData().toInt() : control->property("checked").toInt();
    }
    void Choose(const ChoiceRowData& row, int value) {
        QWidget* const control = workspace.Find(row.control);
        if (auto* const list = qobject_cast<QComboBox*>(control)) {
            list->setCurrentIndex(list->findData(value));
            Q_EMIT list->activated(list->currentIndex());
        } else {
            qobject_cast<QAbstractButton*>(control)->click();
        }
    }

    TestWindow workspace;
};

TEST_F(MoreProjections, AreChosenFromTheListAndUndone) {
    const auto* const more = workspace.Find<QAbstractButton>("OptionRemapMore");
    const auto* const list = workspace.Find<QComboBox>("ProjectionCombo");
    for (const Projection projection : Further()) {
        workspace.Click("OptionRemap_2");
        workspace.ChooseProjection(projection);
        EXPECT_EQ(workspace.Record(1).Projection, static_cast<int>(projection));
        EXPECT_TRUE(more->isChecked());
        EXPECT_EQ(list->currentText(), TitleOf(projection));
        workspace.Click("OptionRemap_0");
        Undo();
        EXPECT_TRUE(more->isChecked());
        EXPECT_EQ(list->currentText(), TitleOf(projection));
        Undo();
        EXPECT_TRUE(workspace.Find<QAbstractButton>("OptionRemap_2")->isChecked());
    }
    workspace.Click("OptionRemapMore");  // that of the list
    EXPECT_EQ(workspace.Record(1).Projection, static_cast<int>(Further().back()));
}

TEST_F(MoreProjections, HaveSlidersThatStoreAndReset) {
    for (const Projection projection : Further()) {
        workspace.ChooseProjection(projection);
        const ImageRecord usual = workspace.Record(1);
        for (const SliderRowData& row : SliderRows()) {
            QSlider* const slider = workspace.Slider(row.slider);
            EXPECT_EQ(slider->isVisible(), ShownWith(row, projection)) << row.slider;
            const ControlField* const field = FieldOf(row.id);
            if (field == nullptr || !Reads(projection, row.id)) {
                continue;
            }
            const bool atEnd = slider->value() == slider->maximum();
            const int value = atEnd ? slider->minimum() + 7 : slider->maximum();
            slider->setValue(value);
            EXPECT_FLOAT_EQ(workspace.Record(1).*field->field,
                            static_cast<float>(value / field->factor))
                << row.slider;
            if (row.id >= SliderId::PaniniD) {
                EXPECT_TRUE(testing::Settle());
                workspace.Click(qPrintable(QStringLiteral("Dot") + QLatin1StringView(row.slider)));
                EXPECT_EQ(workspace.Record(1).*field->field, usual.*field->field) << row.slider;
            }
        }
        EXPECT_TRUE(testing::Settle());
        workspace.Click("CmdResetPhoto");
        EXPECT_EQ(workspace.Record(1), usual);
    }
}

TEST_F(MoreProjections, HaveChoicesThatAreStoredUndoneAndReset) {
    std::size_t seen = 0;
    for (const Projection projection : Further()) {
        workspace.ChooseProjection(projection);
        for (const ChoiceRowData& row : ChoiceRows()) {
            EXPECT_EQ(workspace.Find(row.control)->isVisible(), ReadsChoice(projection, row.id));
            if (!ReadsChoice(projection, row.id)) {
                continue;
            }
            ++seen;
            const int usual = row.Of(ImageRecord());
            const int other = row.options.empty() ? 1 : row.options.back().value;
            Choose(row, other);
            EXPECT_EQ(row.Of(workspace.Record(1)), other) << row.control;
            Undo();
            EXPECT_EQ(row.Of(workspace.Record(1)), usual) << row.control;
            EXPECT_EQ(ShownChoice(row), usual) << row.control;
            Choose(row, other);
            EXPECT_TRUE(testing::Settle());
            workspace.Click("CmdResetPhoto");
            EXPECT_EQ(row.Of(workspace.Record(1)), usual) << row.control;
        }
    }
    EXPECT_EQ(seen, choiceCount);
}

TEST_F(MoreProjections, StartAsWideAsTheyAreMeantToBeUnlessAnAngleWasSet) {
    const float ofGear = workspace.Record(1).OutputAOV;
    workspace.ChooseProjection(Projection::LittlePlanet);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 270.0F);
    workspace.ChooseProjection(Projection::Unrolled);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 360.0F);
    workspace.Click("OptionRemap_1");
    EXPECT_EQ(workspace.Record(1).OutputAOV, ofGear);
    workspace.Slider("SliderAOVoutput")->setValue(77);
    workspace.ChooseProjection(Projection::LittlePlanet);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 77.0F);
}

TEST_F(MoreProjections, AnAngleThatHasNoPictureElsewhereGivesWay) {
    workspace.ChooseProjection(Projection::Equirectangular);
    workspace.Slider("SliderAOVoutput")->setValue(360);
    workspace.ChooseProjection(Projection::LittlePlanet);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 340.0F);
    workspace.Click("OptionRemap_1");
    EXPECT_EQ(workspace.Record(1).OutputAOV, 120.0F);
    EXPECT_EQ(workspace.Slider("SliderAOVoutput")->value(), 120);
    Undo();
    EXPECT_EQ(workspace.Slider("SliderAOVoutput")->value(), 340);
}

}  // namespace
}  // namespace varnel
