// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Ten photos of several types and shapes on the real window: settings copied to some, a preset for
// another, one batch for all, and the work goes on meanwhile.

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTimer>

#include "pipeline/dialogs/form_batch.h"
#include "tests/support/screenshots.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

class TenPhotos : public ::testing::Test {
  protected:
    TenPhotos() {
        QStringList paths;
        const struct {
            const char* name;
            OutputType type;
            PixelSize size;
        } photos[] = {
            {"a.jpg", OutputType::Jpeg, {600, 400}}, {"b.jpg", OutputType::Jpeg, {600, 400}},
            {"c.jpg", OutputType::Jpeg, {600, 400}}, {"d.jpeg", OutputType::Jpeg, {300, 301}},
            {"e.png", OutputType::Png, {300, 200}},  {"f.tif", OutputType::Tiff, {200, 300}},
            {"g.bmp", OutputType::Bmp, {600, 400}},  {"h.png", OutputType::Png, {400, 400}},
            {"i.jpg", OutputType::Jpeg, {60, 40}},   {"j.tiff", OutputType::Tiff, {301, 300}}};
        for (const auto& [name, type, size] : photos) {
            paths.append(workspace.files.Picture(Text(name), type, size));
        }
        workspace.window.AddFiles(paths);
        workspace.dialogs.onBatch = [this](BatchJob& job) { job_ = &job; };
        workspace.dialogs.onQueue = [this](const QueueChanged& changed) {
            FormBatch form(workspace.state.BatchQueue, *job_, workspace.state.settings,
                           workspace.notices, changed, &workspace.window);
            QTimer::singleShot(0, &form, [&] { inDialog(form); });
            form.exec();
        };
    }

    void Adjust() {
        workspace.Click("OptionRemap_1");
        workspace.Slider("SliderY")->setValue(10);
        workspace.Entry("CmdEditCopySettings")->trigger();
        workspace.ClickLine(1);
        workspace.ClickLine(3, Qt::ShiftModifier);
        workspace.Entry("CmdEditPasteSettings")->trigger();
        workspace.ClickLine(8);
        for (QAction* const entry :
             workspace.window.findChild<QMenu*>(Text("MenuPresets"))->actions()) {
            if (entry->text() == Text("Group photo")) {
                entry->trigger();
            }
        }
        workspace.Click("CommandAddToBatchQue");
    }
    // Starts the run and leaves the dialog while it is paused.
    void StartAndLeave(FormBatch& form) {
        form.findChild<QComboBox*>(Text("ComboFileType"))->setCurrentText(Text("PNG"));
        form.findChild<QLineEdit*>(Text("TextNamePattern"))->setText(Text("{n}-{name}{tags}"));
        form.findChild<QAbstractButton*>(Text("NextToPhotoCheck"))->click();
        testing::KeepPicture(&form, "batch-ten.png");
        connections.append(QObject::connect(job_, &BatchJob::Named, &form, [&form, this] {
            if (job_->Done() == 3) {
                testing::KeepPicture(&form, "batch-ten-run.png");
                job_->Pause(true);
                form.findChild<QAbstractButton*>(Text("CmdBackground"))->click();
            }
        }));
        form.findChild<QAbstractButton*>(Text("CmdBatchProcess"))->click();
    }
    QString Caption() { return workspace.Find<QGroupBox>("FrameSave")->title(); }

    TestWindow workspace;
    BatchJob* job_ = nullptr;
    std::function<void(FormBatch&)> inDialog;
    QList<QMetaObject::Connection> connections;
};

TEST_F(TenPhotos, AreAdjustedAndBatchedWhileTheWorkGoesOn) {
    Adjust();
    EXPECT_EQ(Caption(), Text("Save / batch process 10"));
    inDialog = [this](FormBatch& form) { StartAndLeave(form); };
    workspace.Click("CmdBatchProcess");
    ASSERT_TRUE(job_->IsRunning());
    EXPECT_TRUE(workspace.Find("BatchRow")->isVisible());
    EXPECT_EQ(workspace.Label("LabelBatch"), Text("Batch: 3 of 10 images"));
    EXPECT_EQ(Caption(), Text("Save"));
    workspace.ClickLine(0);
    workspace.Slider("SliderY")->setValue(-30);  // does not reach the run
    workspace.Click("CommandAddToBatchQue");
    testing::KeepPicture(&workspace.window, "batch-ten-meanwhile.png");
    workspace.Click("CmdBatchPause");
    EXPECT_TRUE(QTest::qWaitFor([this] { return !job_->IsRunning(); }, 30000));
    EXPECT_FALSE(workspace.Find("BatchRow")->isVisible());
    EXPECT_EQ(Caption(), Text("Save / batch process 10")) << "what was added meanwhile";
    EXPECT_EQ(QDir(workspace.files.Path({})).entryList({Text("*-*.PNG")}, QDir::Files).join(u' '),
              Text("01-a_hAOV130_LR10.PNG 02-b_hAOV130_LR10.PNG 03-c_hAOV130_LR10.PNG "
                   "04-d_hAOV130_LR10.PNG 05-e.PNG 06-f.PNG 07-g.PNG 08-h.PNG "
                   "09-i_hAOV075_Eff080.PNG 10-j.PNG"));
    EXPECT_TRUE(workspace.notices.texts.isEmpty());
    workspace.Click("CmdShowInFolder");
    EXPECT_TRUE(workspace.dialogs.shownInFolder.value(0).endsWith(Text("/10-j.PNG")));
}

TEST_F(TenPhotos, ClosingAsksOnceAndFinishesTheImageAtHand) {
    Adjust();
    inDialog = [this](FormBatch& form) { StartAndLeave(form); };
    workspace.Click("CmdBatchProcess");
    ASSERT_TRUE(job_->IsRunning());
    workspace.dialogs.saveFirst = SaveFirst::Cancel;
    workspace.window.close();
    EXPECT_TRUE(workspace.window.isVisible());
    EXPECT_EQ(workspace.dialogs.unsaved.queued, 7);
    workspace.dialogs.opened.clear();
    workspace.dialogs.saveFirst = SaveFirst::DoNotSave;
    workspace.window.close();
    EXPECT_TRUE(QTest::qWaitFor([this] { return !workspace.window.isVisible(); }, 30000));
    EXPECT_FALSE(job_->IsRunning());
    EXPECT_EQ(job_->Summary().done, 4);
    EXPECT_EQ(workspace.dialogs.opened.size(), 1);
}

}  // namespace
}  // namespace varnel
