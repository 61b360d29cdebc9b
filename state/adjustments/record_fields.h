// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The fields of an image record by their names, for the command line. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>

#include "state/records/image_record.h"

namespace varnel {

enum class FieldResult { Ok, UnknownField, BadValue };

// Numbers have a decimal point whatever the locale; a flag is True, False, 0, 1 or -1; Projection
// also takes the projections' keys, Pose is level, up or down, or 0 to 2, Faces are as in
// face_text.h. Names are exact. The record only changes when the result is Ok.
FieldResult SetField(ImageRecord& image, const QString& field, const QString& value);

// The field's value as SetField takes it back, numbers bit by bit; empty for any other name.
QString FieldText(const ImageRecord& image, const QString& field);

// All fields in the record's order.
QStringList FieldNames();

}  // namespace varnel
