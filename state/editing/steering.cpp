// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/editing/steering.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/run_time_error.h"
#include "remap/analysis/point_mapping.h"
#include "state/adjustments/slider_table.h"

namespace varnel {

namespace {

constexpr double degree = std::numbers::pi / 180.0;
constexpr double exact = 0.02;         // pixels of the photo
constexpr double probe = 0.02;         // degrees from one record to the next, for a derivative
constexpr double largestStep = 15.0;   // degrees; farther on the map is another one
constexpr double perWheelStep = 1.05;  // what looks nearer or farther

struct Turn {
    double x = 0.0;
    double y = 0.0;
};

std::optional<PointMapping> MappingOf(const Steered& steered) {
    try {
        return PointMapping(ProjectionFromIndex(steered.image.Projection), steered.image,
                            steered.size);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

// What the place under the point misses the wanted one by, as a function of the turns.
class Aim {
  public:
    Aim(const Steered& steered, const SourcePosition& point, const SourcePosition& place)
        : trial_(steered),
          point_(point),
          place_(place),
          projection_(ProjectionFromIndex(steered.image.Projection)) {}

    Turn Start() const {
        return {static_cast<double>(trial_.image.RotateX),
                static_cast<double>(trial_.image.RotateY)};
    }
    Turn Within(const Turn& turn) const {
        return {WithinReach(SliderId::X, projection_, turn.x),
                WithinReach(SliderId::Y, projection_, turn.y)};
    }
    std::optional<SourcePosition> Miss(const Turn& turn) {
        Set(turn);
        const auto found = PlaceUnder(trial_, point_);
        if (!found) {
            return std::nullopt;
        }
        return SourcePosition{found->x - place_.x, found->y - place_.y};
    }
    ImageRecord With(const Turn& turn) {
        Set(turn);
        return trial_.image;
    }

  private:
    void Set(const Turn& turn) {
        trial_.image.RotateX = static_cast<float>(turn.x);
        trial_.image.RotateY = static_cast<float>(turn.y);
    }

    Steered trial_;
    SourcePosition point_, place_;
    Projection projection_;
};

double Length(const SourcePosition& way) {
    return std::hypot(way.x, way.y);
}

// Newton's step from a turn with that miss; nothing where the map does not move with the turns.
std::optional<Turn> StepFrom(Aim& aim, const Turn& turn, const SourcePosition& miss) {
    const auto tilted = aim.Miss({turn.x + probe, turn.y});
    const auto panned = aim.Miss({turn.x, turn.y + probe});
    if (!tilted || !panned) {
        return std::nullopt;
    }
    const double xx = (tilted->x - miss.x) / probe;
    const double xy = (panned->x - miss.x) / probe;
    const double yx = (tilted->y - miss.y) / probe;
    const double yy = (panned->y - miss.y) / probe;
    const double determinant = xx * yy - xy * yx;
    const Turn step{(xy * miss.y - yy * miss.x) / determinant,
                    (yx * miss.x - xx * miss.y) / determinant};
    const double length = std::hypot(step.x, step.y);
    if (!std::isfinite(length)) {
        return std::nullopt;
    }
    const double share = std::min(1.0, largestStep / std::max(length, probe));
    return Turn{step.x * share, step.y * share};
}

// The step, or a part of it that brings the place nearer; false when none does.
bool Approach(Aim& aim, const Turn& step, Turn& turn, SourcePosition& miss) {
    constexpr int mostHalvings = 5;
    double share = 1.0;
    for (int n = 0; n < mostHalvings; ++n) {
        const Turn tried = aim.Within({turn.x + share * step.x, turn.y + share * step.y});
        const auto left = aim.Miss(tried);
        if (left && Length(*left) < Length(miss)) {
            turn = tried;
            miss = *left;
            return true;
        }
        share /= 2.0;
    }
    return false;
}

// Degrees from the axis to the place, counter-clockwise.
double Direction(const SourcePosition& axis, const SourcePosition& place) {
    return std::atan2(place.y - axis.y, place.x - axis.x) / degree;
}

double WithinHalfTurn(double degrees) {
    return std::remainder(degrees, 360.0);
}

// The angle of view that many steps of the wheel nearer.
double Nearer(Projection projection, double angle, double steps) {
    const double share = std::pow(perWheelStep, -steps);
    if (InfoOf(projection).frame.wheel == Widening::Angle) {
        const ControlRange reach = ReachOf(SliderId::AovOutput, projection);
        return std::clamp<double>(angle * share, reach.minimum, reach.maximum);
    }
    const double known = std::clamp(angle, narrowestView, widestView);
    const double half = std::atan(std::tan(known / 2.0 * degree) * share) / degree;
    return std::clamp(2.0 * half, narrowestView, widestView);
}

}  // namespace

bool CanTurn(Projection projection) {
    return Reads(projection, SliderId::X) && Reads(projection, SliderId::Y);
}

bool CanRoll(Projection projection) {
    return Reads(projection, SliderId::Z);
}

bool CanWiden(Projection projection) {
    return Reads(projection, SliderId::AovOutput);
}

std::optional<SourcePosition> PlaceUnder(const Steered& steered, const SourcePosition& point) {
    const std::optional<PointMapping> mapping = MappingOf(steered);
    return mapping ? mapping->At(point) : std::nullopt;
}

ImageRecord TurnedTo(const Steered& steered, const SourcePosition& point,
                     const SourcePosition& place) {
    constexpr int mostSteps = 14;
    Aim aim(steered, point, place);
    Turn turn = aim.Start();
    std::optional<SourcePosition> miss = aim.Miss(turn);
    if (!miss) {
        return steered.image;
    }
    for (int n = 0; n < mostSteps && Length(*miss) > exact; ++n) {
        const std::optional<Turn> step = StepFrom(aim, turn, *miss);
        if (!step || !Approach(aim, *step, turn, *miss)) {
            break;
        }
    }
    return aim.With(turn);
}

// A roll turns all places about the optical axis alike, whichever way a projection counts it.
ImageRecord RolledTo(const Steered& steered, const SourcePosition& point,
                     const SourcePosition& place) {
    constexpr double tried = 1.0;  // degree
    Steered rolled = steered;
    rolled.image.RotateZ += static_cast<float>(tried);
    const std::optional<PointMapping> before = MappingOf(steered);
    const auto from = before ? before->At(point) : std::nullopt;
    const auto to = PlaceUnder(rolled, point);
    if (!from || !to) {
        return steered.image;
    }
    const SourcePosition& axis = before->Axis();
    const double now = Direction(axis, *from);
    const double rate = WithinHalfTurn(Direction(axis, *to) - now) / tried;
    const double wanted = WithinHalfTurn(Direction(axis, place) - now);
    const double angle = static_cast<double>(steered.image.RotateZ) + wanted / rate;
    if (!std::isfinite(angle)) {
        return steered.image;
    }
    rolled.image.RotateZ = static_cast<float>(WithinReach(
        SliderId::Z, ProjectionFromIndex(steered.image.Projection), WithinHalfTurn(angle)));
    return rolled.image;
}

ImageRecord WidenedAt(const Steered& steered, const SourcePosition& point, double steps) {
    const auto place = PlaceUnder(steered, point);
    Steered widened = steered;
    const Projection projection = ProjectionFromIndex(steered.image.Projection);
    widened.image.OutputAOV =
        static_cast<float>(Nearer(projection, static_cast<double>(steered.image.OutputAOV), steps));
    return place && CanTurn(projection) ? TurnedTo(widened, point, *place) : widened.image;
}

ImageRecord CentredOn(const Steered& steered, const SourcePosition& point) {
    const auto place = PlaceUnder(steered, point);
    const PixelSize result = steered.ResultSize();
    const SourcePosition middle{(result.width - 1) / 2.0, (result.height - 1) / 2.0};
    return place ? TurnedTo(steered, middle, *place) : steered.image;
}

}  // namespace varnel
