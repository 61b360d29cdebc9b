// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Undo and redo, and the list's order and marks, as they are used on the window.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QMimeData>

#include "app/panels/photo_list.h"
#include "tests/support/settled.h"
#include "tests/support/texts.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::Text;
using testing::WindowDesk;

std::string Lines(WindowDesk& desk) {
    QString lines;
    auto* const list = desk.Find<QListWidget>("ImageList1");
    for (int line = 0; line < list->count(); ++line) {
        EXPECT_EQ(list->item(line)->text(), desk.Record(line + 1).FileName);
        lines += list->item(line)->text().chopped(4);
        lines += line == list->currentRow() ? Text("*") : QString();
        lines += list->item(line)->isSelected() ? Text("+") : QString();
    }
    return lines.toStdString();
}

void Keys(WindowDesk& desk, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(desk.window.focusWidget(), key, modifiers);
    QApplication::processEvents();
}

TEST(Undo, TheEntriesNameTheStepAndControlsListAndPreviewFollow) {
    WindowDesk desk;
    EXPECT_FALSE(desk.Entry("CmdEditUndo")->isEnabled());
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp")}, {300, 200});
    EXPECT_EQ(desk.Entry("CmdEditUndo")->text(), Text("&Undo add images"));
    desk.Click("OptionRemap_1");
    EXPECT_EQ(desk.Entry("CmdEditUndo")->text(), Text("&Undo projection"));
    const QImage before = desk.Shown("PicSmallTo");
    desk.Press("SliderY", Qt::Key_Right);
    desk.Press("SliderY", Qt::Key_Right);
    EXPECT_EQ(desk.Record(1).RotateY, 20.0F);
    EXPECT_EQ(desk.Entry("CmdEditUndo")->text(), Text("&Undo rotate left/right"));
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.Record(1).RotateY, 0.0F);
    EXPECT_EQ(desk.Slider("SliderY")->value(), 0);
    EXPECT_EQ(desk.Shown("PicSmallTo"), before);
    EXPECT_EQ(desk.Entry("CmdEditRedo")->text(), Text("&Redo rotate left/right"));
    desk.Find("SpinSliderY")->setFocus();
    Keys(desk, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(desk.Slider("SliderY")->value(), 20);
    EXPECT_FALSE(desk.Entry("CmdEditRedo")->isEnabled());
    Keys(desk, Qt::Key_Z, Qt::ControlModifier);
    Keys(desk, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(desk.Find<QAbstractButton>("OptionRemap_0")->isChecked());
    Keys(desk, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(desk.Find<QAbstractButton>("OptionRemap_1")->isChecked());
    desk.Entry("CmdEditUndo")->trigger();
    desk.Entry("CmdEditUndo")->trigger();  // the photos
    EXPECT_TRUE(desk.state.Images.Empty());
    EXPECT_EQ(desk.Find<QListWidget>("ImageList1")->count(), 0);
    EXPECT_FALSE(desk.Find("CommandSaveFreeimage")->isEnabled());
    desk.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(Lines(desk), "a*+b");
    EXPECT_TRUE(desk.Find("CommandSaveFreeimage")->isEnabled());
}

TEST(Undo, TheMouseEndsAStep) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp")});
    desk.Press("SliderEffect", Qt::Key_Left);
    desk.Press("SliderEffect", Qt::Key_Left);
    QTest::mouseClick(desk.Find("CheckAntialiased"), Qt::LeftButton);
    desk.Press("SliderEffect", Qt::Key_Left);
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.Record(1).EffectVarnel, 98.0F);
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.Record(1).EffectVarnel, 100.0F);
    EXPECT_EQ(desk.Entry("CmdEditUndo")->text(), Text("&Undo add images"));
}

