// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The current photo steered by hand on the converted picture.

#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QMenu>
#include <QRadioButton>
#include <QWheelEvent>
#include <cmath>

#include "app/picture/overlay_geometry.h"
#include "state/editing/steering.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

class SteerResult : public ::testing::Test {
  protected:
    SteerResult() {
        workspace.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}, {900, 600});
        workspace.ClickLine(0);
        workspace.Click("OptionRemap_1");
        testing::Settle();
        box = workspace.Find<PictureBox>("PicSmallTo");
    }
    QPoint At(double across, double down) {
        return box->ToWidget().map(QPointF(across * photo.width, down * photo.height)).toPoint();
    }
    // What the stored settings show at a point of the box.
    SourcePosition Place(QPoint at) {
        const QPointF point = box->ToWidget().inverted().map(QPointF(at));
        return PlaceUnder({workspace.Record(1), photo}, PlaceAtPoint(point, photo))
            .value_or(SourcePosition{-1e9, -1e9});
    }
    void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mousePress(box, Qt::LeftButton, modifiers, from);
        for (const QPoint& point : {(from + to) / 2, to}) {
            QMouseEvent move(QEvent::MouseMove, point, box->mapToGlobal(QPointF(point)),
                             Qt::NoButton, Qt::LeftButton, modifiers);
            QApplication::sendEvent(box, &move);
            QApplication::processEvents();
        }
        QTest::mouseRelease(box, Qt::LeftButton, modifiers, to);
    }
    void Roll(QPoint at, int notches) {
        QWheelEvent wheel(at, box->mapToGlobal(QPointF(at)), {}, {0, 120 * notches}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(box, &wheel);
    }
    QString Undo() { return workspace.Entry("CmdEditUndo")->text(); }

    static constexpr PixelSize photo{900, 600};
    TestWindow workspace;
    PictureBox* box = nullptr;
};

void ExpectNear(const SourcePosition& a, const SourcePosition& b) {
    EXPECT_LT(std::hypot(a.x - b.x, a.y - b.y), 0.3);
}

TEST_F(SteerResult, FollowsTheHandInEveryProjectionThatTurns) {
    for (const Projection projection : AllProjections()) {
        if (!CanTurn(projection)) {
            continue;
        }
        SCOPED_TRACE(qPrintable(ToText(projection)));
        workspace.ChooseProjection(projection);
        workspace.Slider("SliderAOVoutput")->setValue(120);
        testing::Settle();
        const ImageRecord before = workspace.Record(1);
        const QPoint from = At(0.6, 0.45);
        const QPoint to = At(0.5, 0.35);
        const SourcePosition grabbed = Place(from);
        Drag(from, to);
        ExpectNear(Place(to), grabbed);
        const SourcePosition kept = Place(from);
        Roll(from, 1);
        ExpectNear(Place(from), kept);
        EXPECT_LT(workspace.Record(1).OutputAOV, 120.0F);
        workspace.Entry("CmdEditUndo")->trigger();
        workspace.Entry("CmdEditUndo")->trigger();
        EXPECT_EQ(workspace.Record(1), before);
    }
}

