// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The equidistant fisheye view: the distance from the circle centre is proportional to the angle
// from the optical axis.
#pragma once

#include "remap/projection/pixel_map.h"

namespace varnel {

struct EquidistanceView {
    PixelSize source;
    bool landscape = true;
    SensorSize sensor;
    LensKind kind = LensKind::Sin;
    LensCurve curve;
    float imageCircleRadius = 0.0F;  // millimetres
    float ratio = 0.0F;              // percent
    float inputAov = 0.0F;           // degrees across the frame
};

class EquidistanceMap {
  public:
    // Throws RunTimeError when a sensor side, the lens factor or the reference radius is 0.
    explicit EquidistanceMap(const EquidistanceView& view);
    SourceOffset At(int x, int y) const;
    // The source's distance from the centre for the output's distance r, both in pixels.
    double SourceRadius(double r) const;
    // The radius, in pixels, at which the output shows half the frame's angle.
    std::int32_t ReferenceRadius() const { return referenceRadius_; }
    // The frame's angle in radians.
    double FrameAngle() const { return frameAngle_; }

  private:
    LensKind kind_;
    LensCurve curve_;
    double frameAngle_;
    std::int32_t referenceRadius_;
    double pixelsPerMillimetre_;
};

static_assert(PixelMap<EquidistanceMap>);

}  // namespace varnel
