// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The workspace without a window: nothing here links widgets.

#include "app/workspace/workspace.h"

#include <gtest/gtest.h>

#include "state/adjustments/gear_assignment.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;
using Lines = std::vector<int>;

// Writes down what it is shown.
class RecordingView : public WorkspaceView, public Notices {
  public:
    PixelSize PreviewBox() const override { return {30, 20}; }
    PixelSize PictureRoom() const override { return {30, 20}; }
    RenderProgress& Progress() override { return progress_; }
    void ShowSource(const Bitmap* bitmap) override {
        Add(bitmap == nullptr ? "no source" : "source");
    }
    void ShowResult(const Bitmap* bitmap) override {
        Add(bitmap == nullptr ? "no result" : "result");
    }
    void ShowError(const QString& /*text*/) override {}
    void ShowStatus(const QString& /*text*/) override {}
    void HandleEvents() override {}
    std::shared_ptr<void> Hourglass() override { return nullptr; }
    void Lock(bool /*on*/) override {}
    void LetCancel(std::function<void()> /*cancel*/) override {}
    void Tell(const QString& text, const QString& /*detail*/) override {
        Add(text.toUtf8().constData());
    }
    void Add(const char* text) { shown.append(Text(text)); }

    QStringList shown;

  private:
    SilentProgress progress_;
};

class WorkspaceTest : public ::testing::Test {
  protected:
    WorkspaceTest() {
        state.Gear.Resize(2);
        state.Gear(1) = state.Gear(2) = GearOf(testing::FisheyeRecord());
        for (const int n : {1, 2}) {
            state.Gear(n).hAOV = 180.0F;
            state.Gear(n).GearName = n == 1 ? Text("first") : Text("second");
        }
        model.gears.Refill();
        QObject::connect(&model.list, &ImageSelection::Refilled, [this] { view.Add("list"); });
        QObject::connect(&model, &WorkspaceModel::CurrentShown, [this] { view.Add("controls"); });
        QObject::connect(&model.list, &ImageSelection::Chosen,
                         [this](int line) { workspace.photo.ShowLine(line); });
        workspace.adder.AddFiles({files.Picture(Text("a.bmp"), OutputType::Bmp),
                                  files.Picture(Text("b.bmp"), OutputType::Bmp)});
    }

    testing::PictureFolder files;
    WorkingState state;
    RecordingView view;
    PhotoLoader loader{testing::Reader()};
    WorkspaceModel model{state};
    Workspace workspace{model, {loader, view, view}};
};

TEST_F(WorkspaceTest, AListIsShownBeforeItsPhotoAndItsPreview) {
    EXPECT_EQ(view.shown, (QStringList{Text("list"), Text("no result"), Text("controls"),
                                       Text("source"), Text("result")}));
    EXPECT_EQ(model.list.CurrentLine(), 0);
    EXPECT_EQ(model.gears.Name(), Text("first"));
}

TEST_F(WorkspaceTest, StoredControlsReachTheSelectedLinesAndAreUndone) {
    model.list.Select({0, 1});
    workspace.adjustments.ChooseProjection(Projection::Rectilinear);
    model.controls.Set(SliderId::Y, 20);
    workspace.adjustments.StoreControls(true);
    EXPECT_EQ(state.Images(2).RotateY, 20.0F);
    EXPECT_EQ(model.steps.UndoName(), Text("rotate left/right"));
    workspace.list.Undo();
    EXPECT_EQ(state.Images(2).RotateY, 0.0F);
    EXPECT_EQ(model.controls.Values().rotateY, 0);
    EXPECT_EQ(model.controls.ChosenProjection(), Projection::Rectilinear);
    workspace.list.Undo();
    EXPECT_EQ(model.controls.ChosenProjection(), Projection::Varnel);
}

TEST_F(WorkspaceTest, TheChosenGearGoesToTheSelectedPhotosAndBackWithThem) {
    model.list.Choose(1);
    model.list.Select({1});
    model.gears.Choose(2);
    workspace.gears.GiveChosen();
    EXPECT_EQ(state.Images(1).GearName, Text("first"));
    EXPECT_EQ(state.Images(2).GearName, Text("second"));
    workspace.list.Undo();
    EXPECT_EQ(model.gears.Name(), Text("first"));
    model.gears.Show(Text("not in the table"));
    EXPECT_EQ(model.gears.Number(), 0);
    EXPECT_EQ(model.gears.Name(), QString());
}

TEST_F(WorkspaceTest, CurrentAndSelectedLinesMoveWithTheirPhotos) {
    workspace.list.MoveSelected(2);
    EXPECT_EQ(state.Images(2).FileName, Text("a.bmp"));
    EXPECT_EQ(model.list.CurrentLine(), 1);
    EXPECT_EQ(model.list.SelectedLines(), Lines{1});
    model.list.Rearrange(0, {1});  // the current line is selected with the others
    EXPECT_EQ(model.list.SelectedLines(), (Lines{0, 1}));
    workspace.list.RemoveSelected();
    EXPECT_EQ(model.list.CurrentLine(), -1);
    EXPECT_EQ(model.list.Current(), nullptr);
    EXPECT_TRUE(model.list.SelectedLines().empty());
    EXPECT_TRUE(model.list.CurrentPath().isEmpty());
}

TEST(ControlModel, HoldsARecordsOwnNumbersAndStoresOnlyWhatWasChanged) {
    ControlModel controls;
    EXPECT_EQ(controls.Values().outputAov, 70);
    ControlValues values = controls.Values();
    values.projection = static_cast<int>(Projection::Horizon);
    values.rotateX = -97.25;
    values.effect.reset();
    controls.Set(SliderId::Effect, 60);
    controls.Show(values);
    EXPECT_EQ(controls.Values().effect, 60);
    EXPECT_EQ(controls.Values().rotateX, -97.25);
    EXPECT_EQ(controls.ChosenProjection(), Projection::Horizon);
    controls.Set(SliderId::Y, 500);
    controls.Set(SliderId::Z, 0.25);
    ImageRecord other;
    other.RotateX = 3.5F;
    controls.StoreInto(other);
    EXPECT_EQ(other.RotateX, 3.5F);
    EXPECT_EQ(other.RotateY, 180.0F);
    EXPECT_EQ(other.RotateZ, 0.25F);
}

}  // namespace
}  // namespace varnel
