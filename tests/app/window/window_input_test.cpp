// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Mouse and keys where they could do harm.

#include <gtest/gtest.h>

#include <QComboBox>

#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

TEST(MainWindow, AWheelThatPassesOverASliderChangesNothing) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")});
    QSlider* const slider = workspace.Slider("SliderAOVinput");
    workspace.Find("ImageList1")->setFocus();
    const auto roll = [&] {
        QWheelEvent wheel({5, 5}, slider->mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(slider, &wheel);
    };
    const int before = slider->value();
    roll();
    EXPECT_EQ(slider->value(), before);
    auto* const gears = workspace.Find<QComboBox>("GearCombo");
    gears->addItem(Text("another"));
    QWheelEvent overGears({5, 5}, gears->mapToGlobal(QPointF(5, 5)), {}, {0, -120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(gears, &overGears);
    EXPECT_EQ(gears->currentIndex(), 0);
    slider->setFocus();
    roll();
    EXPECT_NE(slider->value(), before);
}

// What can be done to the list's selection, on three photos of which the first is current.
struct Deed {
    const char* name;
    std::function<void(TestWindow&, QListWidget&)> act;
    int line;  // the current one afterwards
    std::vector<int> selected;
};

void MouseOnLine(QListWidget& list, int line, Qt::MouseButton button) {
    QTest::mouseClick(list.viewport(), button, Qt::ControlModifier,
                      list.visualItemRect(list.item(line)).center());
}

std::vector<Deed> Deeds() {
    const auto key = [](Qt::Key pressed, Qt::KeyboardModifiers modifiers) {
        return [=](TestWindow&, QListWidget& list) { QTest::keyClick(&list, pressed, modifiers); };
    };
    const auto controlClick = [](int line, Qt::MouseButton button = Qt::LeftButton) {
        return [=](TestWindow&, QListWidget& list) { MouseOnLine(list, line, button); };
    };
    const auto onEmptyPart = [](bool drag) {
        return [=](TestWindow& workspace, QListWidget& list) {
            workspace.ClickLine(2, Qt::ControlModifier);
            workspace.ClickLine(0, Qt::ControlModifier);
            workspace.ClickLine(0, Qt::ControlModifier);
            const QPoint below = list.viewport()->rect().bottomLeft() + QPoint(5, -5);
            QTest::mousePress(list.viewport(), Qt::LeftButton, {}, below);
            if (drag) {
                QTest::mouseMove(list.viewport(), below + QPoint(60, -10));
            }
            QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, below + QPoint(60, -10));
        };
    };
    const auto entry = [](const char* name) {
        return [=](TestWindow& workspace, QListWidget&) { workspace.Entry(name)->trigger(); };
    };
    const auto then = [](auto first, auto second) {
        return [=](TestWindow& workspace, QListWidget& list) {
            first(workspace, list);
            second(workspace, list);
        };
    };
    const auto remove = key(Qt::Key_Delete, {});
    return {
        {"a click on the empty part", onEmptyPart(false), 0, {0}},
        {"a drag on the empty part", onEmptyPart(true), 0, {0}},
        {"Ctrl+click on the last one", controlClick(0), 0, {0}},
        {"Ctrl+click on another, twice", then(controlClick(2), controlClick(2)), 0, {0}},
        {"Ctrl+right click on another", controlClick(1, Qt::RightButton), 1, {0, 1}},
        {"Ctrl+Space", key(Qt::Key_Space, Qt::ControlModifier), 0, {0}},
        {"Ctrl+Down", key(Qt::Key_Down, Qt::ControlModifier), 1, {0, 1}},
        {"no selection", [](TestWindow&, QListWidget& list) { list.clearSelection(); }, 0, {0}},
        {"nothing", [](TestWindow&, QListWidget& list) { list.selectionModel()->clear(); }, 0, {0}},
        {"moving", key(Qt::Key_Down, Qt::AltModifier), 1, {1}},
        {"removing", remove, 0, {0}},
        {"taking it back", then(remove, entry("CmdEditUndo")), 1, {1}},
    };
}

TEST(PhotoList, KeepsTheCurrentLineSelectedSoThatTheSlidersReachIt) {
    for (const Deed& deed : Deeds()) {
        TestWindow workspace;
        workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
        auto* const list = workspace.Find<QListWidget>("ImageList1");
        deed.act(workspace, *list);
        QApplication::processEvents();
        EXPECT_EQ(list->currentRow(), deed.line) << deed.name;
        std::vector<int> selected;
        for (int line = 0; line < list->count(); ++line) {
            if (list->item(line)->isSelected()) {
                selected.push_back(line);
            }
        }
        EXPECT_EQ(selected, deed.selected) << deed.name;
        workspace.Slider("SliderAOVinput")->setValue(99);
        EXPECT_EQ(workspace.Record(deed.line + 1).InputAOV, 99.0F) << deed.name;
        EXPECT_TRUE(workspace.window.windowTitle().startsWith(list->item(deed.line)->text()));
    }
}

}  // namespace
}  // namespace varnel
