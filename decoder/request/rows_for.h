// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <functional>

#include "base/pixel_size.h"
#include "remap/image/pixel_format.h"

namespace varnel {

// Memory for the rows of a picture of this size, bottom row first, as far apart as in a bitmap of
// that format; null when there is none.
using RowsFor = std::function<std::byte*(PixelSize size, PixelFormat format)>;

}  // namespace varnel
