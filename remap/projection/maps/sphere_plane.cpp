// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/sphere_plane.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace varnel {

namespace {

constexpr double pi = std::numbers::pi;
constexpr double endless = std::numeric_limits<double>::infinity();

// ---- around the axis ----

// Of a ray at a distance from the axis: its part aside for each unit of the distance, and along.
// Both are smooth over the square of the distance.
struct AxisRay {
    double aside = 1.0;
    double along = 1.0;
};

struct Stereographic {
    static constexpr double farthest = endless;
    static double Radius(double angle) { return 2.0 * std::tan(angle / 2.0); }
    static AxisRay At(double square) {
        const double t = square / 4.0;
        return {1.0 / (1.0 + t), (1.0 - t) / (1.0 + t)};
    }
};

struct Equidistant {
    static constexpr double farthest = pi;
    static double Radius(double angle) { return angle; }
    static AxisRay At(double square) {
        const double r = std::sqrt(square);
        return {r > 0.0 ? std::sin(r) / r : 1.0, std::cos(r)};
    }
};

struct Equisolid {
    static constexpr double farthest = 2.0;
    static double Radius(double angle) { return 2.0 * std::sin(angle / 2.0); }
    static AxisRay At(double square) { return {std::sqrt(1.0 - square / 4.0), 1.0 - square / 2.0}; }
};

struct Orthographic {
    static constexpr double farthest = 1.0;
    static double Radius(double angle) { return std::sin(angle); }
    static AxisRay At(double square) { return {1.0, std::sqrt(1.0 - square)}; }
};

template <class Formula>
class AxisPlane : public SpherePlane {
  public:
    explicit AxisPlane(const PlaneFit& fit)
        : unit_(Formula::Radius(fit.halfAngle) / fit.halfWidth) {}
    Point At(double x, double y) const override {
        const double across = x * unit_;
        const double up = y * unit_;
        const double square = across * across + up * up;
        const AxisRay ray = Formula::At(square);
        return {{across * ray.aside, up * ray.aside, ray.along},
                1.0 - square / (Formula::farthest * Formula::farthest)};
    }

  private:
    double unit_;  // for each pixel
};

// ---- around a cylinder ----

struct Elevation {
    double cosine = 1.0;
    double sine = 0.0;
};

struct Tangent {
    static constexpr double farthest = endless;
    static Elevation At(double y) {
        const double cosine = 1.0 / std::sqrt(1.0 + y * y);
        return {cosine, y * cosine};
    }
};

struct Conformal {
    static constexpr double farthest = endless;
    static Elevation At(double y) { return {1.0 / std::cosh(y), std::tanh(y)}; }
};

struct Linear {
    static constexpr double farthest = pi / 2.0;
    static Elevation At(double y) { return {std::cos(y), std::sin(y)}; }
};

template <class Formula>
class CylinderPlane : public SpherePlane {
  public:
    explicit CylinderPlane(const PlaneFit& fit) : unit_(fit.halfAngle / fit.halfWidth) {}
    Point At(double x, double y) const override {
        const double phi = x * unit_;
        const Elevation lambda = Formula::At(y * unit_);
        return {{std::sin(phi) * lambda.cosine, lambda.sine, std::cos(phi) * lambda.cosine},
                1.0 - std::fabs(y * unit_) / Formula::farthest};
    }

  private:
    double unit_;  // radians for each pixel
};

// ---- Panini ----

class Panini : public SpherePlane {
  public:
    Panini(const PlaneFit& fit, const PaniniShape& shape)
        : shape_(shape),
          unit_(Stretch(std::cos(fit.halfAngle)) * std::sin(fit.halfAngle) / fit.halfWidth) {}
    Point At(double x, double y) const override {
        const double cosine = CosineAt(x * unit_);
        const double stretch = Stretch(cosine);
        const double sine = x * unit_ / stretch;
        const double tangent = y * unit_ / Height(cosine, stretch);
        const double level = 1.0 / std::sqrt(1.0 + tangent * tangent);  // cosine of lambda
        return {{sine * level, tangent * level, cosine * level}, 1.0};
    }

  private:
    double Stretch(double cosine) const { return (shape_.d + 1.0) / (shape_.d + cosine); }
    // The cosine of phi, from sin(phi) = x / S.
    double CosineAt(double x) const {
        const double d = shape_.d;
        const double part = x / (d + 1.0);
        const double k = part * part;
        return (std::sqrt(1.0 + k * (1.0 - d * d)) - k * d) / (k + 1.0);
    }
    // y for a tangent of 1.
    double Height(double cosine, double stretch) const {
        return (1.0 - shape_.squeeze) * stretch + shape_.squeeze / Flattened(cosine);
    }
    // The cosine itself up to 75 degrees, then smoothly something above 0.
    static double Flattened(double cosine) {
        constexpr double end = 0.2588190451025207;  // cos 75 degrees
        constexpr double room = 0.6;
        const double below = (end - cosine) / end;
        return below <= 0.0 ? cosine : end * (1.0 - room * std::tanh(below / room));
    }

    PaniniShape shape_;
    double unit_;
};

// ---- unrolled ----

class Unrolled : public SpherePlane {
  public:
    Unrolled(const PlaneFit& fit, const UnrollShape& shape)
        : middle_(shape.start + shape.direction * fit.halfAngle),
          perColumn_(shape.direction * fit.halfAngle / fit.halfWidth),
          centre_((shape.bottom + shape.top) / 2.0),
          perRow_((shape.top - shape.bottom) / fit.height) {}
    Point At(double x, double y) const override {
        const double azimuth = middle_ + x * perColumn_;
        const double angle = centre_ + y * perRow_;
        const double aside = std::sin(angle);
        return {{aside * std::sin(azimuth), aside * std::cos(azimuth), std::cos(angle)},
                std::fmin(angle, pi - angle)};
    }

  private:
    double middle_, perColumn_;  // radians
    double centre_, perRow_;
};

}  // namespace

PlanePointer StereographicPlane(const PlaneFit& fit) {
    return std::make_unique<AxisPlane<Stereographic>>(fit);
}

PlanePointer EquidistantPlane(const PlaneFit& fit) {
    return std::make_unique<AxisPlane<Equidistant>>(fit);
}

PlanePointer EquisolidPlane(const PlaneFit& fit) {
    return std::make_unique<AxisPlane<Equisolid>>(fit);
}

PlanePointer OrthographicPlane(const PlaneFit& fit) {
    return std::make_unique<AxisPlane<Orthographic>>(fit);
}

PlanePointer CylindricalPlane(const PlaneFit& fit) {
    return std::make_unique<CylinderPlane<Tangent>>(fit);
}

PlanePointer MercatorPlane(const PlaneFit& fit) {
    return std::make_unique<CylinderPlane<Conformal>>(fit);
}

PlanePointer EquirectangularPlane(const PlaneFit& fit) {
    return std::make_unique<CylinderPlane<Linear>>(fit);
}

PlanePointer PaniniPlane(const PlaneFit& fit, const PaniniShape& shape) {
    return std::make_unique<Panini>(fit, shape);
}

PlanePointer UnrolledPlane(const PlaneFit& fit, const UnrollShape& shape) {
    return std::make_unique<Unrolled>(fit, shape);
}

}  // namespace varnel
