// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Entries of menus that are on or off, kept in the settings from one start to the next. Throws
// nothing but for want of memory.
#pragma once

#include <QMenu>
#include <functional>

#include "state/settings/settings_store.h"

namespace varnel {

struct KeptChoice {
    const char* name;  // of the entry's object
    QString text;
    const char* key;     // in the section of the window
    bool first = false;  // as long as nothing was chosen
};

// The same for an entry that exists and does by itself what it stands for.
void KeepChoice(QAction& entry, const char* key, bool first, SettingsStore& store);

// A new entry at the menu's end, as it was left; apply is called with that at once, and with each
// choice.
QAction* AddKeptChoice(QMenu& menu, const KeptChoice& choice, SettingsStore& store,
                       const std::function<void(bool)>& apply);

}  // namespace varnel
