// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos of a single pixel, column or row, wherever pictures are shown.

#include <gtest/gtest.h>

#include "app/picture/contact_sheet_box.h"
#include "tests/app/access/every_form.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::WindowDesk;

class ThinPhotos : public ::testing::TestWithParam<PixelSize> {};

TEST_P(ThinPhotos, AreShownInEveryForm) {
    testing::ShowEveryForm([](QWidget& form) { EXPECT_FALSE(form.grab().isNull()); }, GetParam());
}

// Everything that can lie over a picture, in every projection, whole and enlarged.
void UseEveryTool(WindowDesk& desk) {
    for (const char* const entry : {"CmdViewFrame", "CmdViewMagnification", "CmdViewGrid",
                                    "CmdViewCross", "CmdViewCircle", "CmdToolsLevel"}) {
        desk.Entry(entry)->trigger();
        for (const char* const zoom : {"CmdViewActual", "CmdViewZoomIn", "CmdViewFit"}) {
            desk.Entry(zoom)->trigger();
            QApplication::processEvents();
            desk.window.grab();
            for (const char* const name : {"PicSmallFrom", "PicSmallTo"}) {
                QWidget* const picture = desk.Find(name);
                const QPoint middle = picture->rect().center();
                QTest::mousePress(picture, Qt::LeftButton, {}, middle);
                QTest::mouseMove(picture, middle + QPoint(20, 9));
                QTest::mouseRelease(picture, Qt::LeftButton, {}, middle + QPoint(20, 9));
                QTest::keyClick(picture, Qt::Key_Right);
            }
        }
    }
    desk.Entry("CmdViewCircle")->trigger();
    desk.Click("CmdCircleFind");
}

TEST_P(ThinPhotos, CanBeWorkedOnWithEveryTool) {
    WindowDesk desk([] { return NewPictureReader(); });
    desk.AddPhotos({QStringLiteral("sound.bmp")});
    desk.AddPhotos({QStringLiteral("thin.bmp")}, GetParam());
    auto* const list = desk.Find<QListWidget>("ImageList1");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !list->item(1)->icon().isNull(); }));
    list->grab();
    desk.ClickLine(1);
    for (const char* const projection :
         {"OptionRemap_0", "OptionRemap_1", "OptionRemap_2", "OptionRemap_3"}) {
        desk.Click(projection);
        desk.Slider("SliderAOVoutput")->setValue(100);
        // A picture, or the number for which there is none.
        EXPECT_EQ(desk.Find<PictureBox>("PicSmallTo")->Empty(),
                  desk.Label("StatusText").startsWith(QStringLiteral("Division by zero: ")))
            << projection;
        UseEveryTool(desk);
    }
    desk.Entry("CmdContactSheet")->trigger();
    auto* const sheet = desk.Find<ContactSheetBox>("ContactSheet");
    EXPECT_TRUE(QTest::qWaitFor([&] { return sheet->IsDrawn(); }));
    sheet->grab();
    desk.chooser.answer = SaveChoice{desk.files.Path(QStringLiteral("out")), 4};
    desk.Click("CommandSaveFreeimage");
    EXPECT_NE(desk.notices.texts.isEmpty(), desk.Find<PictureBox>("PicSmallTo")->Empty());
}

INSTANTIATE_TEST_SUITE_P(All, ThinPhotos,
                         ::testing::Values(PixelSize{1, 1}, PixelSize{1, 3000}, PixelSize{3000, 1}),
                         [](const auto& test) {
                             return std::to_string(test.param.width) + "x" +
                                    std::to_string(test.param.height);
                         });

}  // namespace
}  // namespace varnel
