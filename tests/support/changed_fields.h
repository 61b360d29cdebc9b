// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <string>

#include "state/adjustments/record_fields.h"

namespace varnel::testing {

// Which fields have become what, in the record's order: "RotateX=-1 RotateY=2".
inline std::string Changed(const ImageRecord& before, const ImageRecord& after) {
    QStringList changes;
    for (const QString& name : FieldNames()) {
        if (FieldText(before, name) != FieldText(after, name)) {
            changes.append(name + u'=' + FieldText(after, name));
        }
    }
    if (before.FurtherSettings != after.FurtherSettings) {
        changes.append(QStringLiteral("FurtherSettings"));
    }
    return changes.join(u' ').toStdString();
}

}  // namespace varnel::testing
