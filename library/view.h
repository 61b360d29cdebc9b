// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is made of a picture, as texts of the record's fields.
#pragma once

#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

#include "state/records/image_record.h"
#include "varnel/varnel.h"

struct varnel_view {
    std::vector<std::pair<QString, QString>> settings;  // in the order in which they act
};

namespace varnel {

// The fields that a view may set: not those that photo and lens give.
QStringList ViewSettings();

Projection ProjectionOf(const varnel_view& view);

// Gives the record of a photo with its lens what the view has. Throws std::bad_alloc.
void Apply(const varnel_view& view, ImageRecord& image);

// A record for a picture of that size without a lens. Throws CallError for sizes beyond 1 to 32767.
ImageRecord RecordFor(int32_t width, int32_t height);

}  // namespace varnel
