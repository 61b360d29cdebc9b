// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What leaves the main window: single pictures, the batch queue, and photos for the tools.

#include <gtest/gtest.h>

#include <QGroupBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "tests/support/loading.h"
#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

QString SaveCaption(WindowDesk& desk) {
    return desk.Find<QGroupBox>("FrameSave")->title();
}

TEST(WindowOutput, SaveAsProposesConvertsAndKeepsTheRulesOfNames) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")});
    desk.Click("OptionRemap_1");
    desk.state.settings.FileType = Text("PNG");
    desk.Click("CommandSaveFreeimage");  // cancelled
    EXPECT_EQ(desk.chooser.proposed.name, desk.files.Path(Text("a.Rectilinear")));
    EXPECT_EQ(desk.chooser.proposed.filterIndex, 4);

    desk.chooser.answer = SaveChoice{desk.files.Path(Text("out.jpg")), 1};
    desk.Click("CommandSaveFreeimage");
    EXPECT_EQ(FreeImage_GetFileType(desk.files.Path(Text("out.jpg.TIF")).toLocal8Bit(), 0),
              FIF_TIFF);
    EXPECT_TRUE(desk.Label("StatusText").contains(Text("out.jpg.TIF")));

    const QByteArray before = testing::Contents(desk.files.Path(Text("out.jpg.TIF")));
    desk.Slider("SliderX")->setValue(20);
    desk.Click("CommandSaveFreeimage");  // not agreed to replace
    EXPECT_EQ(desk.chooser.asked, QStringList{desk.files.Path(Text("out.jpg.TIF"))});
    EXPECT_EQ(testing::Contents(desk.files.Path(Text("out.jpg.TIF"))), before);

    desk.chooser.answer = SaveChoice{desk.files.Path(Text("a.bmp")), 3};
    desk.chooser.agrees = true;
    const QByteArray photo = testing::Contents(desk.files.Path(Text("a.bmp")));
    desk.Click("CommandSaveFreeimage");
    EXPECT_EQ(testing::Contents(desk.files.Path(Text("a.bmp"))), photo);
    desk.chooser.answer = SaveChoice{desk.files.Path(Text("no/such/folder")), 2};
    desk.Click("CommandSaveFreeimage");
    EXPECT_EQ(desk.notices.texts.size(), 2);
    EXPECT_TRUE(desk.notices.texts.value(1).contains(Text("no/such/folder.JPG")));
}

TEST(WindowOutput, AnImpossibleSaveIsToldWithTheNumberAtFault) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")});
    desk.Record(1).Ratio = 0.0F;
    desk.Record(1).SettingsApplied = true;
    desk.chooser.answer = SaveChoice{desk.files.Path(Text("out")), 1};
    desk.Click("CommandSaveFreeimage");
    EXPECT_EQ(desk.notices.details.value(0), Text("Division by zero: Ratio is 0"));
    EXPECT_TRUE(testing::Contents(desk.files.Path(Text("out.TIF"))).isEmpty());
    EXPECT_TRUE(desk.Find("CommandSaveFreeimage")->isEnabled());
}

TEST(WindowOutput, DuringASaveNothingReachesThePictureAndACloseWaits) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")}, {900, 600});
    desk.Click("OptionRemap_1");
    desk.Slider("SliderX")->setValue(20);
    desk.chooser.answer = SaveChoice{desk.files.Path(Text("out")), 3};
    bool tried = false;
    QTimer::singleShot(0, [&] {  // comes with the events that the save lets run
        tried = true;
        EXPECT_FALSE(desk.Find("SliderX")->isEnabled());
        QTest::mouseDClick(desk.Find("LabelRotate2"), Qt::LeftButton);
        desk.Slider("SliderX")->setValue(-10);
        desk.window.close();
    });
    desk.Find("SliderX")->setFocus();
    desk.Click("CommandSaveFreeimage");
    EXPECT_TRUE(tried);
    EXPECT_EQ(desk.Record(1).RotateX, 20.0F);
    EXPECT_EQ(SizeOf(testing::LoadPicture(desk.files.Path(Text("out.BMP"))).bitmap.get()).width,
              900);
    EXPECT_TRUE(desk.Find("SliderX")->hasFocus());
    EXPECT_TRUE(QTest::qWaitFor([&desk] { return !desk.window.isVisible(); }));
}

