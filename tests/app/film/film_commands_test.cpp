// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films in the workspace without a window.

#include "app/workspace/film/film_commands.h"

#include <gtest/gtest.h>

#include <QTest>

#include "state/adjustments/gear_assignment.h"
#include "tests/app/film/fake_film.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class QuietView : public WorkspaceView, public Notices {
  public:
    PixelSize PreviewBox() const override { return {30, 20}; }
    PixelSize PictureRoom() const override { return {30, 20}; }
    RenderProgress& Progress() override { return progress_; }
    void ShowSource(const Bitmap* /*bitmap*/) override {}
    void ShowResult(const Bitmap* /*bitmap*/) override {}
    void ShowError(const QString& /*text*/) override {}
    void ShowStatus(const QString& /*text*/) override {}
    void HandleEvents() override {}
    std::shared_ptr<void> Hourglass() override { return nullptr; }
    void Lock(bool /*on*/) override {}
    void LetCancel(std::function<void()> /*cancel*/) override {}
    void Tell(const QString& /*text*/, const QString& /*detail*/) override {}

  private:
    SilentProgress progress_;
};

class FilmCommandsTest : public ::testing::Test {
  protected:
    FilmCommandsTest() {
        state.Gear.Resize(1);
        state.Gear(1) = GearOf(testing::FisheyeRecord());
        state.Gear(1).hAOV = 180.0F;
        state.Gear(1).GearName = Text("gear");
        model.gears.Refill();
        QObject::connect(&model.list, &ImageSelection::Chosen,
                         [this](int line) { workspace.photo.ShowLine(line); });
        workspace.adder.AddFiles({files.Picture(Text("film.bmp"), OutputType::Bmp),
                                  files.Picture(Text("photo.bmp"), OutputType::Bmp)});
        model.list.Select({0});
        workspace.adjustments.ChooseProjection(Projection::Rectilinear);
        Settle();
    }
    void Settle() {
        QTest::qWait(10);
        ASSERT_TRUE(QTest::qWaitFor([this] { return films.Player().IsThere(); }));
        QTest::qWait(10);
    }
    void GoTo(double seconds) {
        films.GoTo(seconds);
        Settle();
    }
    void Slide(SliderId slider, double value) {
        model.controls.Set(slider, value);
        workspace.adjustments.StoreControls(true);
        Settle();
    }
    void Undo() {
        workspace.list.Undo();
        Settle();
    }
    ImageRecord& Film() { return state.Images(1); }
    const FilmKeys& Keys() { return Film().Film->keys; }
    int Shown() const { return ScanLine(state.bitmaps.FullSourceBitmap.get(), 0)[0] / 5; }

    int argc = 0;
    QCoreApplication application{argc, nullptr};
    testing::PictureFolder files;
    testing::FakeFilm film;
    WorkingState state;
    QuietView view;
    PhotoLoader loader{testing::Reader()};
    WorkspaceModel model{state};
    Workspace workspace{model, {loader, view, view, nullptr, &film}};
    FilmCommands films{workspace, film};
};

TEST_F(FilmCommandsTest, OnlyFilmsHaveACourse) {
    ASSERT_TRUE(Film().Film);
    EXPECT_FALSE(state.Images(2).Film);
    EXPECT_NE(films.Course(), nullptr);
    model.list.Choose(1);
    EXPECT_EQ(films.Course(), nullptr);
    model.list.Choose(0);
    Settle();
    EXPECT_NE(films.Course(), nullptr);
}

TEST_F(FilmCommandsTest, ScrubbingShowsTheFrameAndIsNoStep) {
    const QString before = model.steps.UndoName();
    GoTo(3.3);
    EXPECT_EQ(Shown(), 33);
    EXPECT_EQ(Film().Film->at, 3.3);
    EXPECT_EQ(model.steps.UndoName(), before);
    model.list.Choose(1);
    model.list.Choose(0);  // where it stood
    Settle();
    EXPECT_EQ(Shown(), 33);
}

