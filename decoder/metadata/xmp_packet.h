// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// XMP made ready for other files, and the settings that are found in it.
#pragma once

#include <exiv2/xmp_exiv2.hpp>

#include "remap/image/photo_metadata.h"

namespace varnel {

// Makes our namespace known to the library.
void RegisterSettingsNamespace();

// Fills packet and settings of the metadata. upright: the pixels stand as they are to be seen. May
// throw what the library throws.
void FillXmp(Exiv2::XmpData data, bool upright, PhotoMetadata& metadata);

// Takes a packet over but for our settings, where it is XML in order and shows no old picture;
// false and nothing done otherwise.
bool KeepXmp(QByteArray packet, PhotoMetadata& metadata);

}  // namespace varnel
