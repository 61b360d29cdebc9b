// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A crooked horizon made straight and level by hand on the result alone, as one does who looks at
// it: no slider is touched, and the saved picture is looked at.

#include <gtest/gtest.h>

#include <QWheelEvent>
#include <array>
#include <cmath>

#include "remap/encode/save_bitmap.h"
#include "samples/fisheye_shot.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::PixelAt;
using testing::TestWindow;

constexpr PixelSize photo{1200, 800};

// Above the horizon it is bright: by a camera that looks 9 degrees down and is rolled by 12.
BitmapHandle CrookedHorizon(const GearRecord& gear) {
    FisheyeShot shot;
    shot.size = photo;
    shot.pixelsPerMillimetre = photo.width / static_cast<double>(gear.SensorWidth);
    shot.centreX = photo.width / 2.0;
    shot.centreY = photo.height / 2.0;
    shot.curve = {gear.LensMapScale, gear.LensMapFactor};
    shot.samples = 2;
    constexpr double degree = 3.14159265358979 / 180.0;
    const double down = 9.0 * degree;
    const double roll = 12.0 * degree;
    return TakeFisheye(EdgeScene{{std::sin(roll) * std::cos(down), std::cos(roll) * std::cos(down),
                                  std::sin(down)}},
                       shot);
}

// How far down the horizon is in a column of a picture, both as shares of its sides.
double Horizon(const Bitmap* picture, double across) {
    const PixelSize size = SizeOf(picture);
    const int x = static_cast<int>(across * size.width);
    for (int y = size.height - 2; y > 0; --y) {
        const double above = PixelAt(picture, x, y + 1).green;
        const double below = PixelAt(picture, x, y).green;
        if (above >= 125.0 && below < 125.0) {
            return (size.height - 1.0 - y - (125.0 - below) / (above - below)) / size.height;
        }
    }
    ADD_FAILURE() << "no horizon at " << across;
    return 0.5;
}

class SteerStory : public ::testing::Test {
  protected:
    SteerStory() {
        workspace.state.Gear(1).OfsetX = 0.0F;
        workspace.state.Gear(1).OfsetY = 0.0F;
        const QString path = workspace.files.Path(QStringLiteral("horizon.bmp"));
        EXPECT_TRUE(
            SaveBitmap(OutputType::Bmp, CrookedHorizon(workspace.state.Gear(1)).get(), path));
        workspace.window.AddFiles({path});
        workspace.Click("OptionRemap_1");
        box = workspace.Find<PictureBox>("PicSmallTo");
    }
    double SeenAt(double across) {
        return Horizon(workspace.state.bitmaps.ResultBitmap.get(), across);
    }
    // Points are shares of the picture's sides, from the left and from the top.
    void Drag(QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {}) {
        Send(QEvent::MouseButtonPress, from, modifiers);
        Send(QEvent::MouseMove, (from + to) / 2.0 + QPointF(0.0, 0.03), modifiers);
        Send(QEvent::MouseMove, to, modifiers);
        Send(QEvent::MouseButtonRelease, to, modifiers);
        testing::Settle();
    }
    void Send(QEvent::Type type, QPointF share, Qt::KeyboardModifiers modifiers) {
        const QPointF at =
            box->ToWidget().map(QPointF(share.x() * photo.width, share.y() * photo.height));
        const bool up = type == QEvent::MouseButtonRelease;
        QMouseEvent event(type, at, box->mapToGlobal(at),
                          type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton,
                          up ? Qt::NoButton : Qt::LeftButton, modifiers);
        QApplication::sendEvent(box, &event);
    }

    TestWindow workspace;
    PictureBox* box = nullptr;
};

TEST_F(SteerStory, AHorizonIsMadeLevelWithoutASlider) {
    EXPECT_GT(std::fabs(SeenAt(0.25) - SeenAt(0.75)) * photo.height, 60.0);
    for (int round = 0; round < 4; ++round) {
        const double right = SeenAt(0.75);
        Drag({0.75, right}, {0.75, (SeenAt(0.25) + right) / 2.0}, Qt::ShiftModifier);
        Drag({0.5, SeenAt(0.5)}, {0.5, 0.5});
    }
    QWheelEvent wheel(box->rect().center(), box->mapToGlobal(QPointF(box->rect().center())), {},
                      {0, 120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(box, &wheel);
    testing::Settle();

    workspace.chooser.answer = SaveChoice{workspace.files.Path(QStringLiteral("level.png")), 4};
    workspace.chooser.agrees = true;
    workspace.state.settings.FileType = QStringLiteral("PNG");
    workspace.Click("CommandSaveFreeimage");
    const LoadedPicture saved =
        testing::LoadPicture(workspace.files.Path(QStringLiteral("level.png")));
    ASSERT_EQ(saved.outcome, LoadOutcome::Loaded);
    for (const double across : {0.1, 0.3, 0.5, 0.7, 0.9}) {
        EXPECT_NEAR(Horizon(saved.bitmap.get(), across) * photo.height, photo.height / 2.0, 1.5)
            << across;
    }
}

}  // namespace
}  // namespace varnel
