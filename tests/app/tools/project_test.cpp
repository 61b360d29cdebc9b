// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Project files as they are used on the window.

#include <gtest/gtest.h>

#include <QFile>
#include <QMenu>

#include "pipeline/photos/project_file.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

// A window with one adjusted photo, saved as a project.
struct SavedWorkspace : TestWindow {
    SavedWorkspace() {
        AddPhotos({Text("a.bmp"), Text("b.bmp")});
        Click("OptionRemap_1");
        Slider("SliderY")->setValue(-20);
        dialogs.project = files.Path(Text("trip"));
        Entry("CmdSaveProject")->trigger();
        path = files.Path(Text("trip.varnel"));
    }
    QString path;
};

TEST(Project, ComesBackWithEverySettingAndShowsItsName) {
    SavedWorkspace workspace;
    EXPECT_EQ(workspace.window.windowTitle(), Text("a.bmp - trip - Varnel"));
    const ImageRecord saved = workspace.Record(1);
    workspace.Slider("SliderY")->setValue(30);
    workspace.Entry("CmdSaveProject")->trigger();  // to the same file
    workspace.Slider("SliderY")->setValue(-20);
    workspace.Entry("CmdSaveProject")->trigger();
    TestWindow other;
    other.window.AddFiles({other.files.Picture(Text("c.bmp"), OutputType::Bmp), workspace.path});
    EXPECT_EQ(other.dialogs.opened, QStringList());
    ASSERT_EQ(other.state.Images.UpperBound(), 3);
    EXPECT_EQ(other.Record(1), saved);
    EXPECT_EQ(other.Entry("CmdEditUndo")->text(), Text("&Undo add images"));
    other.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(other.Slider("SliderY")->value(), -20);
    EXPECT_EQ(other.window.windowTitle(), Text("a.bmp - trip - Varnel"));
    auto* const recent = other.window.findChild<QMenu*>(Text("MenuRecentProjects"));
    Q_EMIT qobject_cast<QMenu*>(recent->parent())->aboutToShow();
    EXPECT_EQ(recent->actions().value(0)->text(), Text("trip.varnel"));
    other.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(other.window.windowTitle(), Text("Varnel"));
    EXPECT_EQ(other.notices.texts, QStringList());
}

TEST(Project, AsksOnlyWhenTheListWasChangedSinceItWasSaved) {
    SavedWorkspace workspace;
    workspace.ClickLine(1);  // gets its size and gear: no change
    workspace.dialogs.project = workspace.path;
    workspace.Entry("CmdOpenProject")->trigger();
    EXPECT_TRUE(workspace.dialogs.opened.isEmpty());
    const struct {
        SaveFirst answer;
        float left;  // what is there afterwards
    } rows[] = {
        {SaveFirst::Cancel, 10.0F}, {SaveFirst::DoNotSave, -20.0F}, {SaveFirst::Save, 10.0F}};
    for (const auto& row : rows) {
        workspace.Slider("SliderY")->setValue(10);
        workspace.dialogs.opened.clear();
        workspace.dialogs.saveFirst = row.answer;
        workspace.window.AddFiles({workspace.path});
        EXPECT_EQ(workspace.dialogs.opened, QStringList{Text("AskToSave trip.varnel")});
        EXPECT_EQ(workspace.Record(1).RotateY, row.left);
    }
    EXPECT_EQ(OpenProject(workspace.path).images(1).RotateY, 10.0F);
}

TEST(Project, ADamagedOneChangesNothingAndMissingPhotosAreNamedAndKept) {
    SavedWorkspace workspace;
    const ImageRecord before = workspace.Record(1);
    QFile::copy(workspace.path, workspace.files.Path(Text("keep")));
    workspace.files.Cut(Text("cut.varnel"), workspace.path, 60);
    workspace.window.AddFiles({workspace.files.Path(Text("cut.varnel"))});
    ASSERT_EQ(workspace.notices.texts.size(), 1);
    EXPECT_TRUE(workspace.notices.texts[0].contains(Text("cut.varnel")));
    EXPECT_TRUE(workspace.notices.details[0].contains(Text("damaged")));
    EXPECT_EQ(workspace.Record(1), before);
    EXPECT_EQ(workspace.window.windowTitle(), Text("a.bmp - trip - Varnel"));
    QFile::remove(workspace.files.Path(Text("a.bmp")));
    workspace.window.AddFiles({workspace.path});
    EXPECT_EQ(workspace.notices.details.value(1), workspace.files.Path(Text("a.bmp")));
    EXPECT_EQ(workspace.notices.texts.size(), 2);
    EXPECT_EQ(workspace.Record(1), before);
    EXPECT_EQ(workspace.Find<QListWidget>("ImageList1")->currentRow(), 1);
}