TEST_F(SteerResult, ADragTakesTheGrabbedPlaceAlongAsOneStepOfTheCurrentPhoto) {
    workspace.ClickLine(1, Qt::ControlModifier);
    workspace.ClickLine(0, Qt::ControlModifier);  // out of the selection and
    workspace.ClickLine(0, Qt::ControlModifier);  // in again: both are selected, the first current
    ASSERT_EQ(workspace.Find<QListWidget>("ImageList1")->selectedItems().size(), 2);
    testing::Settle();
    const ImageRecord other = workspace.Record(2);
    const ImageRecord before = workspace.Record(1);
    const QPoint from = At(0.6, 0.55);
    const QPoint to = At(0.45, 0.4);
    const SourcePosition grabbed = Place(from);
    Drag(from, to);
    ExpectNear(Place(to), grabbed);
    const ImageRecord turned = workspace.Record(1);
    EXPECT_GT(turned.RotateY, 5.0F);
    EXPECT_GT(turned.RotateX, 5.0F);
    EXPECT_EQ(turned.RotateZ, before.RotateZ);
    EXPECT_EQ(turned.InputAOV, before.InputAOV);
    EXPECT_EQ(workspace.Slider("SliderY")->value(), std::lround(turned.RotateY));
    EXPECT_EQ(workspace.Record(2), other);
    EXPECT_EQ(Undo(), QStringLiteral("&Undo turn of the camera"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1), before);
    EXPECT_EQ(workspace.Slider("SliderY")->value(), 0);
    Drag(from, from + QPoint(2, 1));  // a click
    EXPECT_EQ(workspace.Record(1), before);
}

TEST_F(SteerResult, ShiftRollsAndADoubleClickCentres) {
    Drag(At(0.7, 0.5), At(0.7, 0.35), Qt::ShiftModifier);
    const ImageRecord rolled = workspace.Record(1);
    EXPECT_GT(std::fabs(rolled.RotateZ), 5.0F);
    EXPECT_EQ(rolled.RotateX, 0.0F);
    EXPECT_EQ(rolled.RotateY, 0.0F);
    EXPECT_EQ(Undo(), QStringLiteral("&Undo roll of the camera"));
    const SourcePosition place = Place(At(0.7, 0.4));
    QTest::mouseDClick(box, Qt::LeftButton, {}, At(0.7, 0.4));
    const auto middle = PlaceUnder({workspace.Record(1), photo},
                                   {(photo.width - 1) / 2.0, (photo.height - 1) / 2.0});
    ExpectNear(*middle, place);
    EXPECT_EQ(Undo(), QStringLiteral("&Undo centring"));
    EXPECT_TRUE(box->IsWhole());
}

TEST_F(SteerResult, ABurstOfTheWheelIsOneStepAroundThePointer) {
    const float before = workspace.Record(1).OutputAOV;
    const QPoint pointer = At(0.3, 0.4);
    const SourcePosition place = Place(pointer);
    Roll(pointer, 1);
    Roll(pointer, 2);
    const float narrower = workspace.Record(1).OutputAOV;
    EXPECT_LT(narrower, before - 5.0F);
    ExpectNear(Place(pointer), place);
    EXPECT_EQ(Undo(), QStringLiteral("&Undo angle of view"));
    testing::Settle();  // the burst is over
    Roll(pointer, -40);
    EXPECT_EQ(workspace.Record(1).OutputAOV, 170.0F);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).OutputAOV, narrower);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).OutputAOV, before);
}

