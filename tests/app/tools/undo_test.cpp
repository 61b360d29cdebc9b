// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Undo and redo, and the list's order and marks, as they are used on the window.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QMimeData>

#include "app/panels/photo_list.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::TestWindow;
using testing::Text;

std::string Lines(TestWindow& workspace) {
    QString lines;
    auto* const list = workspace.Find<QListWidget>("ImageList1");
    for (int line = 0; line < list->count(); ++line) {
        EXPECT_EQ(list->item(line)->text(), workspace.Record(line + 1).FileName);
        lines += list->item(line)->text().chopped(4);
        lines += line == list->currentRow() ? Text("*") : QString();
        lines += list->item(line)->isSelected() ? Text("+") : QString();
    }
    return lines.toStdString();
}

void Keys(TestWindow& workspace, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(workspace.window.focusWidget(), key, modifiers);
    QApplication::processEvents();
}

TEST(Undo, TheEntriesNameTheStepAndControlsListAndPreviewFollow) {
    TestWindow workspace;
    EXPECT_FALSE(workspace.Entry("CmdEditUndo")->isEnabled());
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")}, {300, 200});
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo add images"));
    workspace.Click("OptionRemap_1");
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo projection"));
    const QImage before = workspace.Shown("PicSmallTo");
    workspace.Press("SliderY", Qt::Key_Right);
    workspace.Press("SliderY", Qt::Key_Right);
    EXPECT_EQ(workspace.Record(1).RotateY, 20.0F);
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo rotate left/right"));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).RotateY, 0.0F);
    EXPECT_EQ(workspace.Slider("SliderY")->value(), 0);
    EXPECT_EQ(workspace.Shown("PicSmallTo"), before);
    EXPECT_EQ(workspace.Entry("CmdEditRedo")->text(), Text("&Redo rotate left/right"));
    workspace.Find("SpinSliderY")->setFocus();
    Keys(workspace, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(workspace.Slider("SliderY")->value(), 20);
    EXPECT_FALSE(workspace.Entry("CmdEditRedo")->isEnabled());
    Keys(workspace, Qt::Key_Z, Qt::ControlModifier);
    Keys(workspace, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_TRUE(workspace.Find<QAbstractButton>("OptionRemap_0")->isChecked());
    Keys(workspace, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(workspace.Find<QAbstractButton>("OptionRemap_1")->isChecked());
    workspace.Entry("CmdEditUndo")->trigger();
    workspace.Entry("CmdEditUndo")->trigger();  // the photos
    EXPECT_TRUE(workspace.state.Images.Empty());
    EXPECT_EQ(workspace.Find<QListWidget>("ImageList1")->count(), 0);
    EXPECT_FALSE(workspace.Find("CommandSaveFreeimage")->isEnabled());
    workspace.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(Lines(workspace), "a*+b");
    EXPECT_TRUE(workspace.Find("CommandSaveFreeimage")->isEnabled());
}

TEST(Undo, TheMouseEndsAStep) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp")});
    workspace.Press("SliderEffect", Qt::Key_Left);
    workspace.Press("SliderEffect", Qt::Key_Left);
    QTest::mouseClick(workspace.Find("CheckAntialiased"), Qt::LeftButton);
    workspace.Press("SliderEffect", Qt::Key_Left);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).EffectVarnel, 98.0F);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).EffectVarnel, 100.0F);
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo add images"));
}

TEST(Undo, ReachesEveryPhotoThatAStepReached) {
    TestWindow workspace;
    workspace.AddGear(Text("other"), 100.0F);
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    workspace.ClickLine(2, Qt::ControlModifier);
    workspace.Slider("SliderAOVinput")->setValue(200);
    const auto all = [&] {
        return std::vector<ImageRecord>(workspace.state.Images.begin(),
                                        workspace.state.Images.end());
    };
    std::vector<std::vector<ImageRecord>> states{all()};
    QStringList names{workspace.Entry("CmdEditUndo")->text()};
    const auto deed = [&](auto&& act) {
        act();
        states.push_back(all());
        names.append(workspace.Entry("CmdEditUndo")->text());
    };
    deed([&] { workspace.Press("GearCombo", Qt::Key_Down); });
    workspace.ClickLine(0);
    workspace.ClickLine(1);
    workspace.ClickLine(0);
    states.back() = all();
    deed([&] { workspace.Click("OptionRemap_1"); });
    deed([&] { workspace.Click("CmdApplyAll2"); });
    deed([&] { workspace.Click("CmdApplyAll"); });
    EXPECT_EQ(names, (QStringList{Text("&Undo input hAOV"), Text("&Undo choice of gear"),
                                  Text("&Undo projection"), Text("&Undo apply settings to all"),
                                  Text("&Undo apply gear to all")}));
    for (std::size_t n = states.size() - 1; n-- > 1;) {
        workspace.Entry("CmdEditUndo")->trigger();
        EXPECT_EQ(all(), states[n]) << n;
    }
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(workspace.Record(1).InputAOV, 200.0F);
    EXPECT_EQ(workspace.Record(3).InputAOV, 200.0F);
    EXPECT_NE(workspace.Find<QComboBox>("GearCombo")->currentText(), Text("other"));
    for (std::size_t n = 2; n < states.size(); ++n) {
        workspace.Entry("CmdEditRedo")->trigger();
    }
    workspace.Entry("CmdEditRedo")->trigger();
    EXPECT_EQ(all(), states.back());
}

