// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The user's presets: rename, delete, import, export. Every change is saved at once; a deleted
// preset can be brought back while the dialog is open. Throws nothing.
#pragma once

#include <QDialog>
#include <QListWidgetItem>
#include <functional>
#include <memory>
#include <utility>

#include "state/adjustments/presets.h"

namespace Ui {
class FormPresets;
}

namespace varnel {

// How files are asked for; empty when cancelled.
struct PresetFiles {
    std::function<QString()> chooseImport;
    std::function<QString()> chooseExport;
};

class FormPresets : public QDialog {
    Q_OBJECT

  public:
    FormPresets(SettingsStore& store, PresetFiles files, QWidget* parent = nullptr);
    ~FormPresets() override;

  private:
    void ConnectControls();
    void Fill(int selected);
    void ShowState();
    int Selected() const;  // -1 when none is
    void Rename(QListWidgetItem& line);
    void Delete();
    void BringBack();
    void Import();
    void Export();
    void Save();
    void Say(const QString& text, bool canUndo = false);

    std::unique_ptr<Ui::FormPresets> ui_;
    SettingsStore& store_;
    PresetFiles files_;
    Presets own_;
    std::pair<int, Preset> deleted_;  // its place, and what was there
};

}  // namespace varnel
