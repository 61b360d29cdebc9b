// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What leaves the main window: single pictures, the batch queue, and photos for the tools.

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "tests/support/loading.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

QString SaveCaption(TestWindow& workspace) {
    return workspace.Find<QGroupBox>("FrameSave")->title();
}

TEST(WindowOutput, SaveAsProposesConvertsAndKeepsTheRulesOfNames) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")});
    workspace.Click("OptionRemap_1");
    workspace.state.settings.FileType = Text("PNG");
    workspace.Click("CommandSaveFreeimage");  // cancelled
    EXPECT_EQ(workspace.chooser.proposed.name, workspace.files.Path(Text("a.Rectilinear")));
    EXPECT_EQ(workspace.chooser.proposed.filterIndex, 4);

    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("out.jpg")), 1};
    workspace.Click("CommandSaveFreeimage");
    EXPECT_EQ(FreeImage_GetFileType(workspace.files.Path(Text("out.jpg.TIF")).toLocal8Bit(), 0),
              FIF_TIFF);
    EXPECT_TRUE(workspace.Label("StatusText").contains(Text("out.jpg.TIF")));

    const QByteArray before = testing::Contents(workspace.files.Path(Text("out.jpg.TIF")));
    workspace.Slider("SliderX")->setValue(20);
    workspace.Click("CommandSaveFreeimage");  // not agreed to replace
    EXPECT_EQ(workspace.chooser.asked, QStringList{workspace.files.Path(Text("out.jpg.TIF"))});
    EXPECT_EQ(testing::Contents(workspace.files.Path(Text("out.jpg.TIF"))), before);

    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("a.bmp")), 3};
    workspace.chooser.agrees = true;
    const QByteArray photo = testing::Contents(workspace.files.Path(Text("a.bmp")));
    workspace.Click("CommandSaveFreeimage");
    EXPECT_EQ(testing::Contents(workspace.files.Path(Text("a.bmp"))), photo);
    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("no/such/folder")), 2};
    workspace.Click("CommandSaveFreeimage");
    EXPECT_EQ(workspace.notices.texts.size(), 2);
    EXPECT_TRUE(workspace.notices.texts.value(1).contains(Text("no/such/folder.JPG")));
}

TEST(WindowOutput, AnImpossibleSaveIsToldWithTheNumberAtFault) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")});
    workspace.Record(1).Ratio = 0.0F;
    workspace.Record(1).SettingsApplied = true;
    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("out")), 1};
    workspace.Click("CommandSaveFreeimage");
    EXPECT_EQ(workspace.notices.details.value(0), Text("Division by zero: Ratio is 0"));
    EXPECT_TRUE(testing::Contents(workspace.files.Path(Text("out.TIF"))).isEmpty());
    EXPECT_TRUE(workspace.Find("CommandSaveFreeimage")->isEnabled());
}

TEST(WindowOutput, DuringASaveNothingReachesThePictureAndACloseWaits) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")}, {900, 600});
    workspace.Click("OptionRemap_1");
    workspace.Slider("SliderX")->setValue(20);
    workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("out")), 3};
    bool tried = false;
    QTimer::singleShot(0, [&] {  // comes with the events that the save lets run
        tried = true;
        EXPECT_FALSE(workspace.Find("SliderX")->isEnabled());
        QTest::mouseDClick(workspace.Find("LabelRotate2"), Qt::LeftButton);
        workspace.Slider("SliderX")->setValue(-10);
        workspace.window.close();
    });
    workspace.Find("SliderX")->setFocus();
    workspace.Click("CommandSaveFreeimage");
    EXPECT_TRUE(tried);
    EXPECT_EQ(workspace.Record(1).RotateX, 20.0F);
    EXPECT_EQ(
        SizeOf(testing::LoadPicture(workspace.files.Path(Text("out.BMP"))).bitmap.get()).width,
        900);
    EXPECT_TRUE(workspace.Find("SliderX")->hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([&workspace] { return !workspace.window.isVisible(); }));
}

