// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections on the sphere by their records: the angles of view that they take, in degrees,
// and their maps. Making throws RunTimeError when a number of the record makes a map impossible,
// and std::bad_alloc; the rest throws nothing.
#pragma once

#include <memory>

#include "remap/projection/maps/sphere_map.h"
#include "remap/projection/record_maps.h"

namespace varnel {

// The same for every record.
template <int degrees>
float WidestOf(const ImageRecord& /*image*/) {
    return static_cast<float>(degrees);
}
// From the photo's axis to straight down, or for a tunnel up, by how the camera was held; degrees.
float TiltOfPlanet(const ImageRecord& image);
// By its d: below the angle at which the plane ends.
float WidestPanini(const ImageRecord& image);

// A plane for a record.
using NewPlane = PlanePointer (*)(const ImageRecord& image, const PlaneFit& fit);
PlanePointer PaniniPlaneOf(const ImageRecord& image, const PlaneFit& fit);
PlanePointer UnrolledPlaneOf(const ImageRecord& image, const PlaneFit& fit);

// How a projection looks through the record's lens.
struct SphereUse {
    float (*widest)(const ImageRecord& image) = nullptr;
    NewPlane plane = nullptr;
    bool partial = false;  // by the effect of the straight view
    bool planet = false;   // looks down, or up, by how the camera was held
};

std::unique_ptr<ProjectionMap> MakeOnSphere(const SphereUse& use, const ImageRecord& image,
                                            const Frames& frames);

}  // namespace varnel
