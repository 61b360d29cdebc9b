// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "tests/app/access/every_form.h"

#include <QDateTime>

#include "app/dialogs/form_about.h"
#include "app/dialogs/form_guide.h"
#include "app/straighten/form_straighten.h"
#include "gear/dialogs/form_gear_edit.h"
#include "gear/dialogs/form_gear_list.h"
#include "gear/store/gear_list.h"
#include "pipeline/dialogs/form_add_images.h"
#include "pipeline/dialogs/form_batch.h"
#include "pipeline/dialogs/form_morph.h"
#include "pipeline/dialogs/form_stretch.h"
#include "state/dialogs/form_presets.h"
#include "state/dialogs/form_save_preset.h"
#include "state/dialogs/form_setup.h"
#include "tests/app/film/fake_film.h"
#include "tests/support/settled.h"
#include "tests/support/test_window.h"

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

void ShowMainWindow(TestWindow& workspace, const Look& look, PixelSize photo) {
    Show(workspace.window, look);
    workspace.AddPhotos({QStringLiteral("a.bmp"), QStringLiteral("b.bmp")}, photo);
    workspace.Click("CommandAddToBatchQue");
    for (const char* const projection : {"OptionRemap_0", "OptionRemap_1", "OptionRemap_2"}) {
        workspace.Click(projection);
        look(workspace.window);
    }
    workspace.Slider("SliderAOVoutput")->setValue(90);
    for (const char* const entry :
         {"CmdViewMagnification", "CmdViewCircle", "CmdToolsLevel", "CmdEditUndo"}) {
        workspace.Entry(entry)->trigger();
        EXPECT_TRUE(Settle());
        look(workspace.window);
    }
    QTest::keyClick(workspace.Find("PicSmallFrom"), Qt::Key_Right, Qt::ControlModifier);
    workspace.Click("CmdCircleTake");
    GearOffer offer;
    offer.define = true;
    workspace.window.findChild<GearOfferRow*>()->Show(offer, workspace.state.Gear);
    EXPECT_TRUE(Settle());
    look(workspace.window);
}

void ShowFilm(const Look& look, PixelSize photo) {
    FakeFilm film;
    FakeSaver saver;
    film.size = photo;
    TestWindow workspace{nullptr, {}, Restore::Later, {nullptr, {}, &film, &saver}};
    workspace.AddPhotos({QStringLiteral("film.bmp"), QStringLiteral("b.bmp")}, photo);
    workspace.ClickLine(0);
    workspace.Click("OptionRemap_1");
    Show(workspace.window, look);
    workspace.Click("CmdFilmKey");
    EXPECT_TRUE(Settle());
    look(workspace.window);
    workspace.Click("CmdFilmPlay");
    EXPECT_TRUE(QTest::qWaitFor([&film] { return film.now > 0; }));
    look(workspace.window);
    film.refusal = {ReasonCode::NoKnownType};
    workspace.AddPhotos({QStringLiteral("film2.bmp")}, photo);
    workspace.ClickLine(2);
    EXPECT_TRUE(Settle());
    look(workspace.window);
}

void ShowGearForms(TestWindow& workspace, const Look& look) {
    workspace.state.Gear(0) = workspace.state.Gear(1);
    AddEditedGear(workspace.state.Gear);
    FormGearList list(workspace.state.Gear, workspace.store, [](GearTable&) {});
    Show(list, look);
    workspace.state.Gear(0) = GearRecord();
    const auto store = OpenFileStore(workspace.files.Path(QStringLiteral("conf/V.conf")),
                                     QDateTime::currentDateTime());
    const GearEditorPorts ports{
        .store = store.get(), .choosePhoto = [] { return QString(); }, .photos = &workspace.photos};
    FormGearEdit empty(workspace.state.Gear, ports);
    Show(empty, look);
    workspace.state.Gear(0) = workspace.state.Gear(1);
    FormGearEdit gear(workspace.state.Gear, ports);
    Show(gear, look);
}

void ShowPresetForms(TestWindow& workspace, const Look& look) {
    FormSavePreset save(workspace.state.Images(1), workspace.state.settings, workspace.store);
    Show(save, look);
    SaveOwnPresets(workspace.store,
                   {{QStringLiteral("1"), {{QStringLiteral("RotateX"), QStringLiteral("1")}}}});
    FormPresets presets(workspace.store, {});
    Show(presets, look);
    presets.findChild<QAbstractButton*>(QStringLiteral("CmdDelete"))->click();
    EXPECT_TRUE(Settle());
    look(presets);
}

void ShowBatch(TestWindow& workspace, const Look& look) {
    BatchJob job;
    FormBatch batch(
        workspace.state.BatchQueue, job, workspace.state.settings, workspace.notices, [](int) {},
        nullptr, &OneVolume);
    Show(batch, look);
    batch.findChild<QAbstractButton*>(QStringLiteral("CmdBatchProcess"))->click();
    EXPECT_TRUE(Settle());
    look(batch);
}

void ShowToolForms(TestWindow& workspace, const Look& look) {
    FormMorph morph(workspace.state.Images(1), workspace.state.bitmaps.PreviewSourceBitmap.get(),
                    workspace.state.BatchQueue, workspace.state.pool, workspace.notices,
                    [](int) {});
    Show(morph, look);
    morph.findChild<QAbstractButton*>(QStringLiteral("CmdAddMorphToBatch"))->click();
    EXPECT_TRUE(Settle());
    look(morph);
    FormStretch stretch(
        workspace.state.settings, workspace.photos, [](const QString&) { return QString(); },
        workspace.chooser, workspace.state.pool, workspace.notices);
    Show(stretch, look);
    stretch.Open(workspace.files.Path(QStringLiteral("a.bmp")));
    EXPECT_TRUE(Settle());
    look(stretch);
    FormStraighten straighten(
        {workspace.photos, [](const QString&) { return QStringList(); }, workspace.state.pool,
         LensFolder(workspace.files.Path(QStringLiteral("lenses")))},
        PhotoToMeasure{QStringLiteral("a.bmp"),
                       CloneBitmap(workspace.state.bitmaps.FullSourceBitmap.get()),
                       workspace.state.Images(1)});
    Show(straighten, look);
}

}  // namespace

void ShowEveryForm(const Look& look, PixelSize photo) {
    TestWindow workspace;
    ShowMainWindow(workspace, look, photo);
    ShowFilm(look, photo);
    FormAbout about;
    Show(about, look);
    // A page without links, which Tab would visit.
    WriteFile(workspace.files.Path(QStringLiteral("page.md")), "# 1");
    FormGuide guide(workspace.files.Path(QStringLiteral("page.md")));
    Show(guide, look);
    FormSetup setup(workspace.state.Gear, workspace.state.settings, workspace.store);
    Show(setup, look);
    setup.findChild<QAbstractButton*>(QStringLiteral("CommandSaveDefault"))->click();
    EXPECT_TRUE(Settle());
    look(setup);
    ShowGearForms(workspace, look);
    ShowPresetForms(workspace, look);
    const QString folder = workspace.files.Path({});
    {
        // Gone before the reader is used by others.
        FormAddImages add(workspace.state.Images, workspace.store, workspace.notices,
                          {folder, folder, &OneVolume}, {Reader(), true});
        Show(add, look);
    }
    ShowBatch(workspace, look);
    ShowToolForms(workspace, look);
}

}  // namespace varnel::testing
