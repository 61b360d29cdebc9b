// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/lens/import/fisheye_design.h"

#include <array>
#include <cmath>

namespace varnel {

namespace {

// In the order of FisheyeDesign.
constexpr std::array lensfunTypes{"fisheye", "equisolid", "orthographic", "stereographic",
                                  "fisheye_thoby"};

}  // namespace

double DesignRadius(FisheyeDesign design, double angle) {
    switch (design) {
        case FisheyeDesign::Equisolid:
            return 2.0 * std::sin(angle / 2.0);
        case FisheyeDesign::Orthographic:
            return std::sin(angle);
        case FisheyeDesign::Stereographic:
            return 2.0 * std::tan(angle / 2.0);
        case FisheyeDesign::Thoby:
            return 1.47 * std::sin(0.713 * angle);
        case FisheyeDesign::Equidistant:
            break;
    }
    return angle;
}

std::optional<FisheyeDesign> DesignOfLensfun(std::string_view type) {
    constexpr std::string_view family = "fisheye_";
    for (std::size_t n = 0; n < lensfunTypes.size(); ++n) {
        const std::string_view name = lensfunTypes[n];
        if (type == name || (type.starts_with(family) && type.substr(family.size()) == name)) {
            return static_cast<FisheyeDesign>(n);
        }
    }
    return std::nullopt;
}

const char* LensfunType(FisheyeDesign design) {
    return lensfunTypes[static_cast<std::size_t>(design)];
}

std::optional<FisheyeDesign> DesignOfHugin(int format) {
    switch (format) {
        case 2:  // circular and
        case 3:  // full-frame differ only in what is cut off
            return FisheyeDesign::Equidistant;
        case 8:
            return FisheyeDesign::Orthographic;
        case 10:
            return FisheyeDesign::Stereographic;
        case 20:
            return FisheyeDesign::Thoby;
        case 21:
            return FisheyeDesign::Equisolid;
        default:
            return std::nullopt;
    }
}

}  // namespace varnel
