// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the image list shows of a photo beside its name, as letters and in words. Throws nothing.
#pragma once

#include <QString>

#include "state/records/image_record.h"

namespace varnel {

// The initial of the projection, then a triangle for a film, "A" for adjusted, "?" for a gear that
// is a guess, "Q" for queued and "!" for error.
struct ListBadges {
    QString letters;
    QString words;  // the same, joined with commas; the error stands last

    bool operator==(const ListBadges&) const = default;
};

// The error is empty when there is none.
ListBadges MarksOf(const ImageRecord& image, bool queued, const QString& error);

}  // namespace varnel
