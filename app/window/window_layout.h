// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where the main window was, how it was divided and what of its toolbar was shown, kept in the
// settings. Throws nothing.
#pragma once

#include <QMainWindow>

#include "app/view/window_parts.h"
#include "state/settings/settings_store.h"

namespace varnel {

class WindowLayout {
  public:
    WindowLayout(QMainWindow& window, const WindowParts& parts, SettingsStore& store)
        : window_(window), parts_(parts), store_(store) {}

    // As it was saved last; without that everything stays as it is.
    void Restore();
    void Save();

  private:
    QMainWindow& window_;
    const WindowParts& parts_;
    SettingsStore& store_;
};

}  // namespace varnel
