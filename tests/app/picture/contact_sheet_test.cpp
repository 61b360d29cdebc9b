// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <gtest/gtest.h>

#include "app/picture/contact_sheet_box.h"
#include "tests/support/test_window.h"

namespace varnel {
namespace {

TEST(ContactSheet, OpensWithAKeyAndAdoptsTheTileThatIsClicked) {
    testing::TestWindow workspace;
    auto* const sheet = workspace.Find<ContactSheetBox>("ContactSheet");
    workspace.Entry("CmdContactSheet")->trigger();
    EXPECT_FALSE(sheet->isVisible());  // no photo, nothing to choose from
    workspace.AddPhotos({QStringLiteral("a"), QStringLiteral("b")}, {300, 200});
    workspace.Record(1).RotateY = 5.0F;
    workspace.Record(1).SettingsApplied = true;
    workspace.Entry("CmdContactSheet")->trigger();
    ASSERT_TRUE(sheet->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return sheet->IsDrawn(); }));
    ASSERT_EQ(sheet->Tiles().size(), AllProjections().size() * strengthsPerProjection);
    for (std::size_t tile = 0; tile < sheet->Tiles().size(); ++tile) {
        EXPECT_FALSE(sheet->Picture(tile).isNull()) << tile;
        EXPECT_TRUE(sheet->rect().contains(sheet->CellOf(tile))) << tile;
    }
    constexpr std::size_t rectilinear75 = 4;
    QTest::mouseClick(sheet, Qt::LeftButton, {}, sheet->CellOf(rectilinear75).center());
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_EQ(workspace.Record(1).Projection, 1);
    EXPECT_EQ(workspace.Record(1).EffectRectilinear, 75.0F);
    EXPECT_EQ(workspace.Record(1).RotateY, 5.0F);
    EXPECT_EQ(workspace.Record(2).Projection, 0);
    EXPECT_EQ(workspace.Slider("SliderEffect")->value(), 75);

    workspace.Entry("CmdContactSheet")->trigger();
    QTest::keyClick(sheet, Qt::Key_Down);
    QTest::keyClick(sheet, Qt::Key_Return);
    std::size_t below = rectilinear75 + 1;
    while (sheet->CellOf(below).left() != sheet->CellOf(rectilinear75).left()) {
        ++below;
    }
    EXPECT_GT(sheet->CellOf(below).top(), sheet->CellOf(rectilinear75).top());
    const ImageRecord chosen = workspace.Record(1);
    EXPECT_EQ(chosen.Projection, static_cast<int>(below) / strengthsPerProjection);
    workspace.Entry("CmdContactSheet")->trigger();
    QTest::keyClick(sheet, Qt::Key_Escape);
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_EQ(workspace.Record(1), chosen);
}

}  // namespace
}  // namespace varnel
