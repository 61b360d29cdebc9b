// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the main window was and how its width was divided, kept in the settings. Throws nothing.
#pragma once

#include <QMainWindow>
#include <QSplitter>

#include "state/settings/settings_store.h"

namespace varnel {

class WindowLayout {
  public:
    WindowLayout(QMainWindow& window, QSplitter& splitter, SettingsStore& store)
        : window_(window), splitter_(splitter), store_(store) {}

    // As it was saved last; without that everything stays as it is.
    void Restore();
    void Save();

  private:
    QMainWindow& window_;
    QSplitter& splitter_;
    SettingsStore& store_;
};

}  // namespace varnel
