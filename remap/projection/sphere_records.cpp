// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/sphere_records.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnel {

namespace {

constexpr double degree = std::numbers::pi / 180.0;

double PaniniDOf(const ImageRecord& image) {
    return std::clamp(static_cast<double>(image.PaniniD), 0.0, 1.0);
}

}  // namespace

float TiltOfPlanet(const ImageRecord& image) {
    const float up = image.Tunnel ? 180.0F : 0.0F;
    switch (image.Pose) {
        case CameraPose::Up:
            return 180.0F - up;
        case CameraPose::Down:
            return up;
        case CameraPose::Level:
            break;
    }
    return 90.0F - up;
}

float WidestPanini(const ImageRecord& image) {
    const double end = 2.0 * std::acos(-PaniniDOf(image)) / degree - 2.0;
    return static_cast<float>(std::min(end, 320.0));
}

PlanePointer PaniniPlaneOf(const ImageRecord& image, const PlaneFit& fit) {
    const double squeeze = static_cast<double>(image.PaniniSqueeze) / 100.0;
    return PaniniPlane(fit, {PaniniDOf(image), std::clamp(squeeze, 0.0, 1.0)});
}

PlanePointer UnrolledPlaneOf(const ImageRecord& image, const PlaneFit& fit) {
    return UnrolledPlane(fit, {static_cast<double>(image.UnrollStart) * degree,
                               image.UnrollDirection < 0 ? -1.0 : 1.0,
                               static_cast<double>(image.UnrollFrom) * degree,
                               static_cast<double>(image.UnrollTo) * degree});
}

std::unique_ptr<ProjectionMap> MakeOnSphere(const SphereUse& use, const ImageRecord& image,
                                            const Frames& frames) {
    SphereView view;
    view.source = frames.source;
    view.output = frames.output;
    view.kind = LensKindOf(image);
    view.curve = LensCurveOf(image, frames.source.colour);
    view.outputAov = std::min(image.OutputAOV, use.widest(image));
    view.effect = use.partial ? image.EffectRectilinear : 100.0F;
    view.turn = RotationAngles(image.RotateX, image.RotateY, image.RotateZ, view.effect);
    if (use.planet) {
        view.pose = RotationAngles(TiltOfPlanet(image), 0.0F, 0.0F, 100.0F);
    }
    return std::make_unique<SphereMap>(view, use.plane(image, view.Fit()));
}

}  // namespace varnel