// While it is encoded and written, too, the window lives and the user may think better of it.
TEST(WindowOutput, ASaveCanBeCancelledUntilItsFileIsThere) {
    for (const bool whileWritten : {false, true}) {
        WindowDesk desk;
        desk.AddPhotos({Text("a.bmp")}, {3000, 2000});
        desk.chooser.answer = SaveChoice{desk.files.Path(Text("out.PNG")), 4};
        desk.chooser.agrees = true;
        testing::WriteFile(desk.chooser.answer->name, "older");
        auto* const bar = desk.Find<QProgressBar>("ImgProgressBar");
        auto* const cancel = desk.Find<QPushButton>("CmdCancelSave");
        int turns = 0;
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, [&] {
            // Nobody knows how long the writing takes.
            if (bar->isVisible() && (bar->maximum() == 0) == whileWritten && ++turns == 1) {
                EXPECT_FALSE(desk.Find("CommandSaveFreeimage")->isEnabled());
                cancel->click();
            }
        });
        EXPECT_TRUE(cancel->isHidden());
        look.start(0);
        desk.Click("CommandSaveFreeimage");
        look.stop();
        EXPECT_GE(turns, 1) << whileWritten;
        EXPECT_EQ(testing::Contents(desk.chooser.answer->name), "older");
        EXPECT_EQ(desk.Label("StatusText"), Text("Cancelled, nothing was saved"));
        EXPECT_TRUE(desk.notices.texts.isEmpty());
        EXPECT_TRUE(cancel->isHidden());
        EXPECT_FALSE(bar->isVisible());
        desk.Click("CommandSaveFreeimage");
        EXPECT_EQ(SizeOf(testing::LoadPicture(desk.chooser.answer->name).bitmap.get()).width, 3000);
    }
}

TEST(WindowOutput, QueueingCountsAndKeepsCopies) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    desk.Click("CommandAddToBatchQue");
    desk.Click("CommandAddToBatchQue");
    EXPECT_EQ(SaveCaption(desk), Text("Save / batch process 4"));
    EXPECT_TRUE(desk.Find("CmdBatchProcess")->isVisible());
    EXPECT_EQ(desk.state.BatchQueue(2).Width, 60);  // never clicked, yet ready
    EXPECT_EQ(desk.state.BatchQueue(2).SensorWidth, desk.Record(1).SensorWidth);
    desk.Slider("SliderAOVinput")->setValue(99);
    EXPECT_NE(desk.state.BatchQueue(1).InputAOV, 99.0F);
}

TEST(WindowOutput, TheBatchDialogOpensAndTheCaptionFollowsItsQueue) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    desk.Click("CommandAddToBatchQue");
    int left = 1;
    desk.dialogs.onQueue = [&](const QueueChanged& changed) { changed(left); };
    desk.Click("CmdBatchProcess");
    EXPECT_EQ(desk.dialogs.opened, QStringList{Text("FormBatch")});
    EXPECT_EQ(SaveCaption(desk), Text("Save / batch process 1"));
    left = 0;  // cleared, or the run is over
    desk.Click("CmdBatchProcess");
    EXPECT_EQ(SaveCaption(desk), Text("Save"));
    EXPECT_TRUE(desk.Find("CmdBatchProcess")->isVisible());
}

TEST(WindowOutput, TheMorphDialogGetsTheCurrentPhotoReadyForTheQueue) {
    WindowDesk desk;
    EXPECT_FALSE(desk.Entry("CmdToolsMorph")->isEnabled());
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    desk.ClickLine(1);
    desk.Record(2).LensMapScale = desk.Record(2).SensorWidth = 0.0F;  // has no gear yet
    desk.dialogs.onQueue = [](const QueueChanged& changed) { changed(32); };
    desk.Entry("CmdToolsMorph")->trigger();
    EXPECT_EQ(desk.dialogs.opened, QStringList{Text("FormMorph")});
    EXPECT_EQ(desk.dialogs.morphed.FileName, Text("b.bmp"));
    EXPECT_EQ(desk.dialogs.morphed.Width, 60);
    EXPECT_EQ(desk.dialogs.morphed.SensorWidth, desk.Record(1).SensorWidth);
    EXPECT_EQ(SaveCaption(desk), Text("Save / batch process 32"));
    EXPECT_TRUE(desk.Find("CmdBatchProcess")->isVisible());
    desk.Find<QListWidget>("ImageList1")->selectAll();
    desk.Click("CmdRemoveImages");
    EXPECT_FALSE(desk.Entry("CmdToolsMorph")->isEnabled());
}

TEST(WindowOutput, TheStretchDialogBeginsWithTheCurrentPhotoIfThereIsOne) {
    WindowDesk desk;
    desk.Entry("CmdToolsStretch")->trigger();
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    desk.ClickLine(1);
    desk.Entry("CmdToolsStretch")->trigger();
    EXPECT_EQ(desk.dialogs.stretched, (QStringList{QString(), desk.files.Path(Text("b.bmp"))}));
}

}  // namespace
}  // namespace varnel
