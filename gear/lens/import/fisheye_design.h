// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The ideal fisheyes that other programs start from. Throws nothing.
#pragma once

#include <optional>
#include <string_view>

namespace varnel {

enum class FisheyeDesign { Equidistant, Equisolid, Orthographic, Stereographic, Thoby };

// In focal lengths, for an angle in radians from the axis. An orthographic one falls beyond 90
// degrees.
double DesignRadius(FisheyeDesign design, double angle);

// From lensfun's <type>; nothing for what is no fisheye.
std::optional<FisheyeDesign> DesignOfLensfun(std::string_view type);
// What lensfun calls it.
const char* LensfunType(FisheyeDesign design);

// From the number after the f of a Hugin image line; nothing for what is no fisheye.
std::optional<FisheyeDesign> DesignOfHugin(int format);

}  // namespace varnel
