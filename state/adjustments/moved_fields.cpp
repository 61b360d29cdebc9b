// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/adjustments/moved_fields.h"

#include <algorithm>

namespace varnel {

const MovedField* MovedFieldOf(const QString& name) {
    const auto* const found = std::ranges::find(movedFields, name, &MovedField::name);
    return found != movedFields.end() ? found : nullptr;
}

QStringList MovedFieldNames() {
    QStringList names;
    for (const MovedField& moved : movedFields) {
        names.append(moved.name);
    }
    return names;
}

float OnTheWay(const MovedField& moved, float start, float end, float t) {
    const float value = start + (end - start) * t;
    return moved.least > 0.0F ? std::max(value, moved.least) : value;
}

}  // namespace varnel
