// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The day on which a photo was taken. Throws std::bad_alloc only.
#pragma once

#include <QDate>
#include <QString>

#include "remap/image/photo_metadata.h"

namespace varnel {

// As the photo's EXIF states it; no valid day where it does not.
QDate ExifDate(const ExifBlock& exif);

// The EXIF's day, else the one on which the file was last changed.
QDate PhotoDate(const PhotoMetadata& metadata, const QString& path);

}  // namespace varnel
