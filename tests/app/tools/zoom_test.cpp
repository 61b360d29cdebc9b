// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Both pictures zoomed together.

#include <gtest/gtest.h>

#include "remap/display/paint.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

// A photo larger than its picture, in straight-line view, the zoom at 100 % and all slices drawn.
void ShowActualSize(TestWindow& workspace) {
    workspace.AddPhotos({QStringLiteral("photo.bmp")}, {1500, 1000});
    workspace.Click("OptionRemap_1");
    workspace.Entry("CmdViewFrame")->setChecked(false);
    workspace.Entry("CmdViewActual")->trigger();
    EXPECT_TRUE(testing::Settle());
}

// What a box shows, and the same part of a picture of full size.
struct Seen {
    QImage box, picture;
};

Seen SeenIn(TestWindow& workspace, const char* name, const Bitmap* picture) {
    auto* const box = workspace.Find<PictureBox>(name);
    const QPoint corner = box->ToWidget().map(QPointF()).toPoint();
    return {workspace.Shown(name).convertToFormat(QImage::Format_BGR888),
            ImageOf(picture).copy(QRect(-corner, box->size()))};
}

// Rows are drawn when there is time, which a loaded machine has later.
bool Shows(TestWindow& workspace, const char* name, const Bitmap* picture) {
    return QTest::qWaitFor(
        [&] {
            const Seen seen = SeenIn(workspace, name, picture);
            return seen.box == seen.picture;
        },
        20'000);
}

TEST(Zoom, AtActualSizeBothShowTheFullSizePixels) {
    TestWindow workspace;
    ShowActualSize(workspace);
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(workspace.state.bitmaps.FullSourceBitmap.get());
    SilentProgress silent;
    RenderContext whole{bitmaps};
    Render(Projection::Rectilinear, workspace.Record(1), SizeKind::Large, silent, whole);
    const Bitmap* const photo = bitmaps.FullSourceBitmap.get();
    EXPECT_TRUE(Shows(workspace, "PicSmallFrom", photo));
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", bitmaps.ResultBitmap.get()));
    const Seen from = SeenIn(workspace, "PicSmallFrom", photo);
    const Seen to = SeenIn(workspace, "PicSmallTo", bitmaps.ResultBitmap.get());
    EXPECT_NE(to.picture, from.picture);

    workspace.Find("OptionRemap_1")->setFocus();
    QTest::keyPress(workspace.Find("OptionRemap_1"), Qt::Key_B);
    EXPECT_EQ(workspace.Shown("PicSmallTo"), workspace.Shown("PicSmallFrom"));
    QTest::keyRelease(workspace.Find("OptionRemap_1"), Qt::Key_B);
    EXPECT_EQ(SeenIn(workspace, "PicSmallTo", photo).box, to.box);

    const QPoint middle = workspace.Find("PicSmallFrom")->rect().center();
    QTest::mouseDClick(workspace.Find("PicSmallFrom"), Qt::LeftButton, {}, middle);
    EXPECT_TRUE(workspace.Find<PictureBox>("PicSmallTo")->IsWhole());
}

}  // namespace
}  // namespace varnel
