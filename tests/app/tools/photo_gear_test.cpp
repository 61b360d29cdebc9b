// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What added photos get from their files in the background, and what the window says about it.

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QThread>
#include <atomic>
#include <cmath>

#include "remap/encode/save_bitmap.h"
#include "state/editing/read_gear.h"
#include "tests/support/bitmaps.h"
#include "tests/support/seeds/taken_photos.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::SignedByNikon;
using testing::TakenByNikon;
using testing::TestWindow;
using testing::Text;

// The image circle on black, in the middle.
QString Circular(const testing::PictureFolder& files, const char* name) {
    QString path = files.Path(Text(name));
    SaveBitmap(OutputType::Jpeg,
               testing::Painted({400, 400},
                                [](int x, int y) {
                                    const auto light = static_cast<BYTE>(
                                        std::hypot(x - 199.5, y - 199.5) < 186.0 ? 200 : 0);
                                    return PixelColor{light, light, light, 0};
                                })
                   .get(),
               path);
    return path;
}

// Lets photos whose name begins with "late" wait.
class LateReader : public PictureReader {
  public:
    explicit LateReader(const std::atomic<bool>& mayRead) : mayRead_(mayRead) {}
    void Begin(const ReadRequest& request) override {
        late_ = QFileInfo(request.path).fileName().startsWith(Text("late"));
        reader_->Begin(request);
    }
    bool Wait(int milliseconds) override {
        if (late_ && !mayRead_) {
            QThread::msleep(1);
            return false;
        }
        return reader_->Wait(milliseconds);
    }
    LoadedPicture Take() override { return reader_->Take(); }
    void Cancel() override { reader_->Cancel(); }

  private:
    const std::atomic<bool>& mayRead_;
    std::unique_ptr<PictureReader> reader_ = NewPictureReader();
    bool late_ = false;
};

