// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/level_horizon.h"

#include <cmath>
#include <numbers>
#include <vector>

#include "base/run_time_error.h"
#include "remap/projection/level.h"
#include "remap/projection/projection_info.h"
#include "remap/projection/record_maps.h"
#include "state/adjustments/slider_table.h"

namespace varnel {

namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr double shortest = 5.0 * degree;
constexpr double farthestOff = 3.0 * degree;  // a hand follows an edge far better

// How far a value is beyond what its slider can be set to, whole numbers as it holds.
double Beyond(SliderId id, const ImageRecord& image, double value) {
    const ControlRange range = RangeOf(id, ProjectionFromIndex(image.Projection));
    constexpr double rounding = 0.5;
    const bool above = value > range.maximum + rounding;
    const bool below = value < range.minimum - rounding;
    return above ? value - range.maximum : below ? value - range.minimum : 0.0;
}

// Without an effect the turns and the rays are the whole ones.
float EffectOf(const ImageRecord& image) {
    constexpr float whole = 100.0F;
    const auto effect = EffectReadBy(ProjectionFromIndex(image.Projection));
    return effect ? image.**effect : whole;
}

std::vector<Ray> RaysOf(const ImageRecord& image, PixelSize source,
                        std::span<const PicturePoint> traced) {
    RectilinearView view = RectilinearViewOf(image, FramesOf(image, source));
    view.effect = EffectOf(image);
    std::vector<Ray> rays;
    for (const PicturePoint& point : traced) {
        if (const auto ray = SourceRay(view, OffsetOf(point, source, image))) {
            rays.push_back(*ray);
        }
    }
    return rays;
}

// Of a view straight down or up from a camera that was level, the camera itself is levelled.
bool TurnsToPole(const ImageRecord& image) {
    constexpr float quarterTurn = 90.0F;
    const ProjectionInfo& row = InfoOf(ProjectionFromIndex(image.Projection));
    const float stand = row.Stand == nullptr ? 0.0F : row.Stand(image);
    return row.levels == LevelKind::Pole && std::fabs(stand) != quarterTurn;
}

Levelling LevelRays(const ImageRecord& image, std::span<const Ray> rays) {
    Levelling level;
    const std::optional<HorizonFit> fit = FitHorizon(rays);
    if (!fit || fit->length < shortest) {
        level.error = LevelError::TooShort;
        return level;
    }
    if (fit->spread > farthestOff) {
        level.error = LevelError::NotStraight;
        return level;
    }
    const LevelTurn present{static_cast<double>(image.RotateX), static_cast<double>(image.RotateZ)};
    level.unpanned = TurnsToPole(image);
    const LevelTurn turn = level.unpanned ? TurnForPole(fit->normal, present)
                                          : TurnForHorizon(fit->normal, EffectOf(image), present);
    level.rotateX = turn.x;
    level.rotateZ = turn.z;
    level.beyondX = Beyond(SliderId::X, image, turn.x);
    level.beyondZ = Beyond(SliderId::Z, image, turn.z);
    if (level.beyondX != 0.0 || level.beyondZ != 0.0) {
        level.error = LevelError::OutOfReach;
    }
    return level;
}

}  // namespace

SourceOffset OffsetOf(const PicturePoint& point, PixelSize source, const ImageRecord& image) {
    const CentreAndExtents centre = ImageCentre(source, image.OfsetX, image.OfsetY);
    return {point.x - 0.5 - centre.cx, source.height - 0.5 - point.y - centre.cy};
}

Levelling LevelHorizon(const ImageRecord& image, PixelSize source,
                       std::span<const PicturePoint> traced) {
    try {
        return LevelRays(image, RaysOf(image, source, traced));
    } catch (const RunTimeError&) {
        Levelling level;
        level.error = LevelError::NoLens;
        return level;
    }
}

}  // namespace varnel
