// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections by their numbers, which are stored in records and are the indices of the option
// buttons. What is known of each stands in remap/projection/projection_info.h.
#pragma once

#include <cstdint>

namespace varnel {

enum class Projection : std::int16_t { Varnel = 0, Rectilinear = 1, Equidistance = 2, Horizon = 3 };

}  // namespace varnel
