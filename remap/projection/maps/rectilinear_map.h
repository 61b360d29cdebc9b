// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The straight-line (pinhole) view. Two maps: the plain one for a camera that is neither turned nor
// shifted, which is symmetric about the circle centre in both axes, and the general one.
#pragma once

#include <span>

#include "remap/projection/maps/face_warp.h"
#include "remap/projection/smooth_map.h"
#include "state/records/face_ellipse.h"

namespace varnel {

// What both maps are made from. Angles in degrees, effect and translation in percent.
struct RectilinearView {
    SourceFrame source;
    OutputFrame output;
    LensKind kind = LensKind::Sin;
    LensCurve curve;
    float outputAov = 0.0F;
    float effect = 100.0F;
};

// The camera's turn and shift. Positive x tilts down, positive y pans right, positive z rolls the
// camera counter-clockwise; positive translations move the picture right and up.
struct CameraMove {
    float rotateX = 0.0F;
    float rotateY = 0.0F;
    float rotateZ = 0.0F;
    float translateX = 0.0F;
    float translateY = 0.0F;

    // True when any of the five is not exactly 0.
    bool Moves() const {
        return rotateX != 0.0F || rotateY != 0.0F || rotateZ != 0.0F || translateX != 0.0F ||
               translateY != 0.0F;
    }
};

// From a distance on the output plane to a distance on the source, both in pixels of their own.
class RectilinearRadius {
  public:
    // Throws RunTimeError when a sensor side, the width, the factor or the effect makes a
    // division by zero.
    explicit RectilinearRadius(const RectilinearView& view);
    double At(double r) const;
    // The same by the ray's angle from the optical axis, radians, not negative.
    double AtAngle(double theta) const;
    LensKind Kind() const { return kind_; }
    // The tangent of the viewing angle per output pixel, to eight decimals.
    double TanStep() const { return tanStep_; }
    // The half width in pixels of what spans the output angle of view.
    double HalfWidth() const { return halfWidth_; }
    // tan(B' / 2) for the effective angle B'.
    double TanHalfAngle() const { return tanHalfAngle_; }

  private:
    LensKind kind_;
    LensCurve curve_;
    double scale_;
    double halfWidth_;
    double tanHalfAngle_;
    double tanStep_;
};

class RectilinearMap : public SmoothMap {
  public:
    // Throws OverflowError and as RectilinearRadius.
    explicit RectilinearMap(const RectilinearView& view)
        : SmoothMap(view.source, view.output), radius_(view) {}
    SourceOffset At(int x, int y) const override;
    std::unique_ptr<SmoothNodes> Nodes() const override;
    bool IsFourfold() const override { return true; }
    float ProgressAt(int column) const override;
    const RectilinearRadius& Radius() const { return radius_; }

  private:
    RectilinearRadius radius_;
};

class RotatedRectilinearMap : public SmoothMap {
  public:
    // Throws OverflowError and as RectilinearRadius, and when the effective angle of view is 0.
    // Faces keep their shape before the camera turns: they are places on the result.
    RotatedRectilinearMap(const RectilinearView& view, const CameraMove& move,
                          std::span<const FaceEllipse> faces = {});
    // x and y are loop values: the ray goes through (x + ShiftX(), y + ShiftY()) and what it finds
    // is written at (x - ShiftX(), y - ShiftY()) from the centre. That the shift counts twice is
    // meant.
    SourceOffset At(int x, int y) const override;
    std::unique_ptr<SmoothNodes> Nodes() const override;
    LoopAxis ColumnAxis() const override;
    LoopAxis RowAxis() const override;
    // The shift in pixels, single precision; positive translations give negative shifts.
    float ShiftX() const { return shiftX_; }
    float ShiftY() const { return shiftY_; }
    const RectilinearRadius& Radius() const { return radius_; }
    // Pixels from the eye to the output plane.
    double Focal() const { return focal_; }
    // The turned ray of a loop position; its z is along the optical axis.
    Ray TurnedRay(double x, double y) const {
        const Ray straight{x + static_cast<double>(shiftX_), y + static_cast<double>(shiftY_),
                           focal_};
        return rotation_.Turn(faces_.Empty() ? straight : Softened(straight));
    }
    // The point of the plane that a loop position's ray goes through, without the faces.
    PlanePoint PlaceOf(double x, double y) const {
        return {(x + static_cast<double>(shiftX_)) / focal_,
                (y + static_cast<double>(shiftY_)) / focal_};
    }
    const FaceWarps& Faces() const { return faces_; }

  private:
    Ray Softened(const Ray& straight) const {
        const PlanePoint place = faces_.At({straight.x / focal_, straight.y / focal_});
        return {place.x * focal_, place.y * focal_, focal_};
    }
    PlaneEllipse OnPlane(const FaceEllipse& face) const;

    RectilinearRadius radius_;
    RayRotation rotation_;
    double focal_;
    float shiftX_;
    float shiftY_;
    FaceWarps faces_;
};

static_assert(PixelMap<RectilinearMap> && PixelMap<RotatedRectilinearMap>);

}  // namespace varnel
