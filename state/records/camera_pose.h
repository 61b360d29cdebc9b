// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the camera was held. Throws nothing.
#pragma once

#include <cstdint>

namespace varnel {

enum class CameraPose : std::int16_t { Level = 0, Up = 1, Down = 2 };

}  // namespace varnel
