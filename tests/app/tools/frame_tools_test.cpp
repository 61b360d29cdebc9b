// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The frame on the photo under the mouse, and the numbers below the pictures.

#include <gtest/gtest.h>

#include "state/editing/frame_solver.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

class FrameOnPhoto : public ::testing::Test {
  protected:
    FrameOnPhoto() {
        workspace.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}, photo);
        workspace.Click("OptionRemap_1");
        box = workspace.Find<PictureBox>("PicSmallFrom");
        EXPECT_TRUE(workspace.Entry("CmdViewFrame")->isChecked());  // from the first start
        QApplication::processEvents();
    }
    // Where the frame has a point with these controls.
    QPoint At(const FramePoint& point, const ControlValues& controls) {
        ImageRecord trial = workspace.Record(1);
        StoreControls(controls, trial);
        const InverseMapping places(Projection::Rectilinear, trial, photo);
        const SourcePosition place = *PlaceOf(point, places);
        return box->ToWidget().map(QPointF(place.x + 0.5, photo.height - 0.5 - place.y)).toPoint();
    }
    void Drag(QPoint from, QPoint to, bool release = true) {
        QTest::mousePress(box, Qt::LeftButton, {}, from);
        for (const QPoint& point : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, point, box->mapToGlobal(QPointF(point)),
                             Qt::NoButton, Qt::LeftButton, {});
            QApplication::sendEvent(box, &move);
            QApplication::processEvents();
        }
        if (release) {
            QTest::mouseRelease(box, Qt::LeftButton, {}, to);
        }
    }
    void Roll(int notches) {
        const QPointF middle(box->width() / 2.0, box->height() / 2.0);
        QWheelEvent wheel(middle, box->mapToGlobal(middle), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
    }

    static constexpr PixelSize photo{300, 200};
    TestWindow workspace;
    PictureBox* box = nullptr;
};

TEST_F(FrameOnPhoto, AHandleMovesTheAngleOfViewAndStoresItWhenLetGo) {
    const ControlValues before = ValuesFor(workspace.Record(1));
    const ImageRecord other = workspace.Record(2);
    ControlValues wanted = before;
    wanted.outputAov = before.outputAov + 40;
    const FramePoint right{1.0, 0.5};
    Drag(At(right, before), At(right, wanted), false);
    EXPECT_NEAR(workspace.Slider("SliderAOVoutput")->value(), wanted.outputAov, 2);
    EXPECT_EQ(ValuesFor(workspace.Record(1)), before);
    QTest::mouseRelease(box, Qt::LeftButton, {}, At(right, wanted));
    EXPECT_NEAR(workspace.Record(1).OutputAOV, wanted.outputAov, 2);
    EXPECT_EQ(workspace.Record(2), other);
}

TEST_F(FrameOnPhoto, ADragInsidePansAndTilts) {
    const ControlValues before = ValuesFor(workspace.Record(1));
    ControlValues wanted = before;
    wanted.rotateX = 15;
    wanted.rotateY = -20;
    Drag(At({}, before), At({}, wanted));
    EXPECT_NEAR(workspace.Record(1).RotateX, 15, 2);
    EXPECT_NEAR(workspace.Record(1).RotateY, -20, 2);
    EXPECT_EQ(workspace.Record(1).OutputAOV, before.outputAov);
}

TEST_F(FrameOnPhoto, TheWheelNarrowsIt) {
    const float before = workspace.Record(1).OutputAOV;
    Roll(3);
    EXPECT_EQ(workspace.Record(1).OutputAOV, before - 3);
    Roll(-1);
    EXPECT_EQ(workspace.Record(1).OutputAOV, before - 2);
}

TEST_F(FrameOnPhoto, HiddenOrWithoutTurnsItLeavesTheMouseAlone) {
    workspace.Click("OptionRemap_0");
    const ImageRecord varnel = workspace.Record(1);
    const QPoint middle = box->rect().center();
    Drag(middle, middle + QPoint(30, 10));
    EXPECT_EQ(workspace.Record(1), varnel);
    workspace.Click("OptionRemap_1");
    workspace.Entry("CmdViewFrame")->trigger();
    const ImageRecord rectilinear = workspace.Record(1);
    Drag(middle, middle + QPoint(30, 10));
    EXPECT_EQ(workspace.Record(1), rectilinear);
}

TEST_F(FrameOnPhoto, NumbersFollowTheControls) {
    auto* const numbers = workspace.Find<QLabel>("LabelNumbers");
    EXPECT_FALSE(numbers->isVisible());
    workspace.Entry("CmdViewMagnification")->trigger();
    QApplication::processEvents();
    EXPECT_TRUE(numbers->isVisible());
    const QString before = numbers->text();
    EXPECT_TRUE(before.contains(QStringLiteral("300 x 200 pixels"))) << before.toStdString();
    workspace.Press("SliderAOVoutput", Qt::Key_Right);
    QApplication::processEvents();
    EXPECT_NE(numbers->text(), before);
}

}  // namespace
}  // namespace varnel
