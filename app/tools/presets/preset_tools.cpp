// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/presets/preset_tools.h"

#include <QClipboard>
#include <QGuiApplication>

#include "app/panels/menu_entry.h"
#include "app/panels/typed_number.h"
#include "pipeline/output/preset_output.h"
#include "pipeline/output/save_wish.h"

namespace varnel {

namespace {

// What the preset does not name stays as the batch has it.
void TakeOutput(const PictureSettings& preset, BatchChoices& batch) {
    GeneralSettings settings;
    settings.FileType = ToText(batch.type);
    TakeWish({EncodingOf(batch), batch.writeMetadata, batch.pattern, batch.sampling}, settings);
    varnel::TakeOutput(preset, settings);
    const SaveWish wish = WishOf(settings);
    batch.type = wish.encoding.type;
    batch.jpegQuality = wish.encoding.quality;
    batch.chroma444 = wish.encoding.chroma444;
    batch.writeMetadata = wish.writeMetadata;
    batch.pattern = wish.pattern;
}

}  // namespace

PresetTools::PresetTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                         Workspace& workspace, SettingsStore& store, Dialogs& dialogs,
                         BatchJob& batch)
    : QObject(window),
      window_(window),
      view_(view),
      workspace_(workspace),
      store_(store),
      dialogs_(dialogs),
      batch_(batch),
      commands_(workspace) {
    AddEntries(parts.editMenu);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, &PresetTools::UpdateEnabled);
    UpdateEnabled();
}

void PresetTools::AddEntries(QMenu* edit) {
    edit->addSeparator();
    copy_ = AddMenuEntry(edit, "CmdEditCopySettings", tr("&Copy settings"),
                         {Qt::CTRL | Qt::SHIFT | Qt::Key_C});
    paste_ = AddMenuEntry(edit, "CmdEditPasteSettings", tr("&Paste settings"),
                          {Qt::CTRL | Qt::SHIFT | Qt::Key_V});
    menu_ = edit->addMenu(tr("Pr&esets"));
    menu_->setObjectName(QStringLiteral("MenuPresets"));
    connect(copy_, &QAction::triggered, this, &PresetTools::Copy);
    connect(paste_, &QAction::triggered, this, &PresetTools::Paste);
    // Another window may have saved presets meanwhile.
    connect(menu_, &QMenu::aboutToShow, this, &PresetTools::FillMenu);
    FillMenu();
}

void PresetTools::FillMenu() {
    menu_->clear();
    for (const Preset& preset : BuiltInPresets()) {
        AddPreset(preset);
    }
    menu_->addSeparator();
    const Presets own = OwnPresets(store_);
    for (const Preset& preset : own) {
        AddPreset(preset);
    }
    menu_->addSeparator();
    QAction* const save = AddMenuEntry(menu_, "CmdPresetSave", tr("&Save as preset..."));
    save->setEnabled(commands_.HasPhoto());
    connect(save, &QAction::triggered, this, [this] {
        TakeTyped(*window_);
        if (commands_.HasPhoto()) {
            dialogs_.SavePreset(workspace_.preparation.PreparedCurrent(), window_);
        }
    });
    QAction* const manage = AddMenuEntry(menu_, "CmdPresetManage", tr("&Manage presets..."));
    connect(manage, &QAction::triggered, this, [this] { dialogs_.ManagePresets(window_); });
}

// A name is no place for access keys.
void PresetTools::AddPreset(const Preset& preset) {
    QString text = ShownPresetName(preset.name);
    text.replace(u'&', QStringLiteral("&&"));
    QAction* const entry = AddMenuEntry(menu_, "CmdPreset", text);
    entry->setData(preset.name);
    connect(entry, &QAction::triggered, this, [this, preset] { Apply(preset); });
}

void PresetTools::Copy() {
    TakeTyped(*window_);
    const QString text = commands_.Copy();
    if (!text.isEmpty()) {
        QGuiApplication::clipboard()->setText(text);
        view_.ShowStatus(tr("The photo's settings are on the clipboard"));
    }
}

void PresetTools::Paste() {
    if (!commands_.Paste(QGuiApplication::clipboard()->text())) {
        view_.ShowStatus(tr("The clipboard holds no settings of a photo"));
    }
}

void PresetTools::Apply(const Preset& preset) {
    TakeTyped(*window_);
    if (commands_.Apply(preset)) {
        TakeOutput(preset.settings, batch_.choices);
        view_.ShowStatus(
            tr("Saving follows the preset \"%1\" from now on").arg(ShownPresetName(preset.name)));
    }
}

void PresetTools::UpdateEnabled() {
    const bool photos = workspace_.model.list.Current() != nullptr;
    copy_->setEnabled(photos);
    paste_->setEnabled(photos);
}

}  // namespace varnel
