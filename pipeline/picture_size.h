// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The size of a photo without decoding it.
#pragma once

#include <QString>
#include <optional>

#include "remap/geometry.h"

namespace varnel {

// From the header where the format allows, else by loading; nothing when the photo cannot be read
// or is too large.
std::optional<PixelSize> ReadPictureSize(const QString& path);

}  // namespace varnel
