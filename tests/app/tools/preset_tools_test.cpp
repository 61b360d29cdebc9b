// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Settings that go from photo to photo: copied and pasted, and by presets.

#include <gtest/gtest.h>

#include <QClipboard>
#include <QMenu>

#include "state/adjustments/presets.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

QAction* PresetEntry(TestWindow& workspace, const char* name) {
    auto* const menu = workspace.window.findChild<QMenu*>(Text("MenuPresets"));
    Q_EMIT menu->aboutToShow();
    for (QAction* const entry : menu->actions()) {
        if (entry->text() == Text(name)) {
            return entry;
        }
    }
    ADD_FAILURE() << name;
    return nullptr;
}

TEST(CopiedSettings, GoToTheSelectedPhotosAsOneStepAndLeaveGearAndLens) {
    TestWindow workspace;
    EXPECT_FALSE(workspace.Entry("CmdEditCopySettings")->isEnabled());
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    workspace.AddGear(Text("other"), 111.0F);
    workspace.Click("OptionRemap_1");
    workspace.Slider("SliderY")->setValue(-20);
    workspace.Slider("SliderAOVinput")->setValue(99);
    QTest::keyClick(&workspace.window, Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    workspace.ClickLine(1);
    workspace.ClickLine(2, Qt::ControlModifier);
    const QString before = workspace.Entry("CmdEditUndo")->text();
    QTest::keyClick(&workspace.window, Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
    for (const int n : {2, 3}) {
        EXPECT_EQ(workspace.Record(n).Projection, 1);
        EXPECT_EQ(workspace.Record(n).RotateY, -20.0F);
        EXPECT_NE(workspace.Record(n).InputAOV, 99.0F);
        EXPECT_EQ(workspace.Record(n).GearName, workspace.Record(1).GearName);
    }
    EXPECT_EQ(workspace.Slider("SliderY")->value(), -20);
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo paste settings"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(2).Projection, 0);
    EXPECT_EQ(workspace.Record(3).Projection, 0);
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), before);
    TestWindow other;
    other.AddPhotos({Text("d.bmp")});
    other.Entry("CmdEditPasteSettings")->trigger();
    EXPECT_EQ(other.Record(1).RotateY, -20.0F);
    QGuiApplication::clipboard()->setText(Text("something else"));
    other.Entry("CmdEditPasteSettings")->trigger();
    EXPECT_TRUE(other.Label("StatusText").contains(Text("no settings")));
}

TEST(PresetMenu, AppliesBuiltInAndOwnPresetsAndOpensTheDialogs) {
    TestWindow workspace;
    EXPECT_FALSE(PresetEntry(workspace, "&Save as preset...")->isEnabled());
    workspace.AddPhotos({Text("a.bmp")});
    workspace.Click("OptionRemap_1");
    workspace.Slider("SliderX")->setValue(20);
    const QString gear = workspace.Record(1).GearName;
    PresetEntry(workspace, "Real estate")->trigger();
    EXPECT_EQ(workspace.Record(1).OutputAOV, 90.0F);
    EXPECT_EQ(workspace.Record(1).RotateX, 0.0F);
    EXPECT_EQ(workspace.Slider("SliderX")->value(), 0);
    EXPECT_EQ(workspace.Record(1).GearName, gear);
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo preset"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).RotateX, 20.0F);
    SaveOwnPresets(workspace.store, {{Text("R&B"), {{preset::FileType, Text("PNG")}}}});
    PresetEntry(workspace, "R&&B")->trigger();
    EXPECT_EQ(workspace.state.settings.FileType, Text("PNG"));
    EXPECT_EQ(workspace.Record(1).RotateX, 20.0F);
    workspace.Click("CommandSaveFreeimage");
    EXPECT_EQ(workspace.chooser.proposed.filterIndex, 4);
    EXPECT_FALSE(workspace.Find("CmdShowInFolder")->isVisible());
    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("r")), 4};
    workspace.Click("CommandSaveFreeimage");
    workspace.Click("CmdShowInFolder");
    EXPECT_EQ(workspace.dialogs.shownInFolder, QStringList{workspace.files.Path(Text("r.PNG"))});
    PresetEntry(workspace, "&Save as preset...")->trigger();
    PresetEntry(workspace, "&Manage presets...")->trigger();
    workspace.dialogs.onBatch = [](BatchJob& job) {
        EXPECT_EQ(job.choices.type, OutputType::Png);
        EXPECT_TRUE(job.choices.pattern.isEmpty());
    };
    workspace.Click("CmdBatchProcess");
    EXPECT_EQ(workspace.dialogs.opened.join(u','),
              Text("FormSavePreset a.bmp,FormPresets,FormBatch"));
}

}  // namespace
}  // namespace varnel
