// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Saving a photo's settings as a preset, and the list of one's own presets.

#include "state/dialogs/form_presets.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "state/dialogs/form_save_preset.h"
#include "tests/support/dialogs.h"
#include "tests/support/files.h"
#include "tests/support/records.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

class FormSavePresetTest : public testing::DialogTest<FormSavePreset> {
  protected:
    void Open(const ImageRecord& image) {
        form = std::make_unique<FormSavePreset>(image, settings, store);
        form->show();
    }
    GeneralSettings settings;
    MemoryStore store;
};

TEST_F(FormSavePresetTest, HoldsOnlyWhatIsTickedAndReplacesItsNamesake) {
    ImageRecord image = testing::FisheyeRecord();
    image.Projection = 1;
    image.OutputAOV = 100.0F;
    image.RotateY = -5.0F;
    Open(image);
    EXPECT_FALSE(The<QPushButton>("CmdOK").isEnabled());
    EXPECT_TRUE(The<QCheckBox>("CheckRotation").isChecked());
    EXPECT_FALSE(The<QCheckBox>("CheckShift").isChecked());
    QTest::keyClicks(&The<QLineEdit>("TextName"), Text("Real estate"));
    EXPECT_FALSE(The<QPushButton>("CmdOK").isEnabled());
    QTest::keyClicks(&The<QLineEdit>("TextName"), Text(" 2"));
    The<QCheckBox>("CheckProjection").setChecked(false);
    The<QCheckBox>("CheckRotation").setChecked(false);
    Click("CmdOK");
    EXPECT_EQ(OwnPresets(store),
              (Presets{{Text("Real estate 2"), {{Text("OutputAOV"), Text("100")}}}}));
    settings.FileType = Text("PNG");
    Open(image);
    for (const char* box : {"CheckProjection", "CheckOutputAov", "CheckRotation"}) {
        The<QCheckBox>(box).setChecked(false);
    }
    EXPECT_FALSE(The<QPushButton>("CmdOK").isEnabled());
    The<QCheckBox>("CheckOutput").setChecked(true);
    The<QLineEdit>("TextName").setText(Text("REAL estate 2"));
    EXPECT_TRUE(Label("LabelMessage").contains(Text("replaces")));
    Click("CmdOK");
    ASSERT_EQ(OwnPresets(store).size(), 1U);
    EXPECT_EQ(OwnPresets(store)[0].settings.value(preset::FileType), Text("PNG"));
    EXPECT_EQ(OwnPresets(store)[0].settings.size(), 4);
}

class FormPresetsTest : public testing::DialogTest<FormPresets> {
  protected:
    FormPresetsTest() {
        SaveOwnPresets(store, {Own("a"), Own("b"), Own("c")});
        form = std::make_unique<FormPresets>(
            store, PresetFiles{[this] { return file; }, [this] { return file; }});
        form->show();
    }
    static Preset Own(const char* name) { return {Text(name), {{Text("RotateX"), Text("1")}}}; }
    QString Names() const { return NamesOf(OwnPresets(store)).join(u' '); }

    testing::PictureFolder files;
    QString file = files.Path(Text("presets.json"));
    MemoryStore store;
};

TEST_F(FormPresetsTest, RenamesDeletesAndBringsBack) {
    auto& list = The<QListWidget>("ListPresets");
    list.item(1)->setText(Text("new"));
    EXPECT_EQ(Names(), Text("a new c"));
    for (const char* bad : {"A", "", "group photo"}) {
        list.item(2)->setText(Text(bad));
        EXPECT_EQ(Names(), Text("a new c"));
        EXPECT_FALSE(Label("LabelMessage").isEmpty()) << bad;
        EXPECT_EQ(list.item(2)->text(), Text("c"));
    }
    list.setCurrentRow(0);
    Click("CmdDelete");
    EXPECT_EQ(Names(), Text("new c"));
    Click("CmdUndoDelete");
    EXPECT_EQ(Names(), Text("a new c"));
    EXPECT_FALSE(The<QPushButton>("CmdUndoDelete").isVisible());
}

TEST_F(FormPresetsTest, ExportsAndImportsAFile) {
    Click("CmdExport");
    SaveOwnPresets(store, {});
    form = std::make_unique<FormPresets>(
        store, PresetFiles{[this] { return file; }, [this] { return file; }});
    form->show();
    EXPECT_FALSE(The<QPushButton>("CmdExport").isEnabled());
    Click("CmdImport");
    EXPECT_EQ(Names(), Text("a b c"));
    EXPECT_EQ(Label("LabelMessage"), Text("3 presets were added."));
    file = files.Text(Text("odd.json"));
    Click("CmdImport");
    EXPECT_TRUE(Label("LabelMessage").endsWith(Text("holds no presets.")));
    file = files.Path(Text("none/x.json"));
    Click("CmdImport");
    EXPECT_TRUE(Label("LabelMessage").contains(Text("cannot be read")));
    Click("CmdExport");
    EXPECT_TRUE(Label("LabelMessage").contains(Text("cannot be written")));
}

}  // namespace
}  // namespace varnel