TEST_F(FilmCommandsTest, AMovedSliderMakesAKeyWhereItHasSomeAndIsUndoneWithIt) {
    Slide(SliderId::Y, 10);
    EXPECT_TRUE(Keys().empty());  // it holds for the whole film
    films.SetKeying(true);
    GoTo(1.0);
    Slide(SliderId::Y, 20);
    films.SetKeying(false);
    GoTo(3.0);
    EXPECT_EQ(Film().RotateY, 20.0F);
    Slide(SliderId::Y, 40);
    Slide(SliderId::X, 5);  // has no keys
    ASSERT_EQ(Keys().size(), 2U);
    EXPECT_EQ(Keys()[0].set, (QMap<QString, float>{{Text("RotateY"), 20.0F}}));
    EXPECT_EQ(Keys()[1].time, 3.0);
    EXPECT_EQ(Keys()[1].set, (QMap<QString, float>{{Text("RotateY"), 40.0F}}));
    GoTo(2.0);
    EXPECT_EQ(Film().RotateY, 30.0F);
    EXPECT_EQ(model.controls.Values().rotateY, 30.0);
    EXPECT_EQ(Film().RotateX, 5.0F);
    Undo();  // the tilt
    EXPECT_EQ(Film().RotateX, 0.0F);
    EXPECT_EQ(Keys().size(), 2U);
    Undo();  // the second key
    ASSERT_EQ(Keys().size(), 1U);
    workspace.list.Redo();
    Settle();
    ASSERT_EQ(Keys().size(), 2U);
    EXPECT_EQ(Shown(), 30);  // where it was done
    GoTo(2.0);
    EXPECT_EQ(Film().RotateY, 30.0F);
}

TEST_F(FilmCommandsTest, KeysAreSetMovedEasedAndRemoved) {
    GoTo(1.0);
    films.AddKey();
    Settle();
    ASSERT_EQ(Keys().size(), 1U);
    EXPECT_TRUE(Keys()[0].set.contains(Text("RotateY")));
    EXPECT_TRUE(Keys()[0].set.contains(Text("EffectRectilinear")));
    EXPECT_FALSE(Keys()[0].set.contains(Text("EffectVarnel")));
    EXPECT_EQ(films.KeyNow(), 0);
    GoTo(4.0);
    Slide(SliderId::Y, 40);
    EXPECT_EQ(films.MoveKey(0, 2.0), 0);
    films.SetEase(0, KeyEase::Hold);
    GoTo(3.0);
    EXPECT_EQ(Film().RotateY, 0.0F);
    films.GoToKey(true);
    Settle();
    EXPECT_EQ(films.Now(), 4.0);
    films.GoToKey(false);
    Settle();
    EXPECT_EQ(films.Now(), 2.0);
    films.RemoveKey(0);
    Settle();
    ASSERT_EQ(Keys().size(), 1U);
    EXPECT_EQ(Film().RotateY, 40.0F);
    std::size_t told = 0;
    QObject::connect(&films, &FilmCommands::Changed, [&] { told = Keys().size(); });
    Undo();  // while it stands
    EXPECT_EQ(Keys().size(), 2U);
    EXPECT_EQ(told, 2U);
}

TEST_F(FilmCommandsTest, InAndOutBoundThePartThatIsPlayed) {
    films.SetIn(1.0);
    films.SetOut(1.4);
    EXPECT_EQ(Film().Film->in, 1.0);
    EXPECT_EQ(Film().Film->out, 1.4);
    GoTo(4.0);
    films.TogglePlaying();
    ASSERT_TRUE(QTest::qWaitFor([this] { return !films.Player().IsPlaying(); }, 3000));
    EXPECT_EQ(films.Now(), 1.3);
    films.SetIn(4.0);  // behind the end: up to the film's
    EXPECT_EQ(Film().Film->out, std::nullopt);
    Undo();
    EXPECT_EQ(Film().Film->in, 1.0);
}

}  // namespace
}  // namespace varnel
