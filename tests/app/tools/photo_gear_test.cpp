// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What added photos get from their files in the background, and what the window says about it.

#include <gtest/gtest.h>

#include <QPushButton>
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
    const QString path = files.Path(Text(name));
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

    TestWindow window_{nullptr, {}, Restore::Later, {[] { return NewPictureReader(); }, {}}};
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
    EXPECT_EQ(window_.Label("LabelGearsGiven"), Text("2 photos got their own gear."));
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

TEST_F(PhotoGearTest, ACropIsSeenInTheOtherWayAndBack) {
    Add({SignedByNikon(Circular(window_.files, "crop.jpg"), "NIKON D7100", "4.5mm f/2.8")});
    ASSERT_TRUE(WaitForLast());
    ASSERT_TRUE(Shows("CmdDoubtFrame"));
    const ImageRecord piece = window_.Record(1);
    EXPECT_EQ(window_.Label("LabelGearsGiven"), Text("1 photo got its own gear."));
    window_.Click("CmdDoubtFrame");
    EXPECT_EQ(window_.Record(1).SensorWidth, window_.state.Gear(2).SensorWidth);
    ASSERT_TRUE(Shows("CmdDoubtFrame"));
    window_.Click("CmdDoubtFrame");
    EXPECT_EQ(window_.Record(1), piece);
    window_.Entry("CmdEditUndo")->trigger();
    EXPECT_NE(window_.Record(1), piece);
}

TEST_F(PhotoGearTest, TheWindowMayBeClosedWhilePhotosAreRead) {
    Add({Named("a.jpg"), Named("b.jpg")});
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

}  // namespace
}  // namespace varnel
