// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the gear list does to the table. The editor's result is in element 0; n is the number of a
// gear that the table has.
#pragma once

#include "gear/gear_record.h"

namespace varnel {

// The first gear that has the default's name.
bool IsDefaultGear(const GearTable& table, int n);

// Appends the editor's gear and returns its number.
int AddEditedGear(GearTable& table);

// Puts the editor's gear in place of gear n. The default gear stays the default under a new name.
void ReplaceWithEditedGear(GearTable& table, int n);

// One gear has to stay.
bool MayDeleteGear(const GearTable& table);

// Removes gear n; the default passes to the gear that comes first then.
void DeleteGear(GearTable& table, int n);

}  // namespace varnel
