// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the main window is arranged: the toolbar, the filmstrip, what folds, the dots beside the
// sliders, the line above the pictures and the colours.

#include <gtest/gtest.h>

#include <QToolBar>
#include <QToolButton>

#include "app/looks/theme.h"
#include "app/panels/fold_group.h"
#include "app/panels/photo_list.h"
#include "app/panels/reset_dot.h"
#include "decoder/process/picture_reader.h"
#include "state/settings/default_choices.h"
#include "tests/app/film/fake_film.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"
#include "translations/window_language.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

bool IsInSight(const QWidget& widget) {
    return widget.isVisible() && widget.visibleRegion().boundingRect() == widget.rect();
}

TEST(Layout, AllSlidersShowOnALowScreenInBothLanguages) {
    for (const char* const language : {"en", "de"}) {
        const WindowLanguage texts(*QApplication::instance(), Text(language));
        TestWindow workspace;
        workspace.window.resize(1366, 700);  // less the frame and the desktop's bar
        workspace.AddPhotos({Text("a.bmp")});
        for (const Projection projection : AllProjections()) {
            workspace.ChooseProjection(projection);
            EXPECT_TRUE(testing::Settle());
            for (const SliderRowData& row : SliderRows()) {
                EXPECT_EQ(IsInSight(*workspace.Slider(row.slider)), ShownWith(row, projection))
                    << language << ToText(projection).toStdString() << row.slider;
            }
        }
        EXPECT_TRUE(IsInSight(*workspace.Find("CommandSaveFreeimage"))) << language;
        EXPECT_TRUE(IsInSight(*workspace.Find("ImageList1"))) << language;
    }
}

// The bar's choices go below one another there, and beside one another where there is room.
TEST(Layout, AFilmFitsASmallScreenInEveryLanguage) {
    bool isStacked = false;
    for (const Language& language : languages) {
        const WindowLanguage texts(*QApplication::instance(), language.code);
        testing::FakeFilm film;
        testing::FakeSaver saver;
        TestWindow workspace{nullptr, {}, Restore::Later, {nullptr, {}, &film, &saver}};
        workspace.AddPhotos({Text("film.bmp")});
        EXPECT_TRUE(testing::Settle());
        const QWidget* const bar = workspace.Find("BarFilm");
        std::vector<int> heights;
        for (const int width : {1600, 1024}) {
            workspace.window.resize(width, 700);
            EXPECT_TRUE(testing::Settle());
            EXPECT_EQ(workspace.window.width(), width) << language.code.data();
            heights.push_back(bar->height());
            EXPECT_TRUE(IsInSight(*workspace.Find("CmdFilmSave"))) << language.code.data();
            EXPECT_TRUE(IsInSight(*workspace.Find("CmdFilmIn"))) << language.code.data();
        }
        isStacked = isStacked || heights[1] > heights[0];
    }
    EXPECT_TRUE(isStacked);
}

TEST(Layout, TheToolbarHasTheEntriesOfTheMenus) {
    TestWindow workspace;
    auto* const bar = workspace.Find<QToolBar>("ToolBarMain");
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonIconOnly);
    int tools = 0;
    for (const QAction* const entry : bar->actions()) {
        if (!entry->isSeparator()) {
            ++tools;
            EXPECT_FALSE(entry->icon().pixmap(22).toImage().isNull());
            EXPECT_EQ(entry, workspace.Entry(entry->objectName().toUtf8().constData()));
        }
    }
    EXPECT_EQ(tools, 12);
    EXPECT_EQ(workspace.Entry("CmdViewFrame")->toolTip(), Text("Frame on the photo (Ctrl+F)"));
    workspace.Click("ToolCmdViewGrid");
    EXPECT_TRUE(workspace.Entry("CmdViewGrid")->isChecked());
    workspace.Entry("CmdViewToolTexts")->trigger();
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    EXPECT_EQ(workspace.store.Get(Text("Window"), Text("ToolTexts"), {}), Text("1"));
}

TEST(Layout, GroupsFoldAndStayFolded) {
    TestWindow workspace;
    const QWidget* const slider = workspace.Slider("SliderAOVinput");
    EXPECT_TRUE(slider->isVisible());
    EXPECT_FALSE(workspace.Find("CmdFreeImage")->isVisible());
    workspace.Click("FoldFrame1");
    workspace.Click("FoldFramePreview");
    EXPECT_FALSE(slider->isVisible());
    EXPECT_TRUE(workspace.Find("CmdFreeImage")->isVisible());
    EXPECT_EQ(workspace.store.Get(Text("Window"), Text("FoldedFrame1"), {}), Text("1"));
    EXPECT_EQ(workspace.store.Get(Text("Window"), Text("FoldedFramePreview"), {}), Text("0"));
}

