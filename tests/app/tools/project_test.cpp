// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Project files as they are used on the window.

#include <gtest/gtest.h>

#include <QFile>
#include <QMenu>

#include "pipeline/photos/project_file.h"
#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

// A window with one adjusted photo, saved as a project.
struct SavedDesk : WindowDesk {
    SavedDesk() {
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
    SavedDesk desk;
    EXPECT_EQ(desk.window.windowTitle(), Text("a.bmp - trip - Varnel"));
    const ImageRecord saved = desk.Record(1);
    desk.Slider("SliderY")->setValue(30);
    desk.Entry("CmdSaveProject")->trigger();  // to the same file
    desk.Slider("SliderY")->setValue(-20);
    desk.Entry("CmdSaveProject")->trigger();
    WindowDesk other;
    other.window.AddFiles({other.files.Picture(Text("c.bmp"), FIF_BMP), desk.path});
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
    SavedDesk desk;
    desk.ClickLine(1);  // gets its size and gear: no change
    desk.dialogs.project = desk.path;
    desk.Entry("CmdOpenProject")->trigger();
    EXPECT_TRUE(desk.dialogs.opened.isEmpty());
    const struct {
        SaveFirst answer;
        float left;  // what is there afterwards
    } rows[] = {
        {SaveFirst::Cancel, 10.0F}, {SaveFirst::DoNotSave, -20.0F}, {SaveFirst::Save, 10.0F}};
    for (const auto& row : rows) {
        desk.Slider("SliderY")->setValue(10);
        desk.dialogs.opened.clear();
        desk.dialogs.saveFirst = row.answer;
        desk.window.AddFiles({desk.path});
        EXPECT_EQ(desk.dialogs.opened, QStringList{Text("AskToSave trip.varnel")});
        EXPECT_EQ(desk.Record(1).RotateY, row.left);
    }
    EXPECT_EQ(OpenProject(desk.path).images(1).RotateY, 10.0F);
}

TEST(Project, ADamagedOneChangesNothingAndMissingPhotosAreNamedAndKept) {
    SavedDesk desk;
    const ImageRecord before = desk.Record(1);
    QFile::copy(desk.path, desk.files.Path(Text("keep")));
    desk.files.Cut(Text("cut.varnel"), desk.path, 60);
    desk.window.AddFiles({desk.files.Path(Text("cut.varnel"))});
    ASSERT_EQ(desk.notices.texts.size(), 1);
    EXPECT_TRUE(desk.notices.texts[0].contains(Text("cut.varnel")));
    EXPECT_TRUE(desk.notices.details[0].contains(Text("damaged")));
    EXPECT_EQ(desk.Record(1), before);
    EXPECT_EQ(desk.window.windowTitle(), Text("a.bmp - trip - Varnel"));
    QFile::remove(desk.files.Path(Text("a.bmp")));
    desk.window.AddFiles({desk.path});
    EXPECT_EQ(desk.notices.details.value(1), desk.files.Path(Text("a.bmp")));
    EXPECT_EQ(desk.notices.texts.size(), 2);
    EXPECT_EQ(desk.Record(1), before);
    EXPECT_EQ(desk.Find<QListWidget>("ImageList1")->currentRow(), 1);
}

void Adjust(WindowDesk& desk) {
    desk.Slider("SliderAOVinput")->setValue(99);
}

// Work of some kind on two photos of which both were looked at, and what closing asks about.
struct Work {
    const char* name;
    std::function<void(WindowDesk&)> act;
    int photos, queued;
};

std::vector<Work> Works() {
    const auto queue = [](WindowDesk& desk) { desk.Click("CommandAddToBatchQue"); };
    const auto saveFirst = [](WindowDesk& desk) {
        desk.ClickLine(0);
        Adjust(desk);
        desk.chooser.answer = SaveChoice{desk.files.Path(Text("out")), 3};
        desk.Click("CommandSaveFreeimage");
    };
    const auto convert = [queue](WindowDesk& desk) {
        Adjust(desk);
        queue(desk);
        desk.dialogs.onBatch = [&](const PictureWritten& written) {
            written(desk.state.BatchQueue(2), Text("/out/b"));
            desk.state.BatchQueue.Clear();
        };
        desk.Click("CmdBatchProcess");
    };
    const auto bothOnce = [](WindowDesk& desk) {
        desk.Find<QListWidget>("ImageList1")->selectAll();
        Adjust(desk);
    };
    return {
        {"looking", [](WindowDesk&) {}, 0, 0},
        {"a preview", [](WindowDesk& desk) { desk.Click("CmdFreeImage"); }, 0, 0},
        {"an adjustment", Adjust, 1, 0},
        {"adjustments of both", bothOnce, 2, 0},
        {"a gear for all", [](WindowDesk& desk) { desk.Click("CmdApplyAll"); }, 0, 0},
        {"an adjustment taken back",
         [](WindowDesk& desk) {
             Adjust(desk);
             desk.Entry("CmdEditUndo")->trigger();
         },
         0, 0},
        {"a saved picture", saveFirst, 0, 0},
        {"a saved picture and more",
         [saveFirst](WindowDesk& desk) {
             saveFirst(desk);
             desk.Slider("SliderAOVinput")->setValue(120);
         },
         1, 0},
        {"a queue", queue, 0, 2},
        {"a queue that was converted", convert, 0, 0},
    };
}

TEST(Project, ClosingAsksOnceForWorkThatIsInNoFile) {
    for (const Work& work : Works()) {
        WindowDesk desk;
        desk.AddPhotos({Text("a[*].bmp"), Text("b.bmp")});
        desk.ClickLine(1);
        work.act(desk);
        const bool asks = work.photos + work.queued > 0;
        EXPECT_EQ(desk.window.isWindowModified(), work.photos > 0) << work.name;
        EXPECT_EQ(desk.window.windowTitle().contains(Text("bmp[*] - Varnel")), work.photos > 0)
            << desk.window.windowTitle().toStdString();
        EXPECT_EQ(desk.window.close(), !asks) << work.name;
        EXPECT_EQ(desk.dialogs.opened.filter(Text("AskToSave")).size(), asks ? 1 : 0) << work.name;
        EXPECT_EQ(desk.dialogs.unsaved.photos, work.photos) << work.name;
        EXPECT_EQ(desk.dialogs.unsaved.queued, work.queued) << work.name;
        desk.dialogs.saveFirst = SaveFirst::DoNotSave;
        EXPECT_TRUE(!asks || desk.window.close()) << work.name;
    }
}

TEST(Project, IsNotLostByClosingTheWindow) {
    SavedDesk desk;
    desk.Slider("SliderY")->setValue(30);
    desk.dialogs.saveFirst = SaveFirst::Cancel;
    EXPECT_FALSE(desk.window.close());
    EXPECT_EQ(desk.dialogs.opened, QStringList{Text("AskToSave trip.varnel")});
    desk.dialogs.saveFirst = SaveFirst::Save;
    EXPECT_TRUE(desk.window.close());
    EXPECT_EQ(OpenProject(desk.path).images(1).RotateY, 30.0F);
}

}  // namespace
}  // namespace varnel
