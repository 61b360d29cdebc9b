// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/gear_model.h"

namespace varnel {

void GearModel::Refill() {
    names_.clear();
    for (int n = 1; n <= gears_.UpperBound(); ++n) {
        names_.append(gears_(n).GearName);
    }
    number_ = gears_.Default();
    Q_EMIT Refilled();
}

void GearModel::Show(const QString& gearName) {
    number_ = static_cast<int>(names_.indexOf(gearName)) + 1;
    Q_EMIT Shown(gearName);
}

}  // namespace varnel