// While it is encoded and written, too, the window lives and the user may think better of it.
TEST(WindowOutput, ASaveCanBeCancelledUntilItsFileIsThere) {
    for (const bool whileWritten : {false, true}) {
        TestWindow workspace;
        workspace.AddPhotos({Text("a.bmp")}, {3000, 2000});
        workspace.chooser.answer = SaveChoice{workspace.files.Path(Text("out.PNG")), 4};
        workspace.chooser.agrees = true;
        testing::WriteFile(workspace.chooser.answer->name, "older");
        auto* const bar = workspace.Find<QProgressBar>("ImgProgressBar");
        auto* const cancel = workspace.Find<QPushButton>("CmdCancelSave");
        int turns = 0;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            // Nobody knows how long the writing takes.
            if (bar->isVisible() && (bar->maximum() == 0) == whileWritten && ++turns == 1) {
                EXPECT_FALSE(workspace.Find("CommandSaveFreeimage")->isEnabled());
                cancel->click();
            }
        });
        EXPECT_TRUE(cancel->isHidden());
        look.start(0);
        workspace.Click("CommandSaveFreeimage");
        look.stop();
        EXPECT_GE(turns, 1) << whileWritten;
        EXPECT_EQ(testing::Contents(workspace.chooser.answer->name), "older");
        EXPECT_EQ(workspace.Label("StatusText"), Text("Cancelled, nothing was saved"));
        EXPECT_TRUE(workspace.notices.texts.isEmpty());
        EXPECT_TRUE(cancel->isHidden());
        EXPECT_FALSE(bar->isVisible());
        workspace.Click("CommandSaveFreeimage");
        EXPECT_EQ(SizeOf(testing::LoadPicture(workspace.chooser.answer->name).bitmap.get()).width,
                  3000);
    }
}

TEST(WindowOutput, QueueingCountsAndKeepsCopies) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    workspace.Click("CommandAddToBatchQue");
    workspace.Click("CommandAddToBatchQue");
    EXPECT_EQ(SaveCaption(workspace), Text("Save / batch process 4"));
    EXPECT_TRUE(workspace.Find("CmdBatchProcess")->isVisible());
    EXPECT_EQ(workspace.state.BatchQueue(2).Width, 60);  // never clicked, yet ready
    EXPECT_EQ(workspace.state.BatchQueue(2).SensorWidth, workspace.Record(1).SensorWidth);
    workspace.Slider("SliderAOVinput")->setValue(99);
    EXPECT_NE(workspace.state.BatchQueue(1).InputAOV, 99.0F);
}

TEST(WindowOutput, TheBatchDialogOpensAndTheCaptionFollowsItsQueue) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    workspace.Click("CommandAddToBatchQue");
    int left = 1;
    workspace.dialogs.onQueue = [&](const QueueChanged& changed) { changed(left); };
    workspace.Click("CmdBatchProcess");
    EXPECT_EQ(workspace.dialogs.opened, QStringList{Text("FormBatch")});
    EXPECT_EQ(SaveCaption(workspace), Text("Save / batch process 1"));
    left = 0;  // cleared, or the run is over
    workspace.Click("CmdBatchProcess");
    EXPECT_EQ(SaveCaption(workspace), Text("Save"));
    EXPECT_TRUE(workspace.Find("CmdBatchProcess")->isVisible());
}

TEST(WindowOutput, TheMorphDialogGetsTheCurrentPhotoReadyForTheQueue) {
    TestWindow workspace;
    EXPECT_FALSE(workspace.Entry("CmdToolsMorph")->isEnabled());
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    workspace.ClickLine(1);
    workspace.Record(2).LensMapScale = workspace.Record(2).SensorWidth = 0.0F;  // has no gear yet
    workspace.dialogs.onQueue = [](const QueueChanged& changed) { changed(32); };
    workspace.Entry("CmdToolsMorph")->trigger();
    EXPECT_EQ(workspace.dialogs.opened, QStringList{Text("FormMorph")});
    EXPECT_EQ(workspace.dialogs.morphed.FileName, Text("b.bmp"));
    EXPECT_EQ(workspace.dialogs.morphed.Width, 60);
    EXPECT_EQ(workspace.dialogs.morphed.SensorWidth, workspace.Record(1).SensorWidth);
    EXPECT_EQ(SaveCaption(workspace), Text("Save / batch process 32"));
    EXPECT_TRUE(workspace.Find("CmdBatchProcess")->isVisible());
    workspace.Find<QListWidget>("ImageList1")->selectAll();
    workspace.Click("CmdRemoveImages");
    EXPECT_FALSE(workspace.Entry("CmdToolsMorph")->isEnabled());
}

TEST(WindowOutput, TheStretchDialogBeginsWithTheCurrentPhotoIfThereIsOne) {
    TestWindow workspace;
    workspace.Entry("CmdToolsStretch")->trigger();
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    workspace.ClickLine(1);
    workspace.Entry("CmdToolsStretch")->trigger();
    EXPECT_EQ(workspace.dialogs.stretched,
              (QStringList{QString(), workspace.files.Path(Text("b.bmp"))}));
}

}  // namespace
}  // namespace varnel
