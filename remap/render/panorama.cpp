// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/panorama.h"

#include <cmath>
#include <numbers>

#include "remap/image/ifd_reader.h"
#include "remap/projection/geometry.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

// Of the EXIF standard.
constexpr std::uint16_t gpsTag = 0x8825;        // where the directory of the place is
constexpr std::uint16_t directionTag = 0x0011;  // a fraction, degrees
constexpr std::uint16_t fractionType = 5;

double WithinACircle(double degrees) {
    return degrees - 360.0 * std::floor(degrees / 360.0);
}

// How far to the right the middle of the result is.
double PanOf(const ImageRecord& image) {
    const Ray ray = RotateRay({0.0, 0.0, 1.0},
                              RotationAngles(image.RotateX, image.RotateY, image.RotateZ, 100.0F));
    return std::atan2(ray.x, ray.z) * 180.0 / std::numbers::pi;
}

}  // namespace

std::optional<PanoramaInfo> PanoramaOf(PanoramaLayout layout, double degrees,
                                       const OutputFrame& frame) {
    const PixelSize whole = frame.Whole();
    if (layout == PanoramaLayout::None || !(degrees > 0.0) || whole.width <= 0) {
        return std::nullopt;
    }
    const double round = whole.width * 360.0 / degrees;
    if (!(round <= 1e9)) {
        return std::nullopt;
    }
    const auto width = static_cast<std::int32_t>(std::lround(round));
    PanoramaInfo info{layout, width, frame.size.height, 0, 0, frame.size.width, frame.size.height};
    info.left = (width - whole.width) / 2 + frame.corner.x;
    if (layout == PanoramaLayout::Equirectangular) {
        info.fullHeight = static_cast<std::int32_t>(std::lround(round / 2.0));
        const std::int32_t above = whole.height - frame.corner.y - frame.size.height;
        info.top = (info.fullHeight - whole.height) / 2 + above;
    }
    const bool fits = info.left >= 0 && info.left + frame.size.width <= info.fullWidth &&
                      info.top >= 0 && info.top + frame.size.height <= info.fullHeight;
    return fits ? std::optional(info) : std::nullopt;
}

std::optional<double> HeadingOf(const PhotoMetadata& photo) {
    const IfdReader reader(photo.exif.bytes);
    if (!reader.IsTiff()) {
        return std::nullopt;
    }
    const Ifd first = reader.Directory(reader.First());
    const std::uint32_t place = reader.Number(first.Find(gpsTag));
    if (place == 0) {
        return std::nullopt;
    }
    const Ifd gps = reader.Directory(place);
    const IfdEntry* const entry = gps.Find(directionTag);
    if (entry == nullptr || entry->type != fractionType || entry->count != 1 ||
        !reader.HoldsValues(*entry)) {
        return std::nullopt;
    }
    const std::vector<std::uint64_t> values = reader.Numbers(*entry, 1);
    const auto high = static_cast<double>(values.front() >> 32U);
    const auto low = static_cast<double>(values.front() & 0xffffffffU);
    const double degrees = reader.IsBigEndian() ? high / low : low / high;
    return degrees >= 0.0 && degrees <= 360.0 ? std::optional(degrees) : std::nullopt;
}

std::optional<PanoramaInfo> PanoramaOfResult(Projection projection, const ImageRecord& image,
                                             const OutputFrame& frame, const PhotoMetadata& photo) {
    const float degrees = CutAngleOf(projection, image).value_or(image.OutputAOV);
    auto info = PanoramaOf(InfoOf(projection).panorama, static_cast<double>(degrees), frame);
    if (info) {
        if (const auto heading = HeadingOf(photo)) {
            info->heading = WithinACircle(*heading + PanOf(image));
        }
    }
    return info;
}

}  // namespace varnel
