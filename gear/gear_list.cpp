// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/gear_list.h"

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

}  // namespace varnel