TEST_F(SteerResult, ArrowKeysTurnItAndPageKeysWalkFromEverywhere) {
    workspace.Press("PicSmallTo", Qt::Key_Right);
    QTest::keyClick(box, Qt::Key_Up, Qt::AltModifier);
    QTest::keyClick(box, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(workspace.Record(1).RotateY, 1.0F);
    EXPECT_EQ(workspace.Record(1).RotateX, -0.2F);
    EXPECT_EQ(workspace.Label("LabelRotateX"), QStringLiteral("0.2° Up"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).RotateY, 0.0F);
    auto* const list = workspace.Find<QListWidget>("ImageList1");
    for (const char* const name : {"PicSmallTo", "SliderX", "SpinSliderX", "ImageList1"}) {
        workspace.Press(name, Qt::Key_PageDown);
        EXPECT_EQ(list->currentRow(), 1) << name;
        EXPECT_EQ(list->selectedItems().size(), 1) << name;
        workspace.Press(name, Qt::Key_PageUp);
        EXPECT_EQ(list->currentRow(), 0) << name;
    }
}

TEST_F(SteerResult, ValuesBeyondTheSlidersRestAtTheirEndsAndStay) {
    auto* const spin = workspace.Find<QDoubleSpinBox>("SpinSliderY");
    spin->setFocus();
    spin->selectAll();
    QTest::keyClicks(spin, QStringLiteral("62.5"));
    QTest::keyClick(spin, Qt::Key_Return);
    EXPECT_EQ(workspace.Record(1).RotateY, 62.5F);
    EXPECT_EQ(workspace.Slider("SliderY")->value(), 40);
    EXPECT_EQ(workspace.Label("LabelRotateY"), QStringLiteral("62.5° Right"));
    workspace.Slider("SliderX")->setValue(7);
    EXPECT_EQ(workspace.Record(1).RotateY, 62.5F);
    EXPECT_EQ(workspace.Record(1).RotateX, 7.0F);
    workspace.ClickLine(1);
    workspace.ClickLine(0);
    EXPECT_EQ(workspace.Label("LabelRotateY"), QStringLiteral("62.5° Right"));
    workspace.Slider("SliderY")->setValue(12);
    EXPECT_EQ(workspace.Record(1).RotateY, 12.0F);
}

TEST_F(SteerResult, ProjectionsThatDoNotTurnLeaveTheMouseAlone) {
    workspace.Click("OptionRemap_0");
    const ImageRecord varnel = workspace.Record(1);
    Drag(At(0.5, 0.5), At(0.3, 0.4));
    Roll(At(0.5, 0.5), 2);
    workspace.Press("PicSmallTo", Qt::Key_Left);
    EXPECT_EQ(workspace.Record(1), varnel);
}

TEST_F(SteerResult, TheDividerShowsThePhotoOnItsLeftAndIsDragged) {
    const QImage after = workspace.Shown("PicSmallTo");
    workspace.Find<QRadioButton>("OptionRemap_1")->setFocus();
    QTest::keyPress(workspace.Find("OptionRemap_1"), Qt::Key_B);
    const QImage before = workspace.Shown("PicSmallTo");
    QTest::keyRelease(workspace.Find("OptionRemap_1"), Qt::Key_B);
    workspace.Entry("CmdViewDivider")->trigger();
    const ImageRecord record = workspace.Record(1);
    Drag(At(0.5, 0.2), At(0.7, 0.2));
    EXPECT_EQ(workspace.Record(1), record);
    const QImage divided = workspace.Shown("PicSmallTo");
    const QRect left(At(0.05, 0.6), At(0.65, 0.9));
    const QRect right(At(0.75, 0.6), At(0.95, 0.9));
    EXPECT_EQ(divided.copy(left), before.copy(left));
    EXPECT_EQ(divided.copy(right), after.copy(right));
    EXPECT_NE(before.copy(right), after.copy(right));
    workspace.Press("PicSmallTo", Qt::Key_Right);  // turns, the line stays
    EXPECT_EQ(workspace.Record(1).RotateY, 1.0F);
    workspace.Entry("CmdViewDivider")->trigger();
    EXPECT_TRUE(box->DividedPart().isEmpty());
}

TEST_F(SteerResult, TheContextMenuHasWhatBelongsToThePhoto) {
    QContextMenuEvent wanted(QContextMenuEvent::Mouse, At(0.5, 0.5),
                             box->mapToGlobal(At(0.5, 0.5)));
    QApplication::sendEvent(box, &wanted);
    auto* const menu = workspace.Find<QMenu>("PictureMenu");
    EXPECT_TRUE(menu->actions().contains(workspace.Entry("CmdToolsLevel")));
    workspace.Entry("CmdPictureActual")->trigger();
    EXPECT_EQ(workspace.Label("ZoomText"), QStringLiteral("100 %"));
    workspace.Entry("CmdPictureFolder")->trigger();
    EXPECT_EQ(workspace.dialogs.shownInFolder, QStringList{SourcePath(workspace.Record(1))});
    menu->close();
}

}  // namespace
}  // namespace varnel
