// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/store/gear_list.h"

#include <numeric>

#include "gear/catalogue/gear_catalogue.h"

namespace varnel {

bool IsDefaultGear(const GearTable& table, int n) {
    return table.Find(table.DefaultGearName) == n;
}

int AddEditedGear(GearTable& table) {
    table.Resize(table.UpperBound() + 1);
    table(table.UpperBound()) = table(0);
    return table.UpperBound();
}

void ReplaceWithEditedGear(GearTable& table, int n) {
    if (IsDefaultGear(table, n)) {
        table.DefaultGearName = table(0).GearName;
    }
    table(n) = table(0);
}

bool MayDeleteGear(const GearTable& table) {
    return table.UpperBound() > 1;
}

void DeleteGear(GearTable& table, int n) {
    if (IsDefaultGear(table, n)) {
        table.DefaultGearName = table(n == 1 ? 2 : 1).GearName;
    }
    table.Remove(n);
}

void RenameLens(GearTable& table, const QString& name, const LensReference& renamed) {
    for (int n = 0; n <= table.UpperBound(); ++n) {
        if (table(n).LensBrand == ownLensBrand && table(n).LensModel == name) {
            table(n).LensModel = renamed->name;
            table(n).Lens = renamed;
        }
    }
}

void GearOrigins::RenameLens(const QString& name, const LensReference& renamed) {
    varnel::RenameLens(before_, name, renamed);
}

GearOrigins::GearOrigins(const GearTable& table)
    : before_(table), origins_(static_cast<std::size_t>(table.UpperBound()) + 1) {
    std::iota(origins_.begin(), origins_.end(), 0);
}

std::vector<GearChange> GearOrigins::Redefined(const GearTable& now) const {
    std::vector<GearChange> changes;
    for (int n = 1; n <= now.UpperBound(); ++n) {
        const int origin = origins_.at(static_cast<std::size_t>(n));
        const GearRecord& before = before_(origin);
        if (origin > 0 && before_.Find(before.GearName) == origin && before != now(n)) {
            changes.push_back({before, now(n)});
        }
    }
    return changes;
}

}  // namespace varnel
