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

BitmapHandle FullResult(TestWindow& workspace, SamplingKind sampling) {
    Bitmaps bitmaps;
    bitmaps.FullSourceBitmap = CloneBitmap(workspace.state.bitmaps.FullSourceBitmap.get());
    ImageRecord image = workspace.Record(1);
    image.Sampling = sampling;
    SilentProgress silent;
    RenderContext whole{bitmaps};
    Render(Projection::Rectilinear, image, SizeKind::Large, silent, whole);
    return std::move(bitmaps.ResultBitmap);
}

// Pixels of the box away from the line, by the share of its width.
bool ShowsBetween(TestWindow& workspace, const Bitmap* picture, double left, double right) {
    const auto part = [left, right](const QImage& image) {
        return image.copy(
            QRect(QPoint(static_cast<int>(left * image.width()), image.height() / 2),
                  QPoint(static_cast<int>(right * image.width()), image.height() - 20)));
    };
    return QTest::qWaitFor(
        [&] {
            const Seen seen = SeenIn(workspace, "PicSmallTo", picture);
            return part(seen.box) == part(seen.picture);
        },
        20'000);
}

TEST(Zoom, TheDividerComparesSamplingsAtActualSize) {
    TestWindow workspace;
    ShowActualSize(workspace);
    const BitmapHandle classic = FullResult(workspace, SamplingKind::Classic);
    const BitmapHandle fine = FullResult(workspace, SamplingKind::Fine);
    auto* const box = workspace.Find<PictureBox>("PicSmallTo");
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", classic.get()));
    workspace.Entry("CmdViewFit")->trigger();
    workspace.Entry("CmdViewDivider")->trigger();
    workspace.Entry("CmdViewSamplings")->trigger();
    EXPECT_FALSE(workspace.Entry("CmdViewDivider")->isChecked());
    EXPECT_EQ(workspace.Label("ZoomText"), QStringLiteral("100 %"));
    EXPECT_TRUE(ShowsBetween(workspace, classic.get(), 0.05, 0.45));
    EXPECT_TRUE(ShowsBetween(workspace, fine.get(), 0.55, 0.95));
    const Seen seen = SeenIn(workspace, "PicSmallTo", fine.get());
    EXPECT_NE(seen.picture, SeenIn(workspace, "PicSmallTo", classic.get()).picture);

    workspace.Slider("SliderX")->setValue(7);  // both are drawn anew
    EXPECT_TRUE(
        ShowsBetween(workspace, FullResult(workspace, SamplingKind::Classic).get(), 0.05, 0.45));
    EXPECT_TRUE(
        ShowsBetween(workspace, FullResult(workspace, SamplingKind::Fine).get(), 0.55, 0.95));
    workspace.Slider("SliderX")->setValue(0);

    workspace.Entry("CmdViewFit")->trigger();  // shown whole, there is nothing to compare
    EXPECT_TRUE(box->DividedPart().isEmpty());
    workspace.Entry("CmdViewActual")->trigger();
    workspace.Entry("CmdViewSamplings")->trigger();
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", classic.get()));
}

// Also without automatic preview.
TEST(Zoom, ASamplingThatIsChosenForSavingShowsAtOnce) {
    TestWindow workspace;
    ShowActualSize(workspace);
    const BitmapHandle classic = FullResult(workspace, SamplingKind::Classic);
    const BitmapHandle fine = FullResult(workspace, SamplingKind::Fine);
    workspace.Click("CheckAutoPreview");
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", classic.get()));
    workspace.dialogs.onDefaults = [&workspace] { workspace.state.settings.FineSampling = true; };
    workspace.Entry("CmdSetupSetup")->trigger();
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", fine.get()));

    SaveChoice choice{workspace.files.Path(QStringLiteral("out.bmp")), 1, SaveOffer()};
    choice.output->wish.sampling = SamplingKind::Classic;
    workspace.chooser.answer = choice;
    workspace.Entry("CmdFileSaveImage")->trigger();
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", classic.get()));
}

TEST(Zoom, AtActualSizeBothShowTheFullSizePixels) {
    TestWindow workspace;
    ShowActualSize(workspace);
    const BitmapHandle result = FullResult(workspace, SamplingKind::Classic);
    const Bitmap* const photo = workspace.state.bitmaps.FullSourceBitmap.get();
    EXPECT_TRUE(Shows(workspace, "PicSmallFrom", photo));
    EXPECT_TRUE(Shows(workspace, "PicSmallTo", result.get()));
    const Seen from = SeenIn(workspace, "PicSmallFrom", photo);
    const Seen to = SeenIn(workspace, "PicSmallTo", result.get());
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
