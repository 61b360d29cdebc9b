// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Both pictures zoomed together.

#include <gtest/gtest.h>

#include "remap/display/paint.h"
#include "tests/support/settled.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::WindowDesk;

// A photo larger than its picture, in straight-line view, the zoom at 100 % and all slices drawn.
void ShowActualSize(WindowDesk& desk) {
    desk.AddPhotos({QStringLiteral("photo.bmp")}, {1500, 1000});
    desk.Click("OptionRemap_1");
    desk.Entry("CmdViewActual")->trigger();
    EXPECT_TRUE(testing::Settle());
}

// What a box shows, and the same part of a picture of full size.
struct Seen {
    QImage box, picture;
};

Seen SeenIn(WindowDesk& desk, const char* name, FIBITMAP* picture) {
    auto* const box = desk.Find<PictureBox>(name);
    const QPoint corner = box->ToWidget().map(QPointF()).toPoint();
    return {desk.Shown(name).convertToFormat(QImage::Format_BGR888),
            ImageOf(picture).copy(QRect(-corner, box->size()))};
}

TEST(Zoom, AtActualSizeBothShowTheFullSizePixels) {
    WindowDesk desk;
    ShowActualSize(desk);
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(desk.state.bitmaps.FullSourceBitmap.get());
    SilentProgress silent;
    RenderDesk whole{bitmaps};
    Render(Projection::Rectilinear, desk.Record(1), SizeKind::Large, silent, whole);
    FIBITMAP* const photo = bitmaps.FullSourceBitmap.get();
    const Seen from = SeenIn(desk, "PicSmallFrom", photo);
    const Seen to = SeenIn(desk, "PicSmallTo", bitmaps.ResultBitmap.get());
    EXPECT_EQ(from.box, from.picture);
    EXPECT_EQ(to.box, to.picture);
    EXPECT_NE(to.picture, from.picture);

    desk.Find("OptionRemap_1")->setFocus();
    QTest::keyPress(desk.Find("OptionRemap_1"), Qt::Key_B);
    EXPECT_EQ(desk.Shown("PicSmallTo"), desk.Shown("PicSmallFrom"));
    QTest::keyRelease(desk.Find("OptionRemap_1"), Qt::Key_B);
    EXPECT_EQ(SeenIn(desk, "PicSmallTo", photo).box, to.box);

    const QPoint middle = desk.Find("PicSmallTo")->rect().center();
    QTest::mouseDClick(desk.Find("PicSmallTo"), Qt::LeftButton, {}, middle);
    EXPECT_TRUE(desk.Find("ZoomText")->isHidden());
}

}  // namespace
}  // namespace varnel
