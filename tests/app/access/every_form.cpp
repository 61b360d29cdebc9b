// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/access/every_form.h"

#include "app/dialogs/form_about.h"
#include "app/dialogs/form_guide.h"
#include "gear/dialogs/form_gear_edit.h"
#include "gear/dialogs/form_gear_list.h"
#include "gear/store/gear_list.h"
#include "pipeline/dialogs/form_add_images.h"
#include "pipeline/dialogs/form_batch.h"
#include "pipeline/dialogs/form_morph.h"
#include "pipeline/dialogs/form_stretch.h"
#include "state/dialogs/form_setup.h"
#include "tests/support/settled.h"
#include "tests/support/window_desk.h"

namespace varnel::testing {

namespace {

using Look = std::function<void(QWidget& form)>;

std::vector<Volume> OneVolume() {
    return {{QStringLiteral("/"), QString(), VolumeKind::Fixed}};
}

void Show(QWidget& form, const Look& look) {
    form.show();
    form.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&form));
    EXPECT_TRUE(Settle());
    look(form);
}

void ShowMainWindow(WindowDesk& desk, const Look& look, PixelSize photo) {
    Show(desk.window, look);
    desk.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}, photo);
    desk.Click("CommandAddToBatchQue");
    for (const char* const projection : {"OptionRemap_0", "OptionRemap_1", "OptionRemap_2"}) {
        desk.Click(projection);
        look(desk.window);
    }
    desk.Slider("SliderAOVoutput")->setValue(90);
    for (const char* const entry :
         {"CmdViewMagnification", "CmdViewCircle", "CmdToolsLevel", "CmdEditUndo"}) {
        desk.Entry(entry)->trigger();
        EXPECT_TRUE(Settle());
        look(desk.window);
    }
    QTest::keyClick(desk.Find("PicSmallFrom"), Qt::Key_Right, Qt::ControlModifier);
    desk.Click("CmdCircleTake");
    GearOffer offer;
    offer.define = true;
    desk.window.findChild<GearOfferRow*>()->Show(offer, desk.state.Gear);
    EXPECT_TRUE(Settle());
    look(desk.window);
}

void ShowGearForms(WindowDesk& desk, const Look& look) {
    desk.state.Gear(0) = desk.state.Gear(1);
    AddEditedGear(desk.state.Gear);
    FormGearList list(desk.state.Gear, desk.store, [](GearTable&) {});
    Show(list, look);
    desk.state.Gear(0) = GearRecord();
    FormGearEdit empty(desk.state.Gear);
    Show(empty, look);
    desk.state.Gear(0) = desk.state.Gear(1);
    FormGearEdit gear(desk.state.Gear);
    Show(gear, look);
}

void ShowBatch(WindowDesk& desk, const Look& look) {
    BatchChoices choices;
    FormBatch batch(
        desk.state.BatchQueue, choices, desk.state.settings, Reader(), desk.notices, [](int) {},
        nullptr, &OneVolume);
    Show(batch, look);
    batch.findChild<QAbstractButton*>(QStringLiteral("CmdBatchProcess"))->click();
    EXPECT_TRUE(Settle());
    look(batch);
}

void ShowToolForms(WindowDesk& desk, const Look& look) {
    FormMorph morph(desk.state.Images(1), desk.state.bitmaps.PreviewSourceBitmap.get(),
                    desk.state.BatchQueue, desk.notices, [](int) {});
    Show(morph, look);
    morph.findChild<QAbstractButton*>(QStringLiteral("CmdAddMorphToBatch"))->click();
    EXPECT_TRUE(Settle());
    look(morph);
    FormStretch stretch(
        desk.state.settings, desk.photos, [](const QString&) { return QString(); }, desk.chooser,
        desk.notices);
    Show(stretch, look);
    stretch.Open(desk.files.Path(QStringLiteral("a.bmp")));
    EXPECT_TRUE(Settle());
    look(stretch);
}

}  // namespace

void ShowEveryForm(const Look& look, PixelSize photo) {
    WindowDesk desk;
    ShowMainWindow(desk, look, photo);
    FormAbout about;
    Show(about, look);
    // A page without links, which Tab would visit.
    WriteFile(desk.files.Path(QStringLiteral("page.md")), "# 1");
    FormGuide guide(desk.files.Path(QStringLiteral("page.md")));
    Show(guide, look);
    FormSetup setup(desk.state.Gear, desk.state.settings, desk.store);
    Show(setup, look);
    setup.findChild<QAbstractButton*>(QStringLiteral("CommandSaveDefault"))->click();
    EXPECT_TRUE(Settle());
    look(setup);
    ShowGearForms(desk, look);
    const QString folder = desk.files.Path({});
    {
        // Gone before the reader is used by others.
        FormAddImages add(desk.state.Images, desk.store, desk.notices, {folder, folder, &OneVolume},
                          {Reader(), true});
        Show(add, look);
    }
    ShowBatch(desk, look);
    ShowToolForms(desk, look);
}

}  // namespace varnel::testing
