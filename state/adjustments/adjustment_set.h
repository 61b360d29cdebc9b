// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How a photo is converted, apart from what took it: projection, angle of view of the output,
// effects, rotations and shifts, size, crop and what stands outside the photo, as names and values.
// Never among them: gear, circle's centre, numbers of the lens. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

#include "remap/image/photo_metadata.h"
#include "state/records/image_record.h"

namespace varnel {

// The names in the order in which people read them.
QStringList AdjustmentNames();

// All adjustments of a record.
PictureSettings AdjustmentsOf(const ImageRecord& image);

// Gives a record those adjustments that are among the settings, and marks it as applied; what is
// unusable or out of range is left out. Other settings are not looked at. False when there was
// nothing to give.
bool GiveAdjustments(const PictureSettings& settings, ImageRecord& image);

// As text for the clipboard, and back; nothing when the text is none of these.
QString AdjustmentsText(const PictureSettings& adjustments);
std::optional<PictureSettings> AdjustmentsFromText(const QString& text);

}  // namespace varnel
