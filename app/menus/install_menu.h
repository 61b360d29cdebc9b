// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The entries of file managers in the user's own folders, with the user's presets. The package
// brings those that all users have. Throws std::bad_alloc only.
#pragma once

#include <QString>

#include "cli/report/console.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Where file managers look.
struct MenuPlaces {
    QString data;           // the user's, $XDG_DATA_HOME
    QString config;         // the user's, $XDG_CONFIG_HOME
    QString thunarOfAll;    // the list that Thunar takes while the user has none; empty: none
    bool hasThunar = true;  // without it no list is begun
    QString program;        // that the entries start
    QString language;       // the code of the desktop's
};

// Of this system. The program is known by its name where that leads to the one that is running.
MenuPlaces UserMenuPlaces();

// Writes the entries anew, or takes them away again. Names the files on out; one that cannot be
// changed is named on err with the reason and left as it is, the others are done. Returns the exit
// code.
int InstallMenu(const SettingsStore& store, const MenuPlaces& places, const Console& console);
int RemoveMenu(const MenuPlaces& places, const Console& console);

}  // namespace varnel