class PhotoGearTest : public ::testing::Test {
  protected:
    void Add(const QStringList& files) {
        window_.window.AddFiles(files);
        added_ = window_.state.Images.UpperBound();
    }
    QString Named(const char* name, const char* lens = "4.5mm f/2.8") {
        return TakenByNikon(window_.files, Text(name), "NIKON D7100", lens);
    }
    // Until the last photo was read, which must get another gear than it had.
    bool WaitForLast() {
        const QString before = window_.Record(added_).GearName;
        return QTest::qWaitFor([&] { return window_.Record(added_).GearName != before; }, 20'000);
    }
    bool Shows(const char* name) {
        QCoreApplication::processEvents();
        QTest::qWait(1);
        return window_.Find(name)->isVisible();
    }
    QString Gear(int n) { return window_.Record(n).GearName; }

    std::atomic<bool> mayReadLate_ = true;
    TestWindow window_{nullptr,
                       {},
                       Restore::Later,
                       {[this] { return std::make_unique<LateReader>(mayReadLate_); }, {}}};
    int added_ = 0;
    const QString sigma_ = Text("Nikon D7100 + Sigma EX 4.5 mm f:2.8");
};

TEST_F(PhotoGearTest, AddedPhotosGetTheirOwnGearAsOneStep) {
    const QString byDefault = window_.state.Gear.DefaultGearName;
    Add({Named("a.jpg"),
         SignedByNikon(Circular(window_.files, "crop.jpg"), "NIKON D7100", "4.5mm f/2.8"),
         Named("zoom.jpg", "24.0-105.0 mm f/4.0"), Circular(window_.files, "plain.jpg")});
    EXPECT_EQ(Gear(1), byDefault) << "at first";
    ASSERT_TRUE(WaitForLast());
    EXPECT_EQ(Gear(1), sigma_);
    EXPECT_EQ(Gear(2), sigma_);
    EXPECT_NEAR(window_.Record(2).SensorWidth,
                window_.Record(2).ImageCircleRadius * 400.0F / 186.0F, 0.1F);
    EXPECT_TRUE(Gear(3).isEmpty()) << "it gets the default gear when it is looked at";
    EXPECT_TRUE(IsGuessed(window_.Record(4)));
    EXPECT_EQ(window_.state.Gear.UpperBound(), 2) << "a guess is no gear of the table";
    EXPECT_EQ(window_.store.Get(Text("Gear"), Text("GearName2"), {}), sigma_);
    ASSERT_TRUE(Shows("BarGearsGiven"));
    EXPECT_EQ(window_.Label("LabelGearsGiven"), Text("2 photos got their own gear"));
    EXPECT_EQ(window_.Find<QComboBox>("GearCombo")->currentText(), sigma_);

    window_.ClickLine(2);
    ASSERT_TRUE(Shows("BarGearDoubt"));
    EXPECT_TRUE(window_.Label("LabelGearDoubt").contains(Text("24.0-105.0 mm f/4.0, which is no")));
    window_.ClickLine(3);
    ASSERT_TRUE(Shows("BarGearDoubt"));
    EXPECT_TRUE(window_.Label("LabelGearDoubt").contains(Text("across the image circle.")));

    window_.Click("CmdGearsGivenUndo");
    EXPECT_EQ(Gear(1), byDefault);
    EXPECT_EQ(Gear(4), byDefault) << "as when it was looked at";
    EXPECT_EQ(window_.state.Gear.UpperBound(), 1);
    EXPECT_FALSE(Shows("BarGearsGiven"));
    EXPECT_TRUE(window_.Label("LabelGearDoubt").contains(Text("taken for the whole sensor")));
    window_.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(Gear(2), sigma_);
    EXPECT_EQ(window_.state.Gear.UpperBound(), 2);
    EXPECT_TRUE(IsGuessed(window_.Record(4)));
}

TEST_F(PhotoGearTest, WhatTheUserDidStaysAndTheSettingGoesBackToOffering) {
    Add({Named("a.jpg"), Named("b.jpg"), Named("c.jpg")});
    window_.Slider("SliderAOVinput")->setValue(150);
    const ImageRecord adjusted = window_.Record(1);
    ASSERT_TRUE(WaitForLast());
    EXPECT_EQ(window_.Record(1), adjusted);
    EXPECT_EQ(Gear(2), sigma_);
    window_.state.settings.TakeGear = false;
    Add({Named("d.jpg")});
    window_.ClickLine(3);
    QTest::qWait(500);
    EXPECT_EQ(Gear(4), window_.state.Gear.DefaultGearName);
    EXPECT_EQ(window_.Find<QAbstractButton>("CmdOfferedGear")->text(), Text("Use ") + sigma_);
}

TEST_F(PhotoGearTest, AGuessOffersGearsForThePhotoAndForThoseLikeIt) {
    const QString byDefault = window_.state.Gear.DefaultGearName;
    Add({Circular(window_.files, "a.jpg"), Circular(window_.files, "b.jpg"),
         window_.files.Picture(Text("other.jpg"), OutputType::Jpeg)});
    ASSERT_TRUE(WaitForLast());
    ASSERT_TRUE(Shows("BarGearDoubt"));
    EXPECT_FALSE(Shows("CmdDoubtSame"));
    window_.Entry("CmdDoubtGear1")->trigger();
    EXPECT_EQ(Gear(1), byDefault);
    EXPECT_TRUE(IsGuessed(window_.Record(2)));
    ASSERT_TRUE(Shows("CmdDoubtSame"));
    window_.Click("CmdDoubtSame");
    EXPECT_EQ(Gear(2), byDefault);
    EXPECT_EQ(window_.Record(2).SensorWidth, window_.Record(1).SensorWidth);
    EXPECT_TRUE(IsGuessed(window_.Record(3))) << "of another size";
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_TRUE(IsGuessed(window_.Record(2)));
    EXPECT_EQ(Gear(1), byDefault);
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_TRUE(IsGuessed(window_.Record(1)));
}

// Several lenses of the catalogue have the name that the file gives.
TEST_F(PhotoGearTest, AGuessOffersWhatTheCatalogueHasForThePhoto) {
    Add({Named("a.jpg", "8.0 mm f/3.5")});
    ASSERT_TRUE(WaitForLast());
    ASSERT_TRUE(Shows("BarGearDoubt"));
    QAction* const offered = window_.Entry("CmdDoubtGear2");
    ASSERT_NE(offered, nullptr);
    const QString name = offered->text();
    EXPECT_TRUE(name.startsWith(Text("Nikon D7100 + ")));
    offered->trigger();
    EXPECT_EQ(Gear(1), name);
    EXPECT_EQ(window_.state.Gear.UpperBound(), 2);
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_TRUE(IsGuessed(window_.Record(1)));
    EXPECT_EQ(window_.state.Gear.UpperBound(), 1);
    window_.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(window_.state.Gear.Find(name), 2);

    window_.Entry("CmdEditUndo")->trigger();
    ASSERT_TRUE(Shows("BarGearDoubt"));
    window_.dialogs.onDefine = [this](const GearRecord& known) {
        EXPECT_EQ(known.CameraModel, Text("D7100"));
        GearRecord gear = window_.state.Gear(1);
        gear.GearName = Text("Own");
        window_.state.Gear.Resize(2);
        window_.state.Gear(2) = gear;
        return true;
    };
    window_.Entry("CmdDoubtDefine")->trigger();
    EXPECT_EQ(Gear(1), Text("Own"));
}

TEST_F(PhotoGearTest, ACropIsSeenInTheOtherWayAndBack) {
    Add({SignedByNikon(Circular(window_.files, "crop.jpg"), "NIKON D7100", "4.5mm f/2.8")});
    ASSERT_TRUE(WaitForLast());
    ASSERT_TRUE(Shows("CmdDoubtFrame"));
    const ImageRecord piece = window_.Record(1);
    EXPECT_EQ(window_.Label("LabelGearsGiven"), Text("1 photo got its own gear"));
    window_.Click("CmdDoubtFrame");
    EXPECT_EQ(window_.Record(1).SensorWidth, window_.state.Gear(2).SensorWidth);
    ASSERT_TRUE(Shows("CmdDoubtFrame"));
    window_.Click("CmdDoubtFrame");
    EXPECT_EQ(window_.Record(1), piece);
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_NE(window_.Record(1), piece);
}

TEST_F(PhotoGearTest, WhatIsReadLateBelongsToItsStepOrGoesWithIt) {
    const QString byDefault = window_.state.Gear.DefaultGearName;
    mayReadLate_ = false;
    Add({Named("a.jpg"), Named("late.jpg"), Named("late zoom.jpg", "24.0-105.0 mm f/4.0")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return Gear(1) == sigma_; }, 20'000));
    window_.ClickLine(2);
    window_.Slider("SliderAOVinput")->setValue(150);
    const QString slider = window_.Entry("CmdEditUndo")->text();
    EXPECT_FALSE(Shows("BarGearsGiven")) << "another step followed";
    mayReadLate_ = true;
    ASSERT_TRUE(QTest::qWaitFor([this] { return Gear(2) == sigma_; }, 20'000));
    EXPECT_EQ(window_.Entry("CmdEditUndo")->text(), slider);
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Gear(2), sigma_);
    ASSERT_TRUE(Shows("BarGearsGiven"));
    window_.Click("CmdGearsGivenUndo");
    EXPECT_EQ(Gear(1) + Gear(2), byDefault + byDefault);

    mayReadLate_ = false;
    Add({Named("c.jpg"), Named("late.jpg")});
    ASSERT_TRUE(QTest::qWaitFor([this] { return Gear(4) == sigma_; }, 20'000));
    window_.Entry("CmdEditUndo")->trigger();
    mayReadLate_ = true;
    QTest::qWait(300);
    EXPECT_FALSE(Gear(5) == sigma_) << "the rest of what was undone";
}

TEST_F(PhotoGearTest, TheWindowMayBeClosedWhilePhotosAreRead) {
    mayReadLate_ = false;
    Add({Named("late.jpg"), Named("b.jpg")});
    QTest::qWait(30);
}

TEST(FirstPhotoGear, TheFirstPhotoThatIsGivenSparesTheQuestion) {
    const testing::PictureFolder files;
    const QString plain = files.Picture(Text("a.jpg"), OutputType::Jpeg);
    const QString named = TakenByNikon(files, Text("b.jpg"), "NIKON D7100", "4.5mm f/2.8");
    TestWindow window(nullptr, {}, Restore::Later, {nullptr, {plain, named}});
    EXPECT_TRUE(window.prompt.explained.isEmpty());
    EXPECT_EQ(window.state.Gear.DefaultGearName, Text("Nikon D7100 + Sigma EX 4.5 mm f:2.8"));
    EXPECT_EQ(window.state.Images.UpperBound(), 2);
    TestWindow asked(nullptr, {}, Restore::Later, {nullptr, {plain}});
    EXPECT_EQ(asked.prompt.explained.size(), 1);
}

// With known gear: no question, no list, a projection and a name are all that is chosen.
TEST(FirstStart, LeadsToASavedStraightPictureInThreeClicks) {
    const testing::PictureFolder files;
    const QString photo = TakenByNikon(files, Text("first.jpg"), "NIKON D7100", "4.5mm f/2.8");
    TestWindow window(nullptr, {}, Restore::Later, {[] { return NewPictureReader(); }, {photo}});
    ASSERT_TRUE(QTest::qWaitFor([&] {
        return window.state.Images.UpperBound() == 1 && window.state.bitmaps.FullSourceBitmap &&
               window.Record(1).GearName == Text("Nikon D7100 + Sigma EX 4.5 mm f:2.8");
    }));
    EXPECT_TRUE(window.prompt.explained.isEmpty());
    int clicks = 0;
    const auto click = [&](const char* name) {
        QWidget* const widget = window.Find(name);
        EXPECT_EQ(widget->visibleRegion().boundingRect(), widget->rect()) << name;
        const bool round = qobject_cast<QRadioButton*>(widget) != nullptr;
        QTest::mouseClick(widget, Qt::LeftButton, {},
                          round ? QPoint(8, widget->height() / 2) : widget->rect().center());
        ++clicks;
    };
    click("OptionRemap_1");
    window.chooser.answer =
        SaveChoice{files.Path(Text("straight.tif")), FilterIndexOf(OutputType::Tiff)};
    click("ToolCmdFileSaveImage");
    ++clicks;  // "Save" in the dialog, which proposes a name
    EXPECT_LE(clicks, 6);
    EXPECT_TRUE(QFileInfo::exists(files.Path(Text("straight.tif"))));
    EXPECT_EQ(ProjectionFromIndex(window.Record(1).Projection), Projection::Rectilinear);
}

}  // namespace
}  // namespace varnel
