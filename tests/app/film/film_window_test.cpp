// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A film in the window: its line, the bar below the pictures, keys by sliders, and undo.

#include <gtest/gtest.h>

#include "app/tools/film/film_bar.h"
#include "film/keys/film_keys.h"
#include "pipeline/conversion/films/kept_film_output.h"
#include "state/editing/read_gear.h"
#include "tests/app/film/fake_film.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

// Every film is a disc.
class DiscReader : public PictureReader {
  public:
    void Begin(const ReadRequest& /*request*/) override {}
    bool Wait(int /*milliseconds*/) override { return true; }
    LoadedPicture Take() override {
        return {LoadOutcome::Loaded,
                testing::Painted({600, 400},
                                 [](int x, int y) {
                                     const BYTE grey =
                                         std::hypot(x - 305.5, y - 213.5) < 150.0 ? 200 : 3;
                                     return PixelColor{grey, grey, grey, 0};
                                 }),
                {},
                {600, 400}};
    }
    void Cancel() override {}
};

class FilmWindow : public ::testing::Test {
  protected:
    FilmWindow() {
        window.AddPhotos({QStringLiteral("film.bmp"), QStringLiteral("photo.bmp")});
        window.ClickLine(0);
        Settle();
        bar = window.Find<FilmBar>("BarFilm");
    }
    void Settle() {
        testing::Settle();
        QTest::qWait(30);
        testing::Settle();
    }
    void GoTo(double seconds) {
        Q_EMIT bar->Line()->Scrubbed(seconds);
        Settle();
    }
    void Slide(const char* name, int value) {
        window.Slider(name)->setValue(value);
        Settle();
    }
    ImageRecord& Film() { return window.Record(1); }
    const FilmKeys& Keys() { return Film().Film->keys; }

    testing::FakeFilm film;
    testing::FakeSaver saver;
    TestWindow window{nullptr, {}, Restore::Later, {nullptr, {}, &film, &saver}};
    FilmBar* bar = nullptr;
};

TEST_F(FilmWindow, TheBarIsThereForFilmsOnly) {
    EXPECT_TRUE(Film().Film);
    EXPECT_FALSE(window.Record(2).Film);
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(window.Label("LabelFilmTime"), QStringLiteral("0:00.000 / 0:05.000"));
    window.ClickLine(1);
    Settle();
    EXPECT_FALSE(bar->isVisible());
    window.ClickLine(0);
    Settle();
    EXPECT_TRUE(bar->isVisible());
}

TEST_F(FilmWindow, ScrubbingShowsTheFrameAndIsNoStep) {
    const QString before = window.Entry("CmdEditUndo")->text();
    GoTo(3.3);
    EXPECT_EQ(window.Label("LabelFilmTime"), QStringLiteral("0:03.300 / 0:05.000"));
    EXPECT_EQ(ScanLine(window.state.bitmaps.FullSourceBitmap.get(), 0)[0], 33 * 5);
    EXPECT_EQ(window.Entry("CmdEditUndo")->text(), before);
    window.ClickLine(1);
    Settle();
    window.ClickLine(0);  // where it stood
    Settle();
    EXPECT_EQ(ScanLine(window.state.bitmaps.FullSourceBitmap.get(), 0)[0], 33 * 5);
}

