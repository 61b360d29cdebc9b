// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/inverse_mapping.h"

#include <cmath>
#include <cstdlib>

#include "base/rounding.h"
#include "remap/projection/last_writer.h"
#include "remap/render/engine/smooth_engine.h"

namespace varnel {

namespace {

// Asked for columns and rows to both sides of the centre.
struct OffsetOf {
    int x;
    int y;

    SourceOffset operator()(std::monostate) const { return NowhereOnSource(); }
    SourceOffset operator()(const RectilinearMap& map) const { return map.At(x, y); }
    SourceOffset operator()(const RotatedRectilinearMap& map) const { return map.At(x, y); }
    SourceOffset operator()(const EquidistanceMap& map) const { return map.At(x, y); }
    SourceOffset operator()(const VarnelMap& map) const {
        const double u = map.At(std::abs(x), std::abs(y)).u;
        return {x < 0 ? -u : u, static_cast<double>(y)};
    }
    // y is the radius. The left half is written last and so has the centre column.
    SourceOffset operator()(const HorizonMap& map) const {
        const SourceOffset offset = map.At(std::abs(x), y);
        return {x > 0 ? offset.u : -offset.u, offset.v};
    }
};

}  // namespace

bool PhotoCircle::Holds(const SourcePosition& place) const {
    const double x = place.x - centre.x;
    const double y = place.y - centre.y;
    return x * x + y * y <= radius * radius;
}

std::optional<PhotoCircle> PhotoCircleOf(const ImageRecord& image, PixelSize size) {
    if (!(image.Ratio > 0.0F)) {
        return std::nullopt;
    }
    CircleView view = CircleViewOf(image, size);
    view.effect = 100.0F;
    const ImageCircleGeometry rows = MeasureCircle(view);
    return PhotoCircle{{static_cast<double>(rows.centreX), static_cast<double>(rows.centreY)},
                       static_cast<double>(rows.radius)};
}

InverseMapping::InverseMapping(Projection projection, const ImageRecord& image, PixelSize size)
    : size_(size),
      circle_(PhotoCircleOf(image, size)),
      extents_(ImageCentre(size, image.OfsetX, image.OfsetY)),
      columnLoops_(static_cast<std::size_t>(size.width)),
      rowLoops_(static_cast<std::size_t>(size.height)) {
    centre_ = {static_cast<double>(extents_.cx), static_cast<double>(extents_.cy)};
    switch (projection) {
        case Projection::Rectilinear: {
            const RectilinearView view = RectilinearViewOf(image, size);
            if (const CameraMove move = CameraMoveOf(image); move.Moves()) {
                map_ = RotatedRectilinearMap(view, move);
                LayOutMoved();
            } else {
                map_ = RectilinearMap(view);
                LayOutQuarters();
            }
            break;
        }
        case Projection::Equidistance:
            map_ = EquidistanceMap(EquidistanceViewOf(image, size));
            LayOutQuarters();
            break;
        case Projection::Varnel: {
            const VarnelMap map(CircleViewOf(image, size));
            map_ = map;
            LayOutCircle(map.Rows());
            for (int row = 0; row < size.height; ++row) {
                const int above = row - map.Rows().centreY;
                rowLoops_[static_cast<std::size_t>(row)] = {
                    map.Blank(std::abs(above)) ? Line::Black : Line::Shown, above};
            }
            break;
        }
        case Projection::Horizon:
            map_ = HorizonMap(CircleViewOf(image, size));
            LayOutHorizon();
    }
    const auto list = [](const std::vector<Loop>& loops, std::vector<int>& shown) {
        for (std::size_t n = 0; n < loops.size(); ++n) {
            if (loops[n].line == Line::Shown) {
                shown.push_back(static_cast<int>(n));
            }
        }
    };
    list(columnLoops_, columns_);
    list(rowLoops_, rows_);
}

void InverseMapping::LayOutQuarters() {
    for (std::size_t n = 0; n < columnLoops_.size(); ++n) {
        columnLoops_[n] = {Line::Shown, static_cast<int>(n) - extents_.cx};
    }
    for (std::size_t n = 0; n < rowLoops_.size(); ++n) {
        rowLoops_[n] = {Line::Shown, static_cast<int>(n) - extents_.cy};
    }
}

void InverseMapping::LayOutMoved() {
    const auto layOut = [](std::vector<Loop>& loops, const LoopAxis& axis) {
        const AxisOwners owners(axis, static_cast<std::int32_t>(loops.size()));
        for (std::size_t n = 0; n < loops.size(); ++n) {
            if (const auto owner = owners.OwnerOf(static_cast<std::int32_t>(n))) {
                loops[n] = {Line::Shown, *owner};
            }
        }
    };
    const auto& map = std::get<RotatedRectilinearMap>(map_);
    layOut(columnLoops_, {static_cast<double>(map.ShiftX()), extents_.cx, extents_.left,
                          extents_.right, "TranslateX"});
    layOut(rowLoops_, {static_cast<double>(map.ShiftY()), extents_.cy, extents_.bottom,
                       extents_.top, "TranslateY"});
}

void InverseMapping::LayOutCircle(const ImageCircleGeometry& circle) {
    centre_ = {static_cast<double>(circle.centreX), static_cast<double>(circle.centreY)};
    for (std::size_t n = 0; n < columnLoops_.size(); ++n) {
        columnLoops_[n] = {Line::Shown, static_cast<int>(n) - circle.centreX};
    }
}

void InverseMapping::LayOutHorizon() {
    const auto& map = std::get<HorizonMap>(map_);
    LayOutCircle(map.Rows());
    const LastWriters owners(map, size_.height);
    for (std::int32_t row = 0; row < size_.height; ++row) {
        Loop& loop = rowLoops_[static_cast<std::size_t>(row)];
        if (owners.Black(row)) {
            loop = {Line::Black, 0};
        } else if (!owners.Nobody(row)) {
            loop = {Line::Shown, owners.Radius(row)};
        }
    }
}

SourceOffset InverseMapping::OffsetAt(int x, int y) const {
    return std::visit(OffsetOf{x, y}, map_);
}

std::optional<SourcePosition> InverseMapping::ReadAt(int column, int row) const {
    const Loop& x = columnLoops_[static_cast<std::size_t>(column)];
    const Loop& y = rowLoops_[static_cast<std::size_t>(row)];
    if (x.line != Line::Shown || y.line != Line::Shown) {
        return std::nullopt;
    }
    const SourceOffset offset = OffsetAt(x.position, y.position);
    const SourcePosition place{centre_.x + offset.u, centre_.y + offset.v};
    if (!std::isfinite(place.x) || !std::isfinite(place.y)) {
        return std::nullopt;
    }
    return place;
}

std::optional<SourcePosition> InverseMapping::At(int column, int row) const {
    const std::optional<SourcePosition> place = ReadAt(column, row);
    return place && InPicture(*place) ? place : std::nullopt;
}

bool InverseMapping::Untouched(int column, int row) const {
    return columnLoops_[static_cast<std::size_t>(column)].line == Line::Untouched ||
           rowLoops_[static_cast<std::size_t>(row)].line == Line::Untouched;
}

bool InverseMapping::InPicture(const SourcePosition& place) const {
    return place.x >= -0.5 && place.x <= size_.width - 0.5 && place.y >= -0.5 &&
           place.y <= size_.height - 0.5;
}

}  // namespace varnel