TEST(Undo, ReachesEveryPhotoThatAStepReached) {
    WindowDesk desk;
    desk.AddGear(Text("other"), 100.0F);
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    desk.ClickLine(2, Qt::ControlModifier);
    desk.Slider("SliderAOVinput")->setValue(200);
    const auto all = [&] {
        return std::vector<ImageRecord>(desk.state.Images.begin(), desk.state.Images.end());
    };
    std::vector<std::vector<ImageRecord>> states{all()};
    QStringList names{desk.Entry("CmdEditUndo")->text()};
    const auto deed = [&](auto&& act) {
        act();
        states.push_back(all());
        names.append(desk.Entry("CmdEditUndo")->text());
    };
    deed([&] { desk.Press("GearCombo", Qt::Key_Down); });
    desk.ClickLine(0);
    desk.ClickLine(1);
    desk.ClickLine(0);
    states.back() = all();
    deed([&] { desk.Click("OptionRemap_1"); });
    deed([&] { desk.Click("CmdApplyAll2"); });
    deed([&] { desk.Click("CmdApplyAll"); });
    EXPECT_EQ(names, (QStringList{Text("&Undo input hAOV"), Text("&Undo choice of gear"),
                                  Text("&Undo projection"), Text("&Undo apply settings to all"),
                                  Text("&Undo apply gear to all")}));
    for (std::size_t n = states.size() - 1; n-- > 1;) {
        desk.Entry("CmdEditUndo")->trigger();
        EXPECT_EQ(all(), states[n]) << n;
    }
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(desk.Record(1).InputAOV, 200.0F);
    EXPECT_EQ(desk.Record(3).InputAOV, 200.0F);
    EXPECT_NE(desk.Find<QComboBox>("GearCombo")->currentText(), Text("other"));
    for (std::size_t n = 2; n < states.size(); ++n) {
        desk.Entry("CmdEditRedo")->trigger();
    }
    desk.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(all(), states.back());
}

TEST(Undo, RemovedPhotosComeBackAndAnotherPhotosStepShowsThatPhoto) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    desk.ClickLine(1);
    desk.Slider("SliderAOVinput")->setValue(150);
    desk.ClickLine(2);
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Lines(desk), "ab*+c");
    EXPECT_NE(desk.Record(2).InputAOV, 150.0F);
    desk.Entry("CmdEditRedo")->trigger();
    desk.Click("CmdRemoveImages");
    EXPECT_EQ(Lines(desk), "a*+c");
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Lines(desk), "a*+bc");
    EXPECT_EQ(desk.Record(2).InputAOV, 150.0F);
    // What was done to all stays where one is, though this photo was so already.
    desk.ClickLine(1);
    desk.Click("OptionRemap_1");
    desk.Click("CmdApplyAll2");
    for (const char* entry : {"CmdEditUndo", "CmdEditRedo"}) {
        desk.Entry(entry)->trigger();
        EXPECT_EQ(Lines(desk), "ab*+c") << entry;
    }
    EXPECT_EQ(desk.Record(3).Projection, desk.Record(2).Projection);
}

TEST(PhotoList, LinesMoveWithTheirRecordsByKeysAndByDrag) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp"), Text("d.bmp")});
    desk.ClickLine(1);
    FIBITMAP* const photo = desk.state.bitmaps.FullSourceBitmap.get();
    auto* const list = desk.Find<PhotoList>("ImageList1");
    list->setFocus();
    Keys(desk, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Lines(desk), "acb*+d");
    Keys(desk, Qt::Key_Up, Qt::AltModifier);
    Keys(desk, Qt::Key_Up, Qt::AltModifier);
    Keys(desk, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Lines(desk), "b*+acd");
    EXPECT_EQ(desk.Entry("CmdEditUndo")->text(), Text("&Undo reorder images"));
    EXPECT_EQ(desk.state.bitmaps.FullSourceBitmap.get(), photo);  // not read again
    Q_EMIT list->MoveWanted(4);
    EXPECT_EQ(Lines(desk), "acdb*+");
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Lines(desk), "b*+acd");
    // Files from elsewhere still reach the window.
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(desk.files.Path(Text("a.bmp")))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
}

TEST(PhotoList, MarksTellTheProjectionAndTheState) {
    WindowDesk desk;
    desk.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    desk.window.AddFiles({desk.files.Text(Text("no.bmp"))});
    const auto marks = [&](int line) {
        EXPECT_TRUE(testing::Settle());
        const auto* const item = desk.Find<QListWidget>("ImageList1")->item(line);
        EXPECT_TRUE(item->data(Qt::AccessibleTextRole).toString().startsWith(item->text()));
        return item->data(PhotoList::marksRole).toString().toStdString();
    };
    EXPECT_EQ(marks(0), "V");
    desk.Click("OptionRemap_2");
    EXPECT_EQ(marks(0), "EA");
    desk.ClickLine(2);
    EXPECT_EQ(marks(2), "V!");
    desk.ClickLine(0);
    desk.Click("CommandAddToBatchQue");
    EXPECT_EQ(marks(0), "EAQ");
    EXPECT_TRUE(desk.Find<QListWidget>("ImageList1")
                    ->item(0)
                    ->toolTip()
                    .endsWith(Text("Equidistance, adjusted, in the batch queue")));
    desk.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(marks(0), "VQ");
}

}  // namespace
}  // namespace varnel
