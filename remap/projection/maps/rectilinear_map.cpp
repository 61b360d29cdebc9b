// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/rectilinear_map.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>
#include <vector>

#include "base/rounding.h"
#include "remap/projection/maps/map_nodes.h"

namespace varnel {

namespace {

// Percent of the frame before it is cut. On half a pixel two positions would be written to one
// pixel and none to its neighbour, which is meant on the photo's own frame only.
float Shift(float percent, const OutputFrame& frame, std::int32_t PixelSize::*side,
            ValueName name) {
    const double pixels = -(static_cast<double>(percent) * (frame.Whole().*side) / 100.0);
    const bool isTie = !frame.IsSpecified() && pixels - Int(pixels) == 0.5;
    constexpr double aside = 1.0 / 256.0;
    return ToSingle(isTie ? pixels + aside : pixels, name);
}

// The nodes of a view with faces: none where these are so small that nodes would step over them.
class FaceNodes : public SmoothNodes {
  public:
    FaceNodes(const RotatedRectilinearMap& map, std::unique_ptr<SmoothNodes> nodes)
        : map_(map), nodes_(std::move(nodes)) {}
    void Fill(const NodeRun& run, const NodeValues& values) const override {
        nodes_->Fill(run, values);
        std::ranges::fill(values.inside, 1.0);
        for (std::size_t n = 0; n < values.u.size(); ++n) {
            if (map_.Faces().IsFine(map_.PlaceOf(run.PlaceOf(n), run.y), run.step / map_.Focal())) {
                values.u[n] = values.v[n] = std::numeric_limits<double>::quiet_NaN();
            }
        }
    }

    // There is none; but maps with an edge get closer nodes where they bend, as faces do.
    bool HasEdge() const override { return true; }

  private:
    const RotatedRectilinearMap& map_;
    std::unique_ptr<SmoothNodes> nodes_;
};

}  // namespace

RectilinearRadius::RectilinearRadius(const RectilinearView& view)
    : kind_(view.kind),
      curve_(view.curve),
      scale_(view.source.PixelsPerMillimetre()),
      halfWidth_(view.source.size.width / 2 * view.output.scale),
      tanHalfAngle_(0.0),
      tanStep_(0.0) {
    CheckLensFactor(kind_, curve_);
    scale_ *= EffectRatio(view.outputAov, view.effect, kind_, curve_);
    const float angle = EffectiveAngle(Radians(view.outputAov), view.effect);
    tanHalfAngle_ = std::tan(static_cast<double>(angle) / 2.0);
    tanStep_ = Round8(tanHalfAngle_ / NonZero(halfWidth_, ReasonCode::HalfPictureWidth));
}

double RectilinearRadius::AtAngle(double theta) const {
    return LensRadius(kind_, theta, curve_) * scale_;
}

double RectilinearRadius::At(double r) const {
    return AtAngle(std::fabs(std::atan(r * tanStep_)));
}

// Not bound to 16 bits as the others are.
float RectilinearMap::ProgressAt(int column) const {
    return static_cast<float>(column + Extents().left + 1);
}

std::unique_ptr<SmoothNodes> RectilinearMap::Nodes() const {
    return NodesFromAxis(RectilinearNodes(radius_));
}

SourceOffset RectilinearMap::At(int x, int y) const {
    const double across = x;
    const double up = y;
    const double r = std::sqrt(across * across + up * up);
    if (r == 0.0) {
        return FromAxis({});
    }
    const double rho = radius_.At(r);
    return FromAxis({across * rho / r, up * rho / r});
}

RotatedRectilinearMap::RotatedRectilinearMap(const RectilinearView& view, const CameraMove& move,
                                             std::span<const FaceEllipse> faces)
    : SmoothMap(view.source, view.output),
      radius_(view),
      rotation_(RotationAngles(move.rotateX, move.rotateY, move.rotateZ, view.effect)),
      focal_(radius_.HalfWidth() /
             std::fabs(NonZero(radius_.TanHalfAngle(), ReasonCode::TangentOfHalfAngle))),
      shiftX_(Shift(move.translateX, view.output, &PixelSize::width, "TranslateX")),
      shiftY_(Shift(move.translateY, view.output, &PixelSize::height, "TranslateY")) {
    std::vector<PlaneEllipse> ellipses;
    for (const FaceEllipse& face : faces) {
        ellipses.push_back(OnPlane(face));
    }
    faces_ = FaceWarps(ellipses);
}

// A place of the frame is half a pixel off from the middle of the pixel that begins there; a
// position is written a shift away from the column that its ray goes through, see ShiftX.
PlaneEllipse RotatedRectilinearMap::OnPlane(const FaceEllipse& face) const {
    const PixelSize frame = Output().Whole();
    const PixelPosition corner = Output().corner;
    const double x = face.x * frame.width - 0.5 - corner.x - Extents().cx;
    const double y = (1.0 - face.y) * frame.height - 0.5 - corner.y - Extents().cy;
    const double angle = face.angle * std::numbers::pi / 180.0;
    return {{(x + 2.0 * static_cast<double>(shiftX_)) / focal_,
             (y + 2.0 * static_cast<double>(shiftY_)) / focal_},
            face.width * frame.width / 2.0 / focal_,
            face.height * frame.height / 2.0 / focal_,
            std::cos(angle),
            std::sin(angle)};
}

std::unique_ptr<SmoothNodes> RotatedRectilinearMap::Nodes() const {
    std::unique_ptr<SmoothNodes> nodes = NodesFromAxis(RotatedRectilinearNodes(*this));
    return faces_.Empty() ? std::move(nodes) : std::make_unique<FaceNodes>(*this, std::move(nodes));
}

LoopAxis RotatedRectilinearMap::ColumnAxis() const {
    LoopAxis axis = SmoothMap::ColumnAxis();
    axis.shift = static_cast<double>(shiftX_);
    return axis;
}

LoopAxis RotatedRectilinearMap::RowAxis() const {
    LoopAxis axis = SmoothMap::RowAxis();
    axis.shift = static_cast<double>(shiftY_);
    return axis;
}

SourceOffset RotatedRectilinearMap::At(int x, int y) const {
    const Ray ray = TurnedRay(x, y);
    if (ray.z == 0.0) {
        return NowhereOnSource();
    }
    // A ray that points backwards keeps its direction on the plane.
    const double sign = ray.z > 0.0 ? 1.0 : -1.0;
    const double planeX = focal_ * (sign * ray.x) / ray.z;
    const double planeY = focal_ * (sign * ray.y) / ray.z;
    const double r = std::sqrt(planeX * planeX + planeY * planeY);
    return FromAxis(r == 0.0 ? SourceOffset{} : PolarOffset(planeX, planeY, radius_.At(r)));
}

}  // namespace varnel