TEST(Undo, RemovedPhotosComeBackAndAnotherPhotosStepShowsThatPhoto) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp")});
    workspace.ClickLine(1);
    workspace.Slider("SliderAOVinput")->setValue(150);
    workspace.ClickLine(2);
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Lines(workspace), "ab*+c");
    EXPECT_NE(workspace.Record(2).InputAOV, 150.0F);
    workspace.Entry("CmdEditRedo")->trigger();
    workspace.Click("CmdRemoveImages");
    EXPECT_EQ(Lines(workspace), "a*+c");
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Lines(workspace), "a*+bc");
    EXPECT_EQ(workspace.Record(2).InputAOV, 150.0F);
    // What was done to all stays where one is, though this photo was so already.
    workspace.ClickLine(1);
    workspace.Click("OptionRemap_1");
    workspace.Click("CmdApplyAll2");
    for (const char* entry : {"CmdEditUndo", "CmdEditRedo"}) {
        workspace.Entry(entry)->trigger();
        EXPECT_EQ(Lines(workspace), "ab*+c") << entry;
    }
    EXPECT_EQ(workspace.Record(3).Projection, workspace.Record(2).Projection);
}

TEST(PhotoList, LinesMoveWithTheirRecordsByKeysAndByDrag) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp"), Text("c.bmp"), Text("d.bmp")});
    workspace.ClickLine(1);
    const Bitmap* const photo = workspace.state.bitmaps.FullSourceBitmap.get();
    auto* const list = workspace.Find<PhotoList>("ImageList1");
    list->setFocus();
    Keys(workspace, Qt::Key_Down, Qt::AltModifier);
    EXPECT_EQ(Lines(workspace), "acb*+d");
    Keys(workspace, Qt::Key_Up, Qt::AltModifier);
    Keys(workspace, Qt::Key_Up, Qt::AltModifier);
    Keys(workspace, Qt::Key_Up, Qt::AltModifier);
    EXPECT_EQ(Lines(workspace), "b*+acd");
    EXPECT_EQ(workspace.Entry("CmdEditUndo")->text(), Text("&Undo reorder images"));
    EXPECT_EQ(workspace.state.bitmaps.FullSourceBitmap.get(), photo);  // not read again
    Q_EMIT list->MoveWanted(4);
    EXPECT_EQ(Lines(workspace), "acdb*+");
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(Lines(workspace), "b*+acd");
    // Files from elsewhere still reach the window.
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(workspace.files.Path(Text("a.bmp")))});
    QDragEnterEvent enter({5, 5}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list->viewport(), &enter);
    EXPECT_TRUE(enter.isAccepted());
}

TEST(PhotoList, MarksTellTheProjectionAndTheState) {
    TestWindow workspace;
    workspace.AddPhotos({Text("a.bmp"), Text("b.bmp")});
    workspace.window.AddFiles({workspace.files.Text(Text("no.bmp"))});
    const auto marks = [&](int line) {
        EXPECT_TRUE(testing::Settle());
        const auto* const item = workspace.Find<QListWidget>("ImageList1")->item(line);
        EXPECT_TRUE(item->data(Qt::AccessibleTextRole).toString().startsWith(item->text()));
        return item->data(PhotoList::marksRole).toString().toStdString();
    };
    EXPECT_EQ(marks(0), "V");
    workspace.Click("OptionRemap_2");
    EXPECT_EQ(marks(0), "EA");
    workspace.ClickLine(2);
    EXPECT_EQ(marks(2), "V!");
    workspace.ClickLine(0);
    workspace.Click("CommandAddToBatchQue");
    EXPECT_EQ(marks(0), "EAQ");
    EXPECT_TRUE(workspace.Find<QListWidget>("ImageList1")
                    ->item(0)
                    ->toolTip()
                    .endsWith(Text("Equidistance, adjusted, in the batch queue")));
    workspace.Entry("CmdEditUndo")->trigger();
    EXPECT_EQ(marks(0), "VQ");
}

}  // namespace
}  // namespace varnel
