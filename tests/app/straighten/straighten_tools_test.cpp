// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the window does with a measured lens.

#include <gtest/gtest.h>

#include "tests/support/lenses.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

using testing::TestWindow;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

TEST(StraightenTools, GivesTheLensToOneOrAllInOneStep) {
    TestWindow workspace;
    QStringList asked;
    bool forAll = false;
    workspace.dialogs.onStraighten =
        [&](std::optional<PhotoToMeasure> photo) -> std::optional<MeasuredLensUse> {
        asked.append(photo ? photo->record.FileName : Q("none"));
        return photo ? std::optional(MeasuredLensUse{
                           testing::OffCentreLensOf(photo->record, photo->bitmap->Size()), forAll})
                     : std::nullopt;
    };
    workspace.Entry("CmdToolsStraighten")->trigger();
    EXPECT_EQ(workspace.Label("StatusText"), Q("Open a photo first."));
    workspace.AddPhotos({Q("a.bmp"), Q("b.bmp"), Q("c.bmp")});
    workspace.AddPhotos({Q("square.bmp")}, {40, 40});
    workspace.ClickLine(1);
    const auto gears = [&] {
        QStringList names;
        for (int n = 1; n <= 4; ++n) {
            names.append(workspace.Record(n).Lens ? Q("own") : Q("gear"));
        }
        return names.join(u' ');
    };
    const ImageRecord before = workspace.Record(2);
    const QImage preview = workspace.Shown("PicSmallTo");
    workspace.Entry("CmdToolsStraighten")->trigger();
    EXPECT_EQ(gears(), Q("gear own gear gear"));
    EXPECT_NE(workspace.Shown("PicSmallTo"), preview);
    EXPECT_TRUE(workspace.Label("StatusText").contains(Q("undo takes it back")));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(2), before);
    forAll = true;
    workspace.Entry("CmdToolsStraighten")->trigger();
    EXPECT_EQ(gears(), Q("own own own gear")) << "the square one shows another piece";
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(gears(), Q("gear gear gear gear"));
    workspace.Entry("CmdSetupMeasure")->trigger();
    EXPECT_EQ(gears(), Q("gear gear gear gear"));
    EXPECT_EQ(asked, (QStringList{Q("b.bmp"), Q("b.bmp"), Q("none")}));
}

}  // namespace
}  // namespace varnel