TEST(Layout, TheListIsAFilmstripOrStandsInTheColumn) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    auto* const list = workspace.Find<PhotoList>("ImageList1");
    const auto top = [&](int line) { return list->visualItemRect(list->item(line)).top(); };
    const auto names = [list] {
        return list->item(0)->text() + list->item(1)->text() + list->item(2)->text();
    };
    EXPECT_EQ(top(0), top(2));
    QTest::keyClick(list, Qt::Key_Right);
    EXPECT_EQ(list->currentRow(), 1);
    QTest::keyClick(list, Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(names(), Text("b.bmpa.bmpc.bmp"));
    workspace.Entry("CmdViewListLeft")->trigger();
    EXPECT_TRUE(testing::Settle());
    EXPECT_GT(top(2), top(0));
    EXPECT_LT(list->mapTo(&workspace.window, QPoint()).x(),
              workspace.Find("PicSmallFrom")->mapTo(&workspace.window, QPoint()).x());
    QTest::keyClick(list, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(names(), Text("a.bmpb.bmpc.bmp"));
}

// Also of photos that the strip is too short for.
TEST(Layout, SmallPicturesShowTheResultsOrThePhotos) {
    TestWindow workspace([] { return NewPictureReader(); });
    QStringList names;
    for (int n = 0; n < 30; ++n) {
        names.append(Text("%1.bmp").arg(n));
    }
    workspace.AddPhotos(names, {300, 200});
    workspace.ClickLine(1);
    auto* const list = workspace.Find<PhotoList>("ImageList1");
    const auto picture = [list](int line) {
        return list->item(line)->icon().pixmap(list->iconSize()).toImage();
    };
    const auto changesFrom = [&picture](const QImage& before, int line) {
        return QTest::qWaitFor([&] { return picture(line) != before; }, 20'000);
    };
    ASSERT_TRUE(changesFrom({}, 29));
    const QImage photo = picture(29);  // it has no gear yet
    const QImage result = picture(1);
    EXPECT_NE(result, photo);
    workspace.Click("OptionRemap_1");
    EXPECT_TRUE(changesFrom(result, 1));
    const QImage rectilinear = picture(1);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_TRUE(changesFrom(rectilinear, 1));
    EXPECT_EQ(picture(1), result);
    workspace.Entry("CmdViewListResults")->trigger();
    EXPECT_TRUE(changesFrom(result, 1));
    EXPECT_EQ(picture(1), photo);
}

TEST(Layout, ADotMarksAndResetsWhatIsNotUsual) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    workspace.Click("OptionRemap_1");
    const ImageRecord usual = workspace.Record(1);
    const auto marked = [&workspace] {
        EXPECT_TRUE(testing::Settle());
        QStringList names;
        for (const ResetDot* const dot : workspace.window.findChildren<ResetDot*>()) {
            if (dot->isEnabled()) {
                names.append(dot->objectName());
            }
        }
        names.sort();
        return names.join(u' ');
    };
    EXPECT_EQ(marked(), QString());
    EXPECT_FALSE(workspace.Find("CmdResetPhoto")->isEnabled());
    workspace.Slider("SliderX")->setValue(12);
    workspace.Slider("SliderAOVoutput")->setValue(90);
    workspace.Slider("SliderEffect")->setValue(50);
    workspace.Slider("SliderAOVinput")->setValue(99);
    EXPECT_EQ(marked(), Text("DotSliderAOVinput DotSliderAOVoutput DotSliderEffect DotSliderX"));
    workspace.Click("DotSliderX");
    EXPECT_EQ(workspace.Record(1).RotateX, 0.0F);
    EXPECT_EQ(marked(), Text("DotSliderAOVinput DotSliderAOVoutput DotSliderEffect"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).RotateX, 12.0F);
    const ImageRecord moved = workspace.Record(1);
    workspace.Click("CmdResetPhoto");
    EXPECT_EQ(marked(), QString());
    EXPECT_EQ(workspace.Record(1).InputAOV, workspace.state.Gear(1).hAOV);
    EXPECT_EQ(workspace.Record(1).Projection, usual.Projection);
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo reset photo"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1), moved);
}

TEST(Layout, TheLineAboveThePicturesSaysWhatTheMouseDoes) {
    TestWindow workspace;
    const auto hint = [&workspace] {
        EXPECT_TRUE(testing::Settle());
        return workspace.Label("LabelHint");
    };
    EXPECT_EQ(hint(), QString());
    workspace.AddPhotos({Text("a.bmp")});
    EXPECT_EQ(hint(), QString());  // Varnel does not turn
    workspace.Click("OptionRemap_1");
    EXPECT_TRUE(hint().startsWith(Text("drag: turn")));
    for (const char* const tool : {"CmdToolsLevel", "CmdViewCircle"}) {
        workspace.Entry(tool)->trigger();
        EXPECT_TRUE(hint().endsWith(Text("Escape leaves"))) << tool;
        QTest::keyClick(workspace.Find("ImageList1"), Qt::Key_Escape);
        EXPECT_TRUE(hint().startsWith(Text("drag: turn"))) << tool;
        EXPECT_FALSE(workspace.Entry(tool)->isChecked()) << tool;
    }
}

TEST(Theme, IsLightOrDarkAsChosen) {
    const QPalette before = QApplication::palette();
    const auto lightness = [] {
        return QApplication::palette().color(QPalette::Window).lightness();
    };
    {
        ThemeKeeper keeper(Theme::Dark);
        EXPECT_LT(lightness(), 80);
        keeper.Choose(Theme::Light);
        EXPECT_GT(lightness(), 200);
    }
    for (const Theme theme : {Theme::System, Theme::Light, Theme::Dark}) {
        EXPECT_EQ(ThemeFromText(ToText(theme)), theme);
    }
    EXPECT_EQ(ThemeFromText(u"blue"), Theme::System);
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace varnel
