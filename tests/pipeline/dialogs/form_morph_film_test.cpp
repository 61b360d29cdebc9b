// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

#include "pipeline/dialogs/form_morph.h"
#include "tests/support/bitmaps.h"
#include "tests/support/dialogs.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

// Notes what it was asked for, and does something after the third frame.
class FakeMaker : public MorphFilmMaker {
  public:
    Reason Make(const MorphFilm& film, const std::function<bool(int)>& goesOn) override {
        films.push_back(film);
        for (int frame = 1; frame <= film.frames; ++frame) {
            if (frame == 3 && onThird) {
                onThird();
            }
            if (!goesOn(frame)) {
                return ReasonCode::Cancelled;
            }
        }
        return answer;
    }
    std::vector<MorphFilm> films;
    std::function<void()> onThird;
    Reason answer;
};

class FormMorphFilmTest : public testing::DialogTest<FormMorph> {
  protected:
    FormMorphFilmTest() {
        image.FileName = Text("IMG 1.JPG");
        image.Folder = Text("/photos");
        form = std::make_unique<FormMorph>(image, nullptr, queue, pool, notices, [](int) {});
    }
    void Open() {
        form->OfferFilm({&maker, [this](const QString& proposal) {
                             proposals.append(proposal);
                             return path;
                         }});
        form->show();
        The<QCheckBox>("CheckFilm").click();
        The<QLineEdit>("TextNumImages").setText(Text("50"));
    }
    QString Button() const { return The<QPushButton>("CmdAddMorphToBatch").text(); }

    ImageRecord image = testing::FisheyeRecord();
    RecordArray<ImageRecord> queue;
    ThreadRunner pool;
    FakeMaker maker;
    QString path = Text("/films/out.mkv");
    QStringList proposals;
};

TEST_F(FormMorphFilmTest, IsOnlyOfferedWhereFilmsCanBeWritten) {
    form->show();
    for (const char* const name :
         {"CheckFilm", "SpinFramesPerSecond", "BarFilm", "CmdCancelFilm"}) {
        EXPECT_FALSE(The<QWidget>(name).isVisible()) << name;
    }
    Open();
    EXPECT_TRUE(The<QCheckBox>("CheckFilm").isVisible());
    EXPECT_FALSE(The<QProgressBar>("BarFilm").isVisible());
    EXPECT_EQ(Button(), Text("&Write film ..."));
    EXPECT_EQ(Label("LabelLength"), Text("2.0 seconds"));
    The<QDoubleSpinBox>("SpinFramesPerSecond").setValue(12.5);
    EXPECT_EQ(Label("LabelLength"), Text("4.0 seconds"));
    The<QCheckBox>("CheckFilm").click();
    EXPECT_EQ(Button(), Text("&Add to batch que"));
    EXPECT_FALSE(The<QDoubleSpinBox>("SpinFramesPerSecond").isEnabled());
}

TEST_F(FormMorphFilmTest, WritesTheSequenceInsteadOfQueueingIt) {
    Open();
    The<QSlider>("SliderYEnd").setValue(20);
    bool locked = false;
    maker.onThird = [&] {
        locked = The<QProgressBar>("BarFilm").isVisible() &&
                 The<QProgressBar>("BarFilm").value() == 2 &&
                 !The<QPushButton>("CmdAddMorphToBatch").isEnabled() &&
                 !The<QWidget>("FramePairs").isEnabled();
    };
    Click("CmdAddMorphToBatch");
    ASSERT_EQ(maker.films.size(), 1U);
    const MorphFilm& film = maker.films.front();
    EXPECT_EQ(film.image, image);
    EXPECT_EQ(film.ends.end.RotateY, 20.0F);
    EXPECT_EQ(film.frames, 50);
    EXPECT_EQ(film.framesPerSecond, 25.0);
    EXPECT_EQ(film.path, path);
    EXPECT_TRUE(locked);
    EXPECT_EQ(proposals, QStringList{Text("/photos/IMG 1_Morph.mp4")});
    EXPECT_EQ(Label("LabelAdded"), Text("The film out.mkv was written"));
    EXPECT_TRUE(queue.Empty());
    EXPECT_TRUE(The<QPushButton>("CmdAddMorphToBatch").isEnabled());
    EXPECT_FALSE(The<QProgressBar>("BarFilm").isVisible());
}

TEST_F(FormMorphFilmTest, TellsWhyThereIsNoFilm) {
    Open();
    path.clear();
    Click("CmdAddMorphToBatch");
    EXPECT_TRUE(maker.films.empty());
    path = Text("/films/out.mp4");
    The<QLineEdit>("TextNumImages").setText(Text("1"));
    Click("CmdAddMorphToBatch");
    EXPECT_EQ(notices.told, QStringList{Text("A film needs two images or more")});
    The<QLineEdit>("TextNumImages").setText(Text("5"));
    maker.answer = ReasonCode::NotEnoughMemory;
    Click("CmdAddMorphToBatch");
    EXPECT_TRUE(notices.told.last().startsWith(Text("Could not save /films/out.mp4|")));
    EXPECT_EQ(Label("LabelAdded"), Text("No film was written"));
}

TEST_F(FormMorphFilmTest, IsStoppedByItsButtonAndByClosing) {
    for (const bool closes : {false, true}) {
        Open();
        maker.onThird = [&] {
            if (closes) {
                form->reject();
            } else {
                Click("CmdCancelFilm");
            }
            EXPECT_TRUE(form->isVisible());
        };
        Click("CmdAddMorphToBatch");
        EXPECT_EQ(notices.told, QStringList());
        EXPECT_EQ(form->isVisible(), !closes);
        EXPECT_EQ(Label("LabelAdded"), Text("No film was written"));
        The<QCheckBox>("CheckFilm").click();
    }
}

}  // namespace
}  // namespace varnel
