// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A first day with Varnel without a mouse: keys alone, on the real dialogs.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QFileInfo>
#include <QTest>

#include "app/dialogs/message_boxes.h"
#include "app/dialogs/real_dialogs.h"
#include "app/window/main_window.h"
#include "state/settings/setting_names.h"
#include "tests/support/answers.h"
#include "tests/support/files.h"
#include "tests/support/loading.h"

namespace varnel {
namespace {

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

// To whatever has the keyboard.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}, int times = 1) {
    for (int n = 0; n < times; ++n) {
        QWidget* const popup = QApplication::activePopupWidget();
        QWidget* const target = popup != nullptr ? popup : QApplication::focusWidget();
        ASSERT_NE(target, nullptr);
        QTest::keyClick(target, key, modifiers);
    }
}

void TabTo(const char* control) {
    const auto there = [control] {
        const QWidget* const now = QApplication::focusWidget();
        return now != nullptr && now->objectName() == Q(control);
    };
    for (int n = 0; n < 60 && !there(); ++n) {
        Press(Qt::Key_Tab);
    }
    EXPECT_TRUE(there()) << control;
}

void WaitForKeyboard(QDialog* dialog) {
    EXPECT_TRUE(QTest::qWaitFor([dialog] {
        return QApplication::focusWidget() != nullptr &&
               QApplication::focusWidget()->window() == dialog;
    }));
}

void Choose(const char* combo, const char* text) {
    TabTo(combo);
    const auto* const box = qobject_cast<QComboBox*>(QApplication::focusWidget());
    ASSERT_NE(box, nullptr) << combo;
    for (int n = 0; n < 200 && box->currentText() != Q(text); ++n) {
        Press(Qt::Key_Down);
    }
    EXPECT_EQ(box->currentText(), Q(text));
}

void Agree(QDialog* dialog) {
    WaitForKeyboard(dialog);
    Press(Qt::Key_Return);
}

void DefineGear(QDialog* dialog) {
    WaitForKeyboard(dialog);
    Choose("CameraBrandCombo", "Canon");
    Choose("CameraCombo", "EOS 5D");
    Choose("LensBrandCombo", "Sigma");
    Choose("LensCombo", "EX 8 mm f:3.5");
    TabTo("CmdAdd");
    Press(Qt::Key_Space);
}

void AddEveryPhoto(QDialog* dialog) {
    WaitForKeyboard(dialog);
    TabTo("File1");
    Press(Qt::Key_A, Qt::ControlModifier);
    TabTo("CmdAddImages");
    Press(Qt::Key_Space);
}

void Adjust() {
    TabTo("OptionRemap_0");
    Press(Qt::Key_Right);
    TabTo("SliderY");
    Press(Qt::Key_Right, {}, 2);
    TabTo("SpinSliderX");
    QTest::keyClicks(QApplication::focusWidget(), Q("-7"));
    Press(Qt::Key_Return);
}

void RunTheBatch(QDialog* dialog) {
    WaitForKeyboard(dialog);
    Choose("ComboFileType", "BMP");
    TabTo("CmdBatchProcess");
    Press(Qt::Key_Space);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), Q("CmdCancel"));
    Press(Qt::Key_Space);
}

TEST(Keyboard, FromTheFirstStartToABatch) {
    const testing::PictureFolder folder;
    folder.Picture(Q("a.png"), OutputType::Png, {300, 200});
    folder.Picture(Q("b.png"), OutputType::Png, {300, 200});
    WorkingState state;
    MemoryStore store;
    store.Save(setting::LastUsed, setting::LastDrive, Q("/"));
    store.Save(setting::LastUsed, setting::LastPath, folder.Path({}));
    MessageBoxes notices;
    FirstGearPrompt prompt;
    SaveFileDialog chooser;
    PhotoLoader photos(testing::Reader());
    RealDialogs dialogs(state, store, testing::Reader(), photos, notices, chooser);
    MDIForm1 window(state, store, {photos, notices, prompt, chooser, dialogs});
    // The window manager's part: the offscreen platform has none.
    const auto back = [&window] {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    };
    {
        const testing::Answers answers({&Agree, &DefineGear});
        window.show();
        ASSERT_TRUE(QTest::qWaitFor([&state] { return state.Gear.UpperBound() == 1; }, 20000));
    }
    back();
    {
        const testing::Answers answers({&AddEveryPhoto});
        Press(Qt::Key_O, Qt::ControlModifier);
    }
    ASSERT_EQ(state.Images.UpperBound(), 2);
    back();
    Adjust();
    EXPECT_EQ(state.Images(1).Projection, 1);
    EXPECT_EQ(state.Images(1).RotateY, 20.0F);
    EXPECT_EQ(state.Images(1).RotateX, -7.0F);
    const QString saved = folder.Path(Q("saved.TIF"));
    {
        const testing::Answers answers({[&saved](QDialog* dialog) {
            WaitForKeyboard(dialog);
            Press(Qt::Key_A, Qt::ControlModifier);
            QTest::keyClicks(QApplication::focusWidget(), saved);
            Press(Qt::Key_Return);
        }});
        Press(Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_TRUE(QFileInfo::exists(saved));
    back();
    TabTo("CommandAddToBatchQue");
    Press(Qt::Key_Space);
    {
        const testing::Answers answers({&RunTheBatch});
        TabTo("CmdBatchProcess");
        Press(Qt::Key_Space);
    }
    EXPECT_TRUE(QFileInfo::exists(folder.Path(Q("a.Rectilinear_hAOV130_LR20_UD-7.BMP"))));
    EXPECT_TRUE(QFileInfo::exists(folder.Path(Q("b.Varnel.BMP"))));
}

}  // namespace
}  // namespace varnel
