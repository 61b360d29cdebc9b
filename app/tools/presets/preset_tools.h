// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The Edit menu's "Copy settings", "Paste settings" and "Presets". Throws nothing but for want of
// memory.
#pragma once

#include <QMainWindow>

#include "app/view/dialogs.h"
#include "app/view/window_view.h"
#include "app/workspace/presets/preset_commands.h"
#include "state/settings/settings_store.h"

namespace varnel {

class PresetTools : public QObject {
    Q_OBJECT
  public:
    PresetTools(QMainWindow* window, const WindowParts& parts, WindowView& view,
                Workspace& workspace, SettingsStore& store, Dialogs& dialogs, BatchJob& batch);

  private:
    void AddEntries(QMenu* edit);
    void FillMenu();
    void AddPreset(const Preset& preset);
    void Copy();
    void Paste();
    void Apply(const Preset& preset);
    void UpdateEnabled();

    QMainWindow* window_;
    WindowView& view_;
    Workspace& workspace_;
    SettingsStore& store_;
    Dialogs& dialogs_;
    BatchJob& batch_;
    PresetCommands commands_;
    QAction* copy_ = nullptr;
    QAction* paste_ = nullptr;
    QMenu* menu_ = nullptr;
};

}  // namespace varnel
