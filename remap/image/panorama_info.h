// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a picture covers of the sphere around the camera, for programs that show it from inside.
// Throws nothing.
#pragma once

#include <cstdint>
#include <optional>

namespace varnel {

// How such a picture is laid out; None for all that no viewer takes.
enum class PanoramaLayout : std::uint8_t { None, Equirectangular, Cylindrical };

struct PanoramaInfo {
    PanoramaLayout layout = PanoramaLayout::Equirectangular;
    std::int32_t fullWidth = 0;  // of the whole sphere at the picture's scale, pixels
    std::int32_t fullHeight = 0;
    std::int32_t left = 0;  // where the picture's upper left corner is on it
    std::int32_t top = 0;
    std::int32_t width = 0;  // of the picture
    std::int32_t height = 0;
    std::optional<double> heading{};  // of the picture's middle, degrees clockwise from north

    bool operator==(const PanoramaInfo&) const = default;
};

}  // namespace varnel
