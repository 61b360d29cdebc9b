// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/sphere_map.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "base/rounding.h"
#include "remap/projection/maps/radial_table.h"

namespace varnel {

namespace {

constexpr double pi = std::numbers::pi;

// The angle up to which the lens's radius grows, at most behind the camera.
double RisingEnd(LensKind kind, const LensCurve& curve) {
    const double factor = std::fabs(static_cast<double>(curve.factor));
    switch (kind) {
        case LensKind::Sin:
            return std::min(pi / 2.0 / factor, pi);
        case LensKind::Tan:
            return std::min(pi / 2.0 * factor, pi);
        case LensKind::Sampled:
            break;
    }
    return std::min(curve.spline->FieldLimit(), pi);
}

// The farthest from the axis that the photo shows anything, pixels.
double FarthestOn(const SourceFrame& photo) {
    const PixelPosition centre = photo.Centre();
    const double across = std::max(centre.x, photo.size.width - centre.x) + 2.0;
    const double up = std::max(centre.y, photo.size.height - centre.y) + 2.0;
    const double corner = std::hypot(across, up);
    return photo.ratio > 0.0F ? std::min(corner, static_cast<double>(photo.CircleRadius()))
                              : corner;
}

// The angle at which the lens's radius, in millimetres, reaches the given one, within what it
// shows.
double AngleAt(LensKind kind, const LensCurve& curve, double radius) {
    const double end = RisingEnd(kind, curve);
    const bool reachesAll =
        kind == LensKind::Tan && static_cast<double>(curve.factor) < 2.0;  // up to infinity
    if (!reachesAll && !(radius < LensRadius(kind, end, curve))) {
        return end;
    }
    return std::clamp(LensAngle(kind, radius, curve), 0.0, end);
}

// The smooth half of the map, which has to outlive it.
class SphereNodes : public SmoothNodes {
  public:
    explicit SphereNodes(const SphereMap& map)
        : map_(map),
          table_(
              std::cos(std::min(std::acos(map.Lens().LeastCosine()) + beyond, pi - 0.01)), 1.0,
              IsSampled() ? 1e-5 : 1e-6,
              [&map](double cosine) {
                  const double angle = std::max(std::acos(std::min(cosine, 1.0)), 1e-9);
                  return map.Lens().RadiusAt(angle) / std::sin(angle);
              },
              IsSampled() ? 1024 : 256) {}

    bool HasEdge() const override { return true; }
    void Fill(const NodeRun& run, const NodeValues& into) const override {
        const CentreShift& axis = map_.Axis();
        for (std::size_t n = 0; n < into.u.size(); ++n) {
            const auto [ray, inside] = map_.PointAt(run.PlaceOf(n), run.y);
            const double scale = table_.At(ray.z);
            into.u[n] = ray.x * scale + axis.x;
            into.v[n] = ray.y * scale + axis.y;
            into.inside[n] =
                inside > 0.0 ? std::min(inside, ray.z - map_.Lens().LeastCosine()) : inside;
        }
    }

  private:
    // Nodes outside of what is shown serve those inside.
    static constexpr double beyond = 0.3;  // radians
    bool IsSampled() const { return map_.Lens().Kind() == LensKind::Sampled; }

    const SphereMap& map_;
    RadialTable table_;  // radius / sine of the angle, over its cosine
};

}  // namespace

CameraTurn::CameraTurn(const Rotation& stand, const Rotation& camera) {
    const RayRotation outer(stand);
    const RayRotation inner(camera);
    const auto turned = [&](const Ray& ray) { return outer.Turn(inner.Turn(ray)); };
    across_ = turned({1.0, 0.0, 0.0});
    up_ = turned({0.0, 1.0, 0.0});
    along_ = turned({0.0, 0.0, 1.0});
}

double SphereView::HalfAngle() const {
    const double angle = 2.0 * FullHalfAngle() * static_cast<double>(effect) / 100.0;
    return NonZero(std::max(angle, 0.0), ReasonCode::EffectiveAngle) / 2.0;
}

PlaneFit SphereView::Fit() const {
    return {NonZero(source.size.width / 2 * output.scale, ReasonCode::HalfPictureWidth),
            static_cast<double>(output.Whole().height), HalfAngle()};
}

LensField::LensField(const SphereView& view)
    : kind_(view.kind), curve_(view.curve), scale_(view.source.PixelsPerMillimetre()) {
    CheckLensFactor(kind_, curve_);
    const double farthest = FarthestOn(view.source);
    double end = AngleAt(kind_, curve_, farthest / scale_);
    if (view.effect != 100.0F) {
        // The photo's radius at half the output angle of view stays at the border.
        const auto radiusAt = [&](double angle) {
            return LensRadius(kind_, std::min(angle, end), curve_);
        };
        scale_ *= radiusAt(view.FullHalfAngle()) /
                  NonZero(radiusAt(view.HalfAngle()), ReasonCode::SineOfHalfAngle);
        end = std::min(end, AngleAt(kind_, curve_, farthest / scale_));
    }
    leastCosine_ = std::cos(end);
}

SourceOffset LensField::At(const Ray& ray) const {
    const double aside = std::sqrt(ray.x * ray.x + ray.y * ray.y);
    if (!(ray.z >= leastCosine_) || (aside == 0.0 && ray.z < 0.0)) {
        return NowhereOnSource();
    }
    if (aside == 0.0) {
        return {};
    }
    const double radius = RadiusAt(std::atan2(aside, ray.z));
    return {ray.x * radius / aside, ray.y * radius / aside};
}

SphereMap::SphereMap(const SphereView& view, PlanePointer plane)
    : SmoothMap(view.source, view.output.Centred()),
      lens_(view),
      plane_(std::move(plane)),
      turn_(view.turn, view.pose) {}

// Not bound to 16 bits: results may be as wide as those go.
float SphereMap::ProgressAt(int column) const {
    return static_cast<float>(column + Extents().left + 1);
}

SourceOffset SphereMap::At(int x, int y) const {
    const auto [ray, inside] = PointAt(x, y);
    constexpr double rounding = -1e-9;  // a border that goes through the middles of pixels is shown
    return inside >= rounding ? FromAxis(lens_.At(ray)) : NowhereOnSource();
}

std::unique_ptr<SmoothNodes> SphereMap::Nodes() const {
    return std::make_unique<SphereNodes>(*this);
}

}  // namespace varnel
