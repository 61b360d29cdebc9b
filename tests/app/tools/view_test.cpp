// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The three views, and the sharp pictures in them.

#include <gtest/gtest.h>

#include "remap/image/area_average.h"
#include "tests/support/bitmaps.h"
#include "tests/support/likeness.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::operator==;

PictureBox& Box(TestWindow& workspace, const char* name) {
    return *workspace.Find<PictureBox>(name);
}

// What the box shows of its picture, rows from the bottom.
BitmapHandle SeenIn(TestWindow& workspace, const char* name) {
    const QRect place = Box(workspace, name).PictureRect().toRect();
    const QImage shown = workspace.Shown(name).copy(place).convertToFormat(QImage::Format_BGR888);
    BitmapHandle bitmap = NewBitmap({shown.width(), shown.height()});
    for (int y = 0; y < shown.height(); ++y) {
        std::copy_n(shown.constScanLine(y), 3 * shown.width(),
                    bitmap->ScanLine(shown.height() - 1 - y).begin());
    }
    return bitmap;
}

BitmapHandle ReducedTo(const Bitmap& picture, PixelSize size) {
    BitmapHandle reduced = NewBitmap(size);
    SerialRunner serial;
    AverageAreas(picture,
                 {{0.0, 1.0 * picture.Size().width / size.width},
                  {0.0, 1.0 * picture.Size().height / size.height}},
                 *reduced, serial);
    return reduced;
}

BitmapHandle Converted(const TestWindow& workspace, Projection projection) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(workspace.state.bitmaps.FullSourceBitmap.get());
    SilentProgress silent;
    RenderContext whole{bitmaps};
    Render(projection, workspace.state.Images(1), SizeKind::Large, silent, whole);
    return std::move(bitmaps.ResultBitmap);
}

TEST(Views, AtRestThePicturesAreAsSharpAsTheFilesReduced) {
    TestWindow workspace;
    workspace.AddPhotos({QStringLiteral("photo.bmp")}, {2400, 1600});
    workspace.Click("CheckAntialiased");  // governs the draft alone
    workspace.Entry("CmdViewFrame")->setChecked(false);
    for (const char* const view : {"CmdViewSplit", "CmdViewResult"}) {
        workspace.Entry(view)->trigger();
        for (const Projection projection : {Projection::Varnel, Projection::Rectilinear}) {
            workspace.Click(projection == Projection::Varnel ? "OptionRemap_0" : "OptionRemap_1");
            ASSERT_TRUE(testing::Settle());
            const BitmapHandle seen = SeenIn(workspace, "PicSmallTo");
            const BitmapHandle saved = Converted(workspace, projection);
            // The picture is full of hard edges; half a pixel aside there are 25 dB.
            EXPECT_GT(testing::Likeness(*seen, *ReducedTo(*saved, seen->Size())), 34.0) << view;
        }
        const BitmapHandle photo = SeenIn(workspace, "PicSmallFrom");
        const Bitmap& full = *workspace.state.bitmaps.FullSourceBitmap;
        EXPECT_GT(testing::Likeness(*photo, *ReducedTo(full, photo->Size())), 45.0) << view;
    }
}

// At rest a small photo's result is not made of squares.
TEST(Views, SmallPicturesAreInterpolated) {
    TestWindow workspace;
    const QString path = workspace.files.Path(QStringLiteral("noise.bmp"));
    SaveBitmap(OutputType::Bmp, testing::Noise({60, 40}).get(), path);
    workspace.window.AddFiles({path});
    workspace.Click("CheckAntialiased");
    workspace.Click("OptionRemap_0");
    ASSERT_TRUE(testing::Settle());
    const BitmapHandle seen = SeenIn(workspace, "PicSmallTo");
    const PixelSize size = seen->Size();
    const int y = size.height / 2;
    int same = 0;
    for (int x = size.width / 4; x < size.width * 3 / 4; ++x) {
        same +=
            testing::PixelAt(seen.get(), x, y) == testing::PixelAt(seen.get(), x + 1, y) ? 1 : 0;
    }
    EXPECT_LT(same, size.width / 8);  // of half as many; a pixel of the photo is some seven wide
}