TEST_F(FilmWindow, AMovedSliderMakesAKeyWhereItHasSomeAndIsUndoneWithIt) {
    Slide("SliderY", 10);
    EXPECT_TRUE(Keys().empty());  // no key yet: it holds for the whole film
    bar->KeyingButton()->click();
    GoTo(1.0);
    Slide("SliderY", 20);
    bar->KeyingButton()->click();
    GoTo(3.0);
    EXPECT_EQ(Film().RotateY, 20.0F);
    Slide("SliderY", 40);
    Slide("SliderX", 5);  // has no keys
    ASSERT_EQ(Keys().size(), 2U);
    EXPECT_EQ(Keys()[0].set, (QMap<QString, float>{{QStringLiteral("RotateY"), 20.0F}}));
    EXPECT_EQ(Keys()[1].time, 3.0);
    EXPECT_EQ(Keys()[1].set, (QMap<QString, float>{{QStringLiteral("RotateY"), 40.0F}}));
    GoTo(2.0);
    EXPECT_EQ(Film().RotateY, 30.0F);
    EXPECT_EQ(window.Slider("SliderY")->value(), 30);
    EXPECT_EQ(Film().RotateX, 5.0F);
    window.Entry("CmdEditUndo")->trigger();  // the tilt
    Settle();
    EXPECT_EQ(Film().RotateX, 0.0F);
    EXPECT_EQ(Keys().size(), 2U);
    window.Entry("CmdEditUndo")->trigger();  // the second key
    Settle();
    ASSERT_EQ(Keys().size(), 1U);
    window.Entry("CmdEditRedo")->trigger();
    Settle();
    ASSERT_EQ(Keys().size(), 2U);
    GoTo(2.0);
    EXPECT_EQ(Film().RotateY, 30.0F);
}

TEST_F(FilmWindow, KeysAreSetMovedAndRemovedOnTheLine) {
    window.Click("OptionRemap_1");
    GoTo(1.0);
    bar->KeyButton()->click();
    Settle();
    ASSERT_EQ(Keys().size(), 1U);
    EXPECT_TRUE(Keys()[0].set.contains(QStringLiteral("RotateY")));
    EXPECT_TRUE(Keys()[0].set.contains(QStringLiteral("OutputAOV")));
    EXPECT_EQ(bar->KeyButton()->text(), QStringLiteral("Remove key"));
    GoTo(4.0);
    Slide("SliderY", 40);
    Q_EMIT bar->Line()->KeyMoved(0, 2.0);
    Q_EMIT bar->Line()->EaseChosen(0, KeyEase::Hold);
    GoTo(3.0);
    EXPECT_EQ(Film().RotateY, 0.0F);
    EXPECT_EQ(Keys()[0].time, 2.0);
    Q_EMIT bar->Line()->KeyRemoved(0);
    Settle();
    ASSERT_EQ(Keys().size(), 1U);
    EXPECT_EQ(Film().RotateY, 40.0F);
    EXPECT_TRUE(window.Entry("CmdEditUndo")->text().contains(QStringLiteral("keys of the film")));
}

TEST_F(FilmWindow, InAndOutBoundThePart) {
    GoTo(1.0);
    bar->InButton()->click();
    GoTo(3.0);
    bar->OutButton()->click();
    EXPECT_EQ(*Film().Film, (FilmCourse{1.0, 3.1, {}, 3.0}));
    GoTo(4.0);
    bar->InButton()->click();  // behind the end: up to the film's
    EXPECT_EQ(Film().Film->in, 4.0);
    EXPECT_FALSE(Film().Film->out);
    window.Entry("CmdEditUndo")->trigger();
    Settle();
    EXPECT_EQ(Film().Film->in, 1.0);
}

TEST_F(FilmWindow, SavesTheFilmAsTheBarSays) {
    window.dialogs.film = window.files.Path(QStringLiteral("out.mp4"));
    window.Find<QComboBox>("FilmCodecCombo")->setCurrentIndex(1);
    window.Find<QSpinBox>("SpinFilmQuality")->setValue(20);
    window.Find<QComboBox>("FilmSpeedCombo")->setCurrentIndex(1);
    bool locked = false;
    QTimer::singleShot(40, bar, [&] { locked = !bar->isEnabled(); });
    bar->SaveButton()->click();
    EXPECT_TRUE(locked && bar->isEnabled());
    EXPECT_EQ(saver.saved, Film());
    EXPECT_EQ(saver.how.codec, QStringLiteral("h265"));
    EXPECT_EQ(saver.how.crf, 20);
    EXPECT_EQ(saver.how.speed, QStringLiteral("ultrafast"));
    EXPECT_EQ(saver.to, window.dialogs.film);
    EXPECT_TRUE(window.dialogs.opened.last().endsWith(QStringLiteral(".mp4")));
    EXPECT_TRUE(window.Label("StatusText").startsWith(QStringLiteral("Saved ")));
    saver.answer.error = ReasonCode::NotEnoughMemory;
    bar->SaveButton()->click();
    EXPECT_EQ(window.notices.texts.last(), QStringLiteral("Could not save ") + window.dialogs.film);
    window.dialogs.film = SourcePath(Film());
    bar->SaveButton()->click();
    EXPECT_TRUE(window.notices.details.last().contains(QStringLiteral("the film itself")));
}

