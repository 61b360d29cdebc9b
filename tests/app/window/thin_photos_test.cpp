// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos of a single pixel, column or row, wherever pictures are shown.

#include <gtest/gtest.h>

#include "app/picture/contact_sheet_box.h"
#include "tests/app/access/every_form.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

class ThinPhotos : public ::testing::TestWithParam<PixelSize> {};

TEST_P(ThinPhotos, AreShownInEveryForm) {
    testing::ShowEveryForm([](QWidget& form) { EXPECT_FALSE(form.grab().isNull()); }, GetParam());
}

// Everything that can lie over a picture, in every projection, whole and enlarged.
void UseEveryTool(TestWindow& workspace) {
    for (const char* const entry : {"CmdViewFrame", "CmdViewMagnification", "CmdViewGrid",
                                    "CmdViewCross", "CmdViewCircle", "CmdToolsLevel"}) {
        workspace.Entry(entry)->trigger();
        for (const char* const zoom : {"CmdViewActual", "CmdViewZoomIn", "CmdViewFit"}) {
            workspace.Entry(zoom)->trigger();
            QApplication::processEvents();
            workspace.window.grab();
            for (const char* const name : {"PicSmallFrom", "PicSmallTo"}) {
                QWidget* const picture = workspace.Find(name);
                const QPoint middle = picture->rect().center();
                QTest::mousePress(picture, Qt::LeftButton, {}, middle);
                QTest::mouseMove(picture, middle + QPoint(20, 9));
                QTest::mouseRelease(picture, Qt::LeftButton, {}, middle + QPoint(20, 9));
                QTest::keyClick(picture, Qt::Key_Right);
            }
        }
    }
    workspace.Entry("CmdViewCircle")->trigger();
    workspace.Click("CmdCircleFind");
}

TEST_P(ThinPhotos, CanBeWorkedOnWithEveryTool) {
    TestWindow workspace([] { return NewPictureReader(); });
    workspace.AddPhotos({QStringLiteral("sound.bmp")});
    workspace.AddPhotos({QStringLiteral("thin.bmp")}, GetParam());
    auto* const list = workspace.Find<QListWidget>("ImageList1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !list->item(1)->icon().isNull(); }));
    list->grab();
    workspace.ClickLine(1);
    for (const char* const projection :
         {"OptionRemap_0", "OptionRemap_1", "OptionRemap_2", "OptionRemap_3"}) {
        workspace.Click(projection);
        workspace.Slider("SliderAOVoutput")->setValue(100);
        // A picture, or the number for which there is none.
        EXPECT_EQ(workspace.Find<PictureBox>("PicSmallTo")->Empty(),
                  workspace.Label("StatusText").startsWith(QStringLiteral("Division by zero: ")))
            << projection;
        UseEveryTool(workspace);
    }
    workspace.Entry("CmdContactSheet")->trigger();
    auto* const sheet = workspace.Find<ContactSheetBox>("ContactSheet");
    EXPECT_TRUE(QTest::qWaitFor([&] { return sheet->IsDrawn(); }));
    sheet->grab();
    workspace.chooser.answer = SaveChoice{workspace.files.Path(QStringLiteral("out")), 4};
    workspace.Click("CommandSaveFreeimage");
    EXPECT_NE(workspace.notices.texts.isEmpty(), workspace.Find<PictureBox>("PicSmallTo")->Empty());
}

INSTANTIATE_TEST_SUITE_P(All, ThinPhotos,
                         ::testing::Values(PixelSize{1, 1}, PixelSize{1, 3000}, PixelSize{3000, 1}),
                         [](const auto& test) {
                             return std::to_string(test.param.width) + "x" +
                                    std::to_string(test.param.height);
                         });

}  // namespace
}  // namespace varnel
