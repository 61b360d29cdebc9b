// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The toolbar: the entries of the menus that are used most, with icons, and its own entries in the
// View menu. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QObject>

#include "app/view/window_parts.h"
#include "state/settings/settings_store.h"

namespace varnel {

class ToolbarTools : public QObject {
    Q_OBJECT
  public:
    // After the tools have their menu entries.
    ToolbarTools(QMainWindow* window, const WindowParts& parts, SettingsStore& store);

  private:
    void AddTools(const QMainWindow& window);
    void AddEntries();

    QToolBar& bar_;
    QMenu& menu_;
    SettingsStore& store_;
};

}  // namespace varnel
