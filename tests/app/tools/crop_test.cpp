// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Size, crop and outside in the window.

#include <gtest/gtest.h>

#include <QLineEdit>

#include "app/panels/size_panel.h"
#include "app/tools/crop/crop_geometry.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

void ExpectRect(const QRectF& found, const QRectF& expected, const std::string& what) {
    EXPECT_NEAR(found.left(), expected.left(), 1e-9) << what;
    EXPECT_NEAR(found.top(), expected.top(), 1e-9) << what;
    EXPECT_NEAR(found.width(), expected.width(), 1e-9) << what;
    EXPECT_NEAR(found.height(), expected.height(), 1e-9) << what;
}

TEST(CropGeometry, FollowsTheHandWithinTheFrameAndKeepsItsShape) {
    constexpr CropGrip corner{.left = true, .top = true};
    constexpr CropGrip right{.right = true};
    const QRectF crop(0.2, 0.2, 0.4, 0.4);
    struct Case {
        const char* what;
        CropGrip grip;
        QPointF by;
        double shape;
        QRectF expected;
    };
    for (const Case& c : {
             Case{"moved", wholeCrop, {0.1, -0.1}, 0.0, {0.3, 0.1, 0.4, 0.4}},
             Case{"moved to the border", wholeCrop, {9.0, -9.0}, 0.0, {0.6, 0.0, 0.4, 0.4}},
             Case{"by a corner", corner, {-0.1, 0.1}, 0.0, {0.1, 0.3, 0.5, 0.3}},
             Case{"by a corner past the border", corner, {-9.0, -9.0}, 0.0, {0.0, 0.0, 0.6, 0.6}},
             Case{"by a corner past the other", corner, {9.0, 9.0}, 0.0, {0.59, 0.59, 0.01, 0.01}},
             Case{"in shape by a corner", corner, {-0.1, 0.0}, 1.0, {0.1, 0.1, 0.5, 0.5}},
             Case{"in shape past a border", corner, {-9.0, 0.0}, 2.0, {0.0, 0.3, 0.6, 0.3}},
             Case{"by a side", right, {0.2, 0.3}, 0.0, {0.2, 0.2, 0.6, 0.4}},
             Case{"in shape by a side", right, {0.2, 0.0}, 1.0, {0.2, 0.1, 0.6, 0.6}},
         }) {
        ExpectRect(DraggedCrop(crop, c.grip, c.by, c.shape), c.expected, c.what);
    }
    ExpectRect(ShapedCrop(crop, 2.0), {0.2, 0.3, 0.4, 0.2}, "shaped");
    ExpectRect(GrownCrop(crop, 0.2, 0.0), {0.1, 0.1, 0.6, 0.6}, "grown");
    ExpectRect(GrownCrop(crop, 9.0, 0.0), wholeFrame, "grown to all");
}

class ShapeInTheWindow : public ::testing::Test {
  protected:
    ShapeInTheWindow() {
        workspace.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}, {900, 600});
        workspace.ClickLine(0);
        workspace.Click("OptionRemap_1");
        testing::Settle();
        box = workspace.Find<PictureBox>("PicSmallTo");
    }
    void Type(const char* name, const char* text) {
        auto* const edit = workspace.Find<QComboBox>(name)->lineEdit();
        edit->selectAll();
        QTest::keyClicks(edit, QLatin1StringView(text));
        QTest::keyClick(edit, Qt::Key_Return);
        testing::Settle();
    }
    QPoint At(double across, double down) {
        const QSize size = box->Picture();
        return box->ToWidget().map(QPointF(across * size.width(), down * size.height())).toPoint();
    }
    QString Undo() { return workspace.Entry("CmdEditUndo")->text(); }

    TestWindow workspace;
    PictureBox* box = nullptr;
};

TEST_F(ShapeInTheWindow, ATypedSizeIsThatOfTheResultAndOneStepOfAllSelected) {
    workspace.ClickLine(1, Qt::ControlModifier);
    struct Case {
        const char* text;
        QSize size;
    };
    for (const Case& c : {Case{"1200x400", {1200, 400}}, Case{"450", {450, 300}},
                          Case{"2:1", {900, 450}}, Case{"0x4", {900, 450}}}) {
        Type("SizeCombo", c.text);
        EXPECT_EQ(box->Picture(), c.size) << c.text;
        const QString numbers = QStringLiteral("%1 x %2").arg(c.size.width()).arg(c.size.height());
        EXPECT_TRUE(workspace.Label("LabelSaveSize").startsWith(numbers)) << c.text;
        EXPECT_EQ(workspace.Record(2).OutputWidth, workspace.Record(1).OutputWidth);
    }
    EXPECT_FALSE(workspace.Label("StatusText").isEmpty());
    EXPECT_TRUE(Undo().endsWith(QStringLiteral("size")));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).OutputWidth, 450);
    EXPECT_EQ(workspace.Record(2).OutputWidth, 450);
}

TEST_F(ShapeInTheWindow, TheCropIsChosenOnTheWholeFrameAndCutsWhenItIsLeft) {
    workspace.Entry("CmdToolsCrop")->setChecked(true);
    testing::Settle();
    QTest::mousePress(box, Qt::LeftButton, {}, At(0.0, 0.0));
    QMouseEvent move(QEvent::MouseMove, At(0.5, 0.5), box->mapToGlobal(QPointF(At(0.5, 0.5))),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(box, &move);
    EXPECT_EQ(workspace.Record(1).CropWidth, 0.0F);
    QTest::mouseRelease(box, Qt::LeftButton, {}, At(0.5, 0.5));
    testing::Settle();
    EXPECT_NEAR(workspace.Record(1).CropLeft, 0.5F, 0.01F);
    EXPECT_NEAR(workspace.Record(1).CropHeight, 0.5F, 0.01F);
    EXPECT_EQ(workspace.Record(2).CropWidth, 0.0F);
    EXPECT_EQ(box->Picture(), QSize(900, 600));  // all of it is still shown
    QTest::keyClick(box, Qt::Key_Return);
    testing::Settle();
    EXPECT_NEAR(box->Picture().width(), 450, 9);
    EXPECT_NEAR(box->Picture().height(), 300, 6);
    EXPECT_TRUE(Undo().endsWith(QStringLiteral("crop")));
    workspace.Entry("CmdEditUndo")->trigger();
    testing::Settle();
    EXPECT_EQ(box->Picture(), QSize(900, 600));
}

TEST_F(ShapeInTheWindow, ACleanCropHasTheChosenShape) {
    workspace.Entry("CmdToolsCrop")->setChecked(true);
    auto* const shapes = workspace.Find<QComboBox>("CropShapeCombo");
    shapes->setCurrentIndex(2);  // square
    workspace.Click("CmdCropClean");
    for (int n = 0; n < 200 && workspace.Record(1).CropWidth == 0.0F; ++n) {
        QTest::qWait(10);
    }
    const PixelSize size = ResultSizeOf(workspace.Record(1), {900, 600});
    EXPECT_GT(size.width, 100);
    EXPECT_NEAR(size.width, size.height, 1);
}

}  // namespace
}  // namespace varnel
