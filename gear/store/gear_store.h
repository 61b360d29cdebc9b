// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear table in the settings store. Throws nothing.
#pragma once

#include <QString>

#include "state/records/gear_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

// The message while there is no gear at all.
QString NoGearText();

// How loading asks the user for a gear while there is none at all.
class GearPrompt {
  public:
    virtual ~GearPrompt() = default;
    // Shows the text until it is confirmed.
    virtual void Explain(const QString& text) = 0;
    // Lets the user define element 0 of the table; its name stays empty when none was defined.
    // False when the user wants to quit the program instead.
    virtual bool DefineGear(GearTable& table) = 0;
};

enum class GearLoad { Loaded, QuitWanted };

// Fills the table from the store. Lenses of the user's own come from the folder beside it; a gear
// whose lens is not there keeps its name (LackingLensText). Settings of an older release, which
// knew one gear only, are taken over and saved in the present form; without any gear element 0 of
// the table becomes the first one if it has a name, else the user is asked for one until there is
// one. After QuitWanted the table holds no gear and nothing was saved.
GearLoad LoadGear(SettingsStore& store, GearTable& table, GearPrompt& prompt);

// Writes the table; a single gear becomes the default one. Keys of deleted gears stay in the store,
// beyond the stored number.
void SaveGear(SettingsStore& store, GearTable& table);

// Names the gears whose lens is not there, in one line; empty when there are none.
QString LackingLensText(const GearTable& table);

// Lets the stored gears follow a lens of the user's own to its new name; nothing else is written.
void RenameStoredLens(SettingsStore& store, const QString& name, const QString& newName);

}  // namespace varnel
