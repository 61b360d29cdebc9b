// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Every form of the program for those who use it by keyboard or have it read to them.

#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "app/focus_style.h"
#include "app/form_about.h"
#include "gear/form_gear_edit.h"
#include "gear/form_gear_list.h"
#include "pipeline/form_add_images.h"
#include "pipeline/form_batch.h"
#include "pipeline/form_morph.h"
#include "pipeline/form_stretch.h"
#include "state/form_setup.h"
#include "tests/app/form_walk.h"
#include "tests/support/window_desk.h"

namespace varnel {
namespace {

using testing::FaultsOf;
using testing::WindowDesk;

QString Q(const char* text) {
    return QString::fromUtf8(text);
}

std::vector<Volume> OneVolume() {
    return {{Q("/"), Q("Disk"), VolumeKind::Fixed}};
}

class Access : public ::testing::Test {
  protected:
    static void SetUpTestSuite() { QApplication::setStyle(new FocusStyle); }
    void Walk(QWidget& form) {
        form.show();
        form.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&form)) << form.objectName().toStdString();
        QTest::qWait(50);
        faults_ += FaultsOf(form);
    }
    void TearDown() override {
        faults_.removeDuplicates();
        EXPECT_TRUE(faults_.isEmpty()) << faults_.join(u'\n').toStdString();
    }
    WindowDesk desk_;
    QStringList faults_;
};

TEST_F(Access, TheMainWindow) {
    QWidget& window = desk_.window;
    Walk(window);
    desk_.AddPhotos({Q("a.bmp"), Q("b.bmp")}, {300, 200});
    desk_.Click("CommandAddToBatchQue");
    for (const char* const projection : {"OptionRemap_0", "OptionRemap_1", "OptionRemap_2"}) {
        desk_.Click(projection);
        Walk(window);
    }
    desk_.Entry("CmdViewMagnification")->trigger();
    desk_.Entry("CmdViewCircle")->trigger();
    Walk(window);
}

TEST_F(Access, TheDialogs) {
    desk_.AddPhotos({Q("a.bmp"), Q("b.bmp")}, {300, 200});
    desk_.Click("CommandAddToBatchQue");
    WorkingState& state = desk_.state;
    FormAbout about;
    Walk(about);
    FormSetup setup(state.Gear, state.settings, desk_.store);
    Walk(setup);
    FormGearList gears(state.Gear, desk_.store, [](GearTable&) {});
    Walk(gears);
    state.Gear(0) = state.Gear(1);
    FormGearEdit gear(state.Gear);
    Walk(gear);
    const QString folder = desk_.files.Path({});
    FormAddImages add(state.Images, desk_.store, desk_.notices,
                      {folder, folder, folder, &OneVolume}, {testing::Reader(), true});
    Walk(add);
    BatchChoices choices;
    FormBatch batch(
        state.BatchQueue, choices, state.settings, testing::Reader(), desk_.notices, [](int) {},
        nullptr, &OneVolume);
    Walk(batch);
    batch.findChild<QAbstractButton*>(Q("CmdBatchProcess"))->click();
    Walk(batch);
    FormMorph morph(state.Images(1), state.bitmaps.PreviewSourceBitmap.get(), state.BatchQueue,
                    desk_.notices, [](int) {});
    Walk(morph);
    FormStretch stretch(
        state.settings, desk_.photos, [](const QString&) { return QString(); }, desk_.chooser,
        desk_.notices);
    stretch.Open(desk_.files.Path(Q("a.bmp")));
    Walk(stretch);
}

// The photo of 300 x 200 pixels is shown a pixel to a point.
TEST_F(Access, TheToolsOverThePhoto) {
    desk_.AddPhotos({Q("a.bmp")}, {300, 200});
    desk_.Click("OptionRemap_1");
    desk_.window.activateWindow();
    QWidget* const photo = desk_.Find("PicSmallFrom");
    const auto press = [photo](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        EXPECT_TRUE(photo->hasFocus());
        QTest::keyClick(photo, key, modifiers);
    };
    desk_.Entry("CmdViewCircle")->trigger();
    const QString before = desk_.Label("LabelCircle");
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    // 10 of 300 and 2 of 200 pixels, in thousandths
    EXPECT_TRUE(desk_.Label("LabelCircle").startsWith(Q("OfsetX 33.3 ‰   OfsetY -10.0 ‰")))
        << desk_.Label("LabelCircle").toStdString();
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Plus);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Left, Qt::ControlModifier);
    EXPECT_EQ(desk_.Label("LabelCircle"), before);
    press(Qt::Key_Escape);
    EXPECT_FALSE(desk_.Entry("CmdViewCircle")->isChecked());

    desk_.Entry("CmdViewFrame")->trigger();
    press(Qt::Key_Left);
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Minus);
    EXPECT_EQ(desk_.Record(1).RotateY, -1.0F);
    EXPECT_EQ(desk_.Record(1).RotateX, 10.0F);
    EXPECT_EQ(desk_.Record(1).OutputAOV, 129.0F);
    press(Qt::Key_Escape);
    EXPECT_FALSE(desk_.Entry("CmdViewFrame")->isChecked());

    for (int n = 0; n < 4; ++n) {
        press(Qt::Key_Plus);
    }
    EXPECT_EQ(desk_.Label("ZoomText"), Q("400 %"));
    const QImage shown = desk_.Shown("PicSmallFrom");
    press(Qt::Key_Right);
    EXPECT_NE(desk_.Shown("PicSmallFrom"), shown);
    press(Qt::Key_Return);
    EXPECT_FALSE(desk_.Find("ZoomText")->isVisible());
}

}  // namespace
}  // namespace varnel
