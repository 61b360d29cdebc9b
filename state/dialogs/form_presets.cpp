// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/dialogs/form_presets.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QShortcut>
#include <QSignalBlocker>
#include <algorithm>

#include "ui_form_presets.h"

namespace varnel {

FormPresets::FormPresets(SettingsStore& store, PresetFiles files, QWidget* parent)
    : QDialog(parent),
      ui_(std::make_unique<Ui::FormPresets>()),
      store_(store),
      files_(std::move(files)),
      own_(OwnPresets(store)) {
    ui_->setupUi(this);
    ConnectControls();
    Fill(0);
    Say(own_.empty() ? tr("No presets of your own yet: \"Save as preset...\" in the Edit menu "
                          "makes one of the photo at hand.")
                     : QString());
}

FormPresets::~FormPresets() = default;

void FormPresets::ConnectControls() {
    connect(ui_->ListPresets, &QListWidget::itemSelectionChanged, this, &FormPresets::ShowState);
    connect(ui_->ListPresets, &QListWidget::itemChanged, this,
            [this](QListWidgetItem* line) { Rename(*line); });
    connect(ui_->CmdRename, &QPushButton::clicked, this,
            [this] { ui_->ListPresets->editItem(ui_->ListPresets->currentItem()); });
    connect(ui_->CmdDelete, &QPushButton::clicked, this, &FormPresets::Delete);
    connect(ui_->CmdUndoDelete, &QPushButton::clicked, this, &FormPresets::BringBack);
    connect(ui_->CmdImport, &QPushButton::clicked, this, &FormPresets::Import);
    connect(ui_->CmdExport, &QPushButton::clicked, this, &FormPresets::Export);
    connect(ui_->CmdClose, &QPushButton::clicked, this, &QDialog::accept);
    auto* const key = new QShortcut(QKeySequence(QKeySequence::Delete), ui_->ListPresets);
    key->setContext(Qt::WidgetShortcut);
    connect(key, &QShortcut::activated, this, &FormPresets::Delete);
}

void FormPresets::Fill(int selected) {
    const QSignalBlocker blocker(ui_->ListPresets);
    ui_->ListPresets->clear();
    for (const Preset& preset : own_) {
        auto* const line = new QListWidgetItem(preset.name, ui_->ListPresets);
        line->setFlags(line->flags() | Qt::ItemIsEditable);
    }
    ui_->ListPresets->setCurrentRow(std::min(selected, ui_->ListPresets->count() - 1));
    ShowState();
}

void FormPresets::ShowState() {
    const bool one = Selected() >= 0;
    ui_->CmdRename->setEnabled(one);
    ui_->CmdDelete->setEnabled(one);
    ui_->CmdExport->setEnabled(!own_.empty());
}

int FormPresets::Selected() const {
    const QList<QListWidgetItem*> lines = ui_->ListPresets->selectedItems();
    return lines.isEmpty() ? -1 : ui_->ListPresets->row(lines.first());
}

void FormPresets::Rename(QListWidgetItem& line) {
    const int row = ui_->ListPresets->row(&line);
    const QString name = line.text().trimmed();
    Preset& preset = own_[static_cast<std::size_t>(row)];
    Presets others = own_;
    others.erase(others.begin() + row);
    const QString error = name == preset.name ? QString() : PresetNameError(name, others);
    Say(error);
    if (error.isEmpty()) {
        preset.name = name;
        Save();
    }
    const QSignalBlocker blocker(ui_->ListPresets);
    line.setText(preset.name);
}

void FormPresets::Delete() {
    const int row = Selected();
    if (row < 0) {
        return;
    }
    deleted_ = {row, own_[static_cast<std::size_t>(row)]};
    own_.erase(own_.begin() + row);
    Save();
    Fill(row);
    Say(tr("\"%1\" is deleted.").arg(deleted_.second.name), true);
    ui_->ListPresets->setFocus();
}

void FormPresets::BringBack() {
    const int row = std::min(deleted_.first, static_cast<int>(own_.size()));
    own_.insert(own_.begin() + row, deleted_.second);
    Save();
    Fill(row);
    Say({});
    ui_->ListPresets->setFocus();
}

void FormPresets::Import() {
    const QString path = files_.chooseImport();
    if (path.isEmpty()) {
        return;
    }
    QFile file(path);
    const bool read = file.open(QIODevice::ReadOnly);
    const std::optional<Presets> presets =
        read ? PresetsFromBytes(file.read(largestPresetFile + 1)) : std::nullopt;
    const QString shown = QDir::toNativeSeparators(path);
    if (!presets) {
        Say(read ? tr("%1 holds no presets.").arg(shown)
                 : tr("%1 cannot be read: %2").arg(shown, file.errorString()));
        return;
    }
    const int added = AddPresets(*presets, own_);
    Save();
    Fill(static_cast<int>(own_.size()) - 1);
    Say(added == 1 ? tr("1 preset was added.") : tr("%1 presets were added.").arg(added));
}

void FormPresets::Export() {
    const QString path = files_.chooseExport();
    if (path.isEmpty()) {
        return;
    }
    QSaveFile file(path);
    const QByteArray bytes = PresetsToBytes(own_);
    const bool written =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    const QString shown = QDir::toNativeSeparators(path);
    Say(written ? tr("Saved %1").arg(shown)
                : tr("%1 cannot be written: %2").arg(shown, file.errorString()));
}

void FormPresets::Save() {
    SaveOwnPresets(store_, own_);
}

void FormPresets::Say(const QString& text, bool canUndo) {
    ui_->LabelMessage->setText(text);
    ui_->CmdUndoDelete->setVisible(canUndo);
}

}  // namespace varnel
