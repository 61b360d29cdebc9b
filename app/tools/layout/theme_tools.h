// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entry "Theme", whose choice is kept in the settings. Throws nothing but for want
// of memory.
#pragma once

#include <QMenu>
#include <QObject>

#include "app/looks/theme.h"
#include "state/settings/settings_store.h"

namespace varnel {

// As the settings have it.
Theme StoredTheme(SettingsStore& store);

class ThemeTools : public QObject {
    Q_OBJECT
  public:
    // Without a keeper the choice holds from the next start on.
    ThemeTools(QMenu& menu, SettingsStore& store, ThemeKeeper* keeper, QObject* parent);

  private:
    void Choose(Theme theme);

    SettingsStore& store_;
    ThemeKeeper* keeper_;
};

}  // namespace varnel
