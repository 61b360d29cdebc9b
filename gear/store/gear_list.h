// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the gear list does to the table. The editor's result is in element 0; n is the number of a
// gear that the table has. Throws nothing.
#pragma once

#include <vector>

#include "state/records/gear_record.h"

namespace varnel {

// Whether gear n is the first one that has the default's name.
bool IsDefaultGear(const GearTable& table, int n);

// Appends the editor's gear and returns its number.
int AddEditedGear(GearTable& table);

// Puts the editor's gear in place of gear n. The default gear stays the default under a new name.
void ReplaceWithEditedGear(GearTable& table, int n);

// Whether more than one gear is left.
bool MayDeleteGear(const GearTable& table);

// Removes gear n; if it was the default, the first gear of the rest becomes the default.
void DeleteGear(GearTable& table, int n);

// Lets the gears that have a lens of the user's own follow it under its new name.
void RenameLens(GearTable& table, const QString& name, const LensReference& renamed);

// Maps the gears of the table to those that it held when the list was opened.
class GearOrigins {
  public:
    explicit GearOrigins(const GearTable& table);
    void NoteAdded() { origins_.push_back(0); }
    void NoteDeleted(int n) { origins_.erase(origins_.begin() + n); }
    const GearTable& Before() const { return before_; }
    // What cancelling does not undo.
    void RenameLens(const QString& name, const LensReference& renamed);
    // The gears that have changed, under the same name or another. Of several that had one name
    // only the first, to which that name refers.
    std::vector<GearChange> Redefined(const GearTable& now) const;

  private:
    GearTable before_;
    std::vector<int> origins_;  // of gear n: its number before, 0 for a new one
};

}  // namespace varnel
