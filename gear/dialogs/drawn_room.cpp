// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "gear/dialogs/drawn_room.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "gear/catalogue/gear_catalogue.h"
#include "gear/store/gear_entry.h"
#include "remap/projection/record_maps.h"
#include "state/adjustments/gear_assignment.h"

namespace varnel {

namespace {

using Colour = std::array<std::uint8_t, 3>;  // blue, green, red

struct Optics {
    LensKind kind = LensKind::Sin;
    LensCurve curve;
    double circle = 0.0;  // millimetres; nothing beyond
};

Optics OpticsOf(const GearRecord& gear) {
    ImageRecord image;
    AssignGear(gear, image);
    Optics optics{LensKindOf(image), LensCurveOf(image),
                  static_cast<double>(image.ImageCircleRadius)};
    if (image.Lens) {
        optics.circle = LensRadius(optics.kind, image.Lens->FieldLimit(), optics.curve);
    }
    return optics;
}

// Where the ray leaves a box with the camera in it: tiles with joints, each wall in its shade.
Colour WallAt(const Ray& ray) {
    constexpr std::array half{2.2, 1.4, 2.8};  // metres across, up, ahead
    const std::array direction{ray.x, ray.y, ray.z};
    std::size_t wall = 0;
    double reach = 1e9;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double along = std::fabs(direction[axis]);
        if (along * reach > half[axis]) {
            reach = half[axis] / along;
            wall = axis;
        }
    }
    constexpr double tile = 0.7;
    constexpr double joint = 0.05;
    bool isJoint = false;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double place = direction[axis] * reach / tile + 0.5;
        isJoint = isJoint || (axis != wall && place - std::floor(place) < joint / tile);
    }
    constexpr std::array<Colour, 3> walls{{{190, 205, 220}, {150, 175, 190}, {225, 230, 235}}};
    return isJoint ? Colour{60, 60, 60} : walls[wall];
}

// What a place on the sensor sees, millimetres from the axis; black beyond the circle.
Colour SeenAt(const Optics& optics, double right, double up) {
    const double radius = std::hypot(right, up);
    const double angle = LensAngle(optics.kind, radius, optics.curve);
    if (radius > optics.circle || std::isnan(angle)) {
        return {};
    }
    const double across = radius > 0.0 ? std::sin(angle) / radius : 0.0;
    return WallAt({right * across, up * across, std::cos(angle)});
}

// The mean over a pixel whose lower left corner is there: thin joints would look ragged, and so
// bent, from one place alone.
Colour PixelAt(const Optics& optics, double right, double up, double side) {
    constexpr int samples = 3;  // each way
    std::array<int, 3> sums{};
    for (int n = 0; n < samples * samples; ++n) {
        const Colour colour = SeenAt(optics, right + (n % samples + 0.5) / samples * side,
                                     up + (n / samples + 0.5) / samples * side);
        for (std::size_t channel = 0; channel < colour.size(); ++channel) {
            sums.at(channel) += colour.at(channel);
        }
    }
    Colour mean{};
    std::ranges::transform(sums, mean.begin(), [](int sum) {
        return static_cast<std::uint8_t>(sum / (samples * samples));
    });
    return mean;
}

}  // namespace

BitmapHandle DrawnRoom(const GearRecord& edited, PixelSize box) {
    GearRecord gear = edited;
    DropAdjustments(gear);
    FillGearFromCatalogue(NamesOf(gear), gear);
    if (!(gear.SensorWidth > 0.0F && gear.SensorHeight > 0.0F)) {
        return NewBitmap(box);
    }
    const double scale = std::min(box.width / static_cast<double>(gear.SensorWidth),
                                  box.height / static_cast<double>(gear.SensorHeight));
    const PixelSize size{
        std::max(1, static_cast<int>(static_cast<double>(gear.SensorWidth) * scale)),
        std::max(1, static_cast<int>(static_cast<double>(gear.SensorHeight) * scale))};
    const Optics optics = OpticsOf(gear);
    BitmapHandle room = NewBitmap(size);
    for (int y = 0; y < size.height; ++y) {
        const auto row = room->ScanLine(y);
        for (int x = 0; x < size.width; ++x) {
            const Colour colour = PixelAt(optics, (x - size.width / 2 - 0.5) / scale,
                                          (y - size.height / 2 - 0.5) / scale, 1.0 / scale);
            std::ranges::copy(colour, row.begin() + 3 * x);
        }
    }
    return room;
}

}  // namespace varnel