void Adjust(TestWindow& workspace) {
    workspace.Slider("SliderAOVinput")->setValue(99);
}

// Work of some kind on two photos of which both were looked at, and what closing asks about.
struct Work {
    const char* name;
    std::function<void(TestWindow&)> act;
    int photos, queued;
};

std::vector<Work> Works() {
    const auto queue = [](TestWindow& workspace) { workspace.Click("CommandAddToBatchQue"); };
    const auto saveFirst = [](TestWindow& workspace) {
        workspace.ClickLine(0);
        Adjust(workspace);
        workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("out")), 3};
        workspace.Click("CommandSaveFreeimage");
    };
    const auto convert = [queue](TestWindow& workspace) {
        Adjust(workspace);
        queue(workspace);
        workspace.dialogs.onBatch = [&](BatchJob& job) {
            Q_EMIT job.Written(workspace.state.BatchQueue(2), Text("/out/b"));
            workspace.state.BatchQueue.Clear();
        };
        workspace.Click("CmdBatchProcess");
    };
    const auto bothOnce = [](TestWindow& workspace) {
        workspace.Find<QListWidget>("ImageList1")->selectAll();
        Adjust(workspace);
    };
    return {
        {"looking", [](TestWindow&) {}, 0, 0},
        {"a preview", [](TestWindow& workspace) { workspace.Click("CmdFreeImage"); }, 0, 0},
        {"an adjustment", Adjust, 1, 0},
        {"adjustments of both", bothOnce, 2, 0},
        {"a gear for all", [](TestWindow& workspace) { workspace.Click("CmdApplyAll"); }, 0, 0},
        {"an adjustment taken back",
         [](TestWindow& workspace) {
             Adjust(workspace);
             workspace.Entry("CmdEditUndo")->trigger();
         },
         0, 0},
        {"a saved picture", saveFirst, 0, 0},
        {"a saved picture and more",
         [saveFirst](TestWindow& workspace) {
             saveFirst(workspace);
             workspace.Slider("SliderAOVinput")->setValue(120);
         },
         1, 0},
        {"a queue", queue, 0, 2},
        {"a queue that was converted", convert, 0, 0},
    };
}

TEST(Project, ClosingAsksOnceForWorkThatIsInNoFile) {
    for (const Work& work : Works()) {
        TestWindow workspace;
        workspace.AddPhotos({Text("a[*].bmp"), Text("b.bmp")});
        workspace.ClickLine(1);
        work.act(workspace);
        const bool asks = work.photos + work.queued > 0;
        EXPECT_EQ(workspace.window.isWindowModified(), work.photos > 0) << work.name;
        EXPECT_EQ(workspace.window.windowTitle().contains(Text("bmp[*] - Varnel")), work.photos > 0)
            << workspace.window.windowTitle().toStdString();
        EXPECT_EQ(workspace.window.close(), !asks) << work.name;
        EXPECT_EQ(workspace.dialogs.opened.filter(Text("AskToSave")).size(), asks ? 1 : 0)
            << work.name;
        EXPECT_EQ(workspace.dialogs.unsaved.photos, work.photos) << work.name;
        EXPECT_EQ(workspace.dialogs.unsaved.queued, work.queued) << work.name;
        workspace.dialogs.saveFirst = SaveFirst::DoNotSave;
        EXPECT_TRUE(!asks || workspace.window.close()) << work.name;
    }
}

TEST(Project, IsNotLostByClosingTheWindow) {
    SavedWorkspace workspace;
    workspace.Slider("SliderY")->setValue(30);
    workspace.dialogs.saveFirst = SaveFirst::Cancel;
    EXPECT_FALSE(workspace.window.close());
    EXPECT_EQ(workspace.dialogs.opened, QStringList{Text("AskToSave trip.varnel")});
    workspace.dialogs.saveFirst = SaveFirst::Save;
    EXPECT_TRUE(workspace.window.close());
    EXPECT_EQ(OpenProject(workspace.path).images(1).RotateY, 30.0F);
}

}  // namespace
}  // namespace varnel