// On the frame that stands for the film, not on the one that is shown.
class FilmCircle : public ::testing::Test {
  protected:
    void Open(bool takeGear) {
        film.size = {600, 400};
        window.state.settings.TakeGear = takeGear;
        window.AddPhotos({QStringLiteral("film.bmp"), QStringLiteral("photo.bmp")}, film.size);
        window.ClickLine(0);
        ASSERT_TRUE(testing::Settle());
        window.Entry("CmdViewCircle")->trigger();
    }

    testing::FakeFilm film;
    int asked = 0;
    TestWindow window{nullptr,
                      {},
                      Restore::Later,
                      {[this]() -> std::unique_ptr<PictureReader> {
                           ++asked;
                           return std::make_unique<DiscReader>();
                       },
                       {},
                       &film,
                       nullptr}};
    const QString found{QStringLiteral("Centre 10.0 ‰ right, 35.0 ‰ up, diameter 50.0 %")};
};

TEST_F(FilmCircle, IsFoundWhenTheFilmIsAdded) {
    Open(true);
    ASSERT_TRUE(QTest::qWaitFor([this] { return IsGuessed(window.Record(1)); }, 20'000));
    ASSERT_TRUE(testing::Settle());
    EXPECT_TRUE(window.Record(1).Film);
    EXPECT_EQ(window.Label("LabelCircle"), found);
}

TEST_F(FilmCircle, IsFoundByTheButton) {
    Open(false);
    EXPECT_EQ(asked, 0);
    window.Click("CmdCircleFind");
    EXPECT_EQ(window.Label("LabelCircle"), found);
    EXPECT_EQ(asked, 1);
    window.ClickLine(1);
    window.Click("CmdCircleFind");
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(window.Label("StatusText").endsWith(QStringLiteral("on this photo.")));
}

TEST_F(FilmWindow, ChoicesOfWritingAreKept) {
    EXPECT_EQ(bar->Output(), FilmOutput());
    EXPECT_EQ(LoadFilmOutput(window.store), FilmOutput());
    const FilmOutput rows[] = {{QStringLiteral("h265"), 20, QStringLiteral("slow")},
                               {QStringLiteral("h264"), {}, QStringLiteral("ultrafast")},
                               {QStringLiteral("vp9"), 0, {}},
                               {QStringLiteral("prores"), {}, {}}};
    for (const FilmOutput& row : rows) {
        bar->Choose(row);
        FilmBar later(nullptr);
        later.Choose(LoadFilmOutput(window.store));
        EXPECT_EQ(later.Output(), row) << row.codec.toStdString();
    }
    window.store.Save(QStringLiteral("Settings"), QStringLiteral("FilmCodec"),
                      QStringLiteral("mjpeg"));
    window.store.Save(QStringLiteral("Settings"), QStringLiteral("FilmCrf"), QStringLiteral("99"));
    bar->Choose(LoadFilmOutput(window.store));
    EXPECT_EQ(bar->Output(), FilmOutput());
}

TEST_F(FilmWindow, SaysWhyAFilmCannotBeRead) {
    film.refusal = ReasonCode::NotEnoughMemory;
    window.AddPhotos({QStringLiteral("film2.bmp")});
    window.ClickLine(2);
    Settle();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_FALSE(window.Label("LabelFilmError").isEmpty());
    EXPECT_FALSE(bar->SaveButton()->isEnabled());
}

}  // namespace
}  // namespace varnel
