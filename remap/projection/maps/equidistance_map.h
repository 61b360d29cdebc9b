// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The equidistant fisheye view: the distance from the circle centre is proportional to the angle
// from the optical axis.
#pragma once

#include "remap/projection/smooth_map.h"

namespace varnel {

struct EquidistanceView {
    SourceFrame source;
    OutputFrame output;
    LensKind kind = LensKind::Sin;
    LensCurve curve;
    float imageCircleRadius = 0.0F;  // millimetres
    float inputAov = 0.0F;           // degrees across the frame
};

class EquidistanceMap : public SmoothMap {
  public:
    // Throws RunTimeError when the circle is too far away and when a sensor side, the lens factor
    // or the reference radius is 0.
    explicit EquidistanceMap(const EquidistanceView& view);
    SourceOffset At(int x, int y) const override;
    std::unique_ptr<SmoothNodes> Nodes() const override;
    bool IsFourfold() const override { return true; }
    PixelWindow Shown() const override { return Output().InnerOnResult(); }
    // The source's distance from the centre for the output's distance r, both in pixels.
    double SourceRadius(double r) const;
    // The radius at which a result as large as the photo shows half the frame's angle.
    std::int32_t ReferenceRadius() const { return referenceRadius_; }
    LensKind Kind() const { return kind_; }
    // The frame's angle in radians.
    double FrameAngle() const { return frameAngle_; }

  private:
    LensKind kind_;
    LensCurve curve_;
    double frameAngle_;
    std::int32_t referenceRadius_;
    double outputRadius_;  // the same on the result
    double pixelsPerMillimetre_;
};

static_assert(PixelMap<EquidistanceMap>);

}  // namespace varnel
