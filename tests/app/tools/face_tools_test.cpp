// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Ellipses drawn on the result: "Soften faces".

#include <gtest/gtest.h>

#include "tests/support/picture_drag.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// With the mouse, between points of the result.
void Drag(TestWindow& workspace, QPointF from, QPointF to) {
    testing::DragOnPicture(workspace.Find<PictureBox>("PicSmallTo"), from, to);
}

// At its own size, with the tool at hand.
void Begin(TestWindow& workspace) {
    workspace.AddPhotos({Q("a.bmp")}, {400, 300});
    workspace.Click("OptionRemap_1");
    workspace.Entry("CmdToolsFaces")->trigger();
    workspace.Shown("PicSmallTo");
}

TEST(FaceTools, AreForProjectionsThatDrawFacesOut) {
    TestWindow workspace;
    workspace.AddPhotos({Q("a.bmp")}, {400, 300});
    workspace.Entry("CmdToolsFaces")->trigger();
    EXPECT_FALSE(workspace.Entry("CmdToolsFaces")->isChecked());
    EXPECT_TRUE(workspace.Label("StatusText").contains(Q("Rectilinear")));
}

TEST(FaceTools, AnEllipseIsDrawnMovedSizedAndUndone) {
    TestWindow workspace;
    Begin(workspace);
    const QImage straight = workspace.Shown("PicSmallTo");
    Drag(workspace, {300.0, 80.0}, {380.0, 200.0});
    ASSERT_EQ(workspace.Record(1).Faces.size(), 1U);
    const FaceEllipse drawn = workspace.Record(1).Faces.front();
    EXPECT_NEAR(drawn.x, 0.85, 0.01);
    EXPECT_NEAR(drawn.y, 140.0 / 300.0, 0.01);
    EXPECT_NEAR(drawn.width, 0.2, 0.01);
    EXPECT_NEAR(drawn.height, 0.4, 0.01);
    EXPECT_NE(workspace.Shown("PicSmallTo"), straight);
    Drag(workspace, {340.0, 150.0}, {140.0, 150.0});  // inside
    EXPECT_NEAR(workspace.Record(1).Faces.front().x, 0.35, 0.01);
    Drag(workspace, {180.0, 140.0}, {200.0, 140.0});  // its right end
    EXPECT_NEAR(workspace.Record(1).Faces.front().width, 0.3, 0.02);
    EXPECT_NEAR(workspace.Record(1).Faces.front().height, 0.4, 0.01);
    Drag(workspace, {20.0, 20.0}, {60.0, 60.0});  // beside it: another one
    EXPECT_EQ(workspace.Record(1).Faces.size(), 2U);
    workspace.Entry("CmdEditUndo")->trigger();  // one step for each drag
    EXPECT_EQ(workspace.Record(1).Faces.size(), 1U);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_NEAR(workspace.Record(1).Faces.front().width, 0.2, 0.01);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).Faces, std::vector{drawn});
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_TRUE(workspace.Record(1).Faces.empty());
    workspace.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(workspace.Record(1).Faces, std::vector{drawn});
    workspace.Click("CmdFacesClear");
    EXPECT_TRUE(workspace.Record(1).Faces.empty());
    EXPECT_FALSE(workspace.Find<QAbstractButton>("CmdFacesRemove")->isEnabled());
    workspace.Click("CmdFacesDone");
    EXPECT_FALSE(workspace.Entry("CmdToolsFaces")->isChecked());
    EXPECT_FALSE(workspace.Find("BarFaces")->isVisible());
}

TEST(FaceTools, TheKeyboardDoesAllOfIt) {
    TestWindow workspace;
    Begin(workspace);
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(workspace.Find("PicSmallTo"), key, modifiers);
    };
    const auto face = [&] { return workspace.Record(1).Faces.back(); };
    press(Qt::Key_Insert);
    ASSERT_EQ(workspace.Record(1).Faces.size(), 1U);
    EXPECT_NEAR(face().x, 0.5, 1e-9);
    const FaceEllipse made = face();
    press(Qt::Key_Right, Qt::ControlModifier);
    EXPECT_GT(face().x, made.x);
    EXPECT_EQ(face().y, made.y);
    press(Qt::Key_Up, Qt::ShiftModifier);
    EXPECT_GT(face().height, made.height);
    EXPECT_NEAR(face().width, made.width, 1e-9);
    press(Qt::Key_BracketLeft, Qt::ControlModifier);
    EXPECT_NEAR(face().angle, 10.0, 1e-9);
    press(Qt::Key_Insert);
    EXPECT_EQ(workspace.Record(1).Faces.size(), 2U);
    press(Qt::Key_Space);
    press(Qt::Key_Delete);
    ASSERT_EQ(workspace.Record(1).Faces.size(), 1U);
    EXPECT_EQ(face(), made);  // the other one
}

}  // namespace
}  // namespace varnel