TEST(Views, WaitForThePreviewButtonWithoutAutomaticPreview) {
    TestWindow workspace;
    workspace.AddPhotos({QStringLiteral("photo.bmp")}, {1200, 800});
    workspace.Click("OptionRemap_1");
    ASSERT_TRUE(testing::Settle());
    const QImage before = workspace.Shown("PicSmallTo");
    workspace.Click("CheckAutoPreview");
    workspace.Slider("SliderX")->setValue(30);
    workspace.Click("OptionRemap_0");
    ASSERT_TRUE(testing::Settle());
    workspace.window.resize(workspace.window.size() + QSize(40, 0));
    workspace.window.resize(workspace.window.size() - QSize(40, 0));
    ASSERT_TRUE(testing::Settle());
    EXPECT_EQ(workspace.Shown("PicSmallTo"), before);
    workspace.Click("CmdFreeImage");
    ASSERT_TRUE(testing::Settle());
    EXPECT_NE(workspace.Shown("PicSmallTo"), before);
}

TEST(Views, FillTheRoomAndAreRemembered) {
    TestWindow workspace;
    workspace.AddPhotos({QStringLiteral("photo.bmp")}, {90, 60});
    const PictureBox& from = Box(workspace, "PicSmallFrom");
    const PictureBox& to = Box(workspace, "PicSmallTo");
    const QWidget& area = *to.parentWidget();
    EXPECT_EQ(from.size(), to.size());
    EXPECT_EQ(to.FitSize().width(), to.width());  // a small photo is enlarged
    workspace.Entry("CmdViewResult")->trigger();
    EXPECT_GT(to.width(), area.width() - 30);
    EXPECT_TRUE(to.geometry().contains(from.geometry()));

    QWidget* const inset = workspace.Find("PhotoInset");
    const QPoint corner = inset->pos();
    QTest::mousePress(inset, Qt::LeftButton, {}, {30, 5});
    QTest::mouseMove(inset, {60, -55});
    QTest::mouseRelease(inset, Qt::LeftButton, {}, {60, -55});
    EXPECT_EQ(inset->pos(), corner + QPoint(30, -60));

    workspace.Entry("CmdViewPhoto")->trigger();
    EXPECT_TRUE(to.isHidden());
    EXPECT_GT(from.width(), area.width() - 30);
    workspace.Entry("CmdViewResult")->trigger();
    workspace.dialogs.saveFirst = SaveFirst::DoNotSave;
    workspace.window.close();

    MDIForm1 next(workspace.state, workspace.store,
                  {workspace.photos,
                   workspace.notices,
                   workspace.prompt,
                   workspace.chooser,
                   workspace.dialogs,
                   nullptr,
                   {},
                   nullptr});
    EXPECT_TRUE(next.findChild<QAction*>(QStringLiteral("CmdViewResult"))->isChecked());
    EXPECT_FALSE(next.findChild<QWidget*>(QStringLiteral("PhotoInset"))->isHidden());
}

TEST(Views, TheSliderInTheStatusLineZoomsThePicturesTogether) {
    TestWindow workspace;
    EXPECT_EQ(workspace.Label("ZoomText"), QString());
    workspace.AddPhotos({QStringLiteral("photo.bmp")}, {2400, 1600});
    QSlider* const zoom = workspace.Slider("ZoomSlider");
    EXPECT_EQ(zoom->value(), 0);
    zoom->setValue(100);
    EXPECT_EQ(workspace.Label("ZoomText"), QStringLiteral("800 %"));
    EXPECT_FALSE(Box(workspace, "PicSmallFrom").IsWhole());
    workspace.Entry("CmdViewResult")->trigger();
    EXPECT_TRUE(Box(workspace, "PicSmallFrom").IsWhole());
    EXPECT_FALSE(Box(workspace, "PicSmallTo").IsWhole());
    workspace.Click("CmdZoomActual");
    EXPECT_EQ(workspace.Label("ZoomText"), QStringLiteral("100 %"));
    workspace.Click("CmdZoomFit");
    EXPECT_TRUE(Box(workspace, "PicSmallTo").IsWhole());
    EXPECT_EQ(zoom->value(), 0);
}

TEST(Walking, NeighboursAreThereBeforeTheyAreLookedAt) {
    TestWindow workspace([] { return NewPictureReader(); });
    workspace.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp"), QStringLiteral("c.bmp")},
                        {300, 200});
    const auto reads = [&workspace](int line) {
        bool read = false;
        workspace.reader.meanwhile = [&read] { read = true; };
        workspace.ClickLine(line);
        workspace.reader.meanwhile = nullptr;
        EXPECT_FALSE(workspace.Find<PictureBox>("PicSmallTo")->Empty());
        return read;
    };
    EXPECT_TRUE(reads(2));  // it was no neighbour
    QTest::qWait(500);
    EXPECT_FALSE(reads(1));
    EXPECT_FALSE(reads(2));  // it was left just now
}

}  // namespace
}  // namespace varnel
