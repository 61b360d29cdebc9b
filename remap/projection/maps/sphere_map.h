// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Any plane of directions seen through the lens: a camera that can be turned any way, with the
// plane as its picture. The axis stands in the middle of the frame.
#pragma once

#include <numbers>

#include "remap/projection/maps/sphere_plane.h"
#include "remap/projection/smooth_map.h"

namespace varnel {

// Two turns of a camera one after the other, worked out once.
class CameraTurn {
  public:
    // The camera stands within its stand; both may be turned.
    CameraTurn(const Rotation& stand, const Rotation& camera);
    // From the camera's axes to the photo's.
    Ray Turn(const Ray& ray) const {
        return {across_.x * ray.x + up_.x * ray.y + along_.x * ray.z,
                across_.y * ray.x + up_.y * ray.y + along_.y * ray.z,
                across_.z * ray.x + up_.z * ray.y + along_.z * ray.z};
    }

  private:
    Ray across_, up_, along_;
};

// What a map on the sphere is made from beside its plane. Angles in degrees.
struct SphereView {
    SourceFrame source;
    OutputFrame output;
    LensKind kind = LensKind::Sin;
    LensCurve curve;
    float outputAov = 0.0F;
    float effect = 100.0F;  // percent
    Rotation turn;          // radians, of the camera
    Rotation pose{};        // radians, where the camera looks before it is turned

    // Radians. In double precision: a whole turn has to end where it began.
    double FullHalfAngle() const {
        return static_cast<double>(outputAov) * std::numbers::pi / 360.0;
    }
    // What the effect leaves of it; above 0. Throws RunTimeError for an angle of 0 or less.
    double HalfAngle() const;
    // Throws RunTimeError as HalfAngle and for a photo of less than two columns.
    PlaneFit Fit() const;
};

// Where a lens shows directions on its photo. It shows nothing beyond the angle where its radius
// stops growing, nor beyond the image circle; also not what lies off the whole photo.
class LensField {
  public:
    // Throws RunTimeError when a number of the lens makes a division by zero.
    explicit LensField(const SphereView& view);

    // The cosine of the largest angle that is shown.
    double LeastCosine() const { return leastCosine_; }
    LensKind Kind() const { return kind_; }
    // Pixels from the axis, by the angle from it in radians.
    double RadiusAt(double angle) const { return LensRadius(kind_, angle, curve_) * scale_; }
    // From the axis, for a ray of length 1; nowhere where the lens does not show it.
    SourceOffset At(const Ray& ray) const;

  private:
    LensKind kind_;
    LensCurve curve_;
    double scale_;  // pixels for each millimetre, by the partial effect
    double leastCosine_;
};

class SphereMap : public SmoothMap {
  public:
    // Throws OverflowError and as LensField.
    SphereMap(const SphereView& view, PlanePointer plane);
    SourceOffset At(int x, int y) const override;
    std::unique_ptr<SmoothNodes> Nodes() const override;
    float ProgressAt(int column) const override;

    // The photo's direction at a position, also between whole ones; see SpherePlane.
    SpherePlane::Point PointAt(double x, double y) const {
        SpherePlane::Point point = plane_->At(x, y);
        point.ray = turn_.Turn(point.ray);
        return point;
    }
    const LensField& Lens() const { return lens_; }
    // Where the axis is beside the centre pixel of the source.
    const CentreShift& Axis() const { return AxisFraction(); }

  private:
    LensField lens_;
    PlanePointer plane_;
    CameraTurn turn_;
};

static_assert(PixelMap<SphereMap>);

}  // namespace varnel
