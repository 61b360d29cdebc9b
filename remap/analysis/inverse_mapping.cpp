// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/inverse_mapping.h"

#include <cmath>

#include "remap/projection/projection_info.h"

namespace varnel {

bool PhotoCircle::Holds(const SourcePosition& place) const {
    const double x = place.x - centre.x;
    const double y = place.y - centre.y;
    return x * x + y * y <= radius * radius;
}

std::optional<PhotoCircle> PhotoCircleOf(const ImageRecord& image, PixelSize size) {
    if (!(image.Ratio > 0.0F)) {
        return std::nullopt;
    }
    const SourceFrame photo = FramesOf(image, size).source;
    const PixelPosition centre = photo.Centre();
    return PhotoCircle{{static_cast<double>(centre.x), static_cast<double>(centre.y)},
                       static_cast<double>(photo.CircleRadius())};
}

namespace {

// Those before first and from end on.
void Blacken(std::vector<ResultLine>& lines, std::int32_t first, std::int32_t end) {
    for (std::size_t n = 0; n < lines.size(); ++n) {
        if (static_cast<std::int32_t>(n) < first || static_cast<std::int32_t>(n) >= end) {
            lines[n] = {ResultLine::Kind::Black, 0};
        }
    }
}

}  // namespace

InverseMapping::InverseMapping(Projection projection, const ImageRecord& image, PixelSize size,
                               const OutputWish& wish)
    : sourceSize_(size), circle_(PhotoCircleOf(image, size)) {
    const Frames frames = FramesOf(image, size, wish);
    const PixelPosition centre = frames.source.Centre();
    centre_ = {static_cast<double>(centre.x), static_cast<double>(centre.y)};
    resultSize_ = frames.output.size;
    map_ = InfoOf(projection).Make(image, frames);
    lines_ = map_->Lines();
    const PixelWindow window = map_->Shown();
    Blacken(lines_.columns, window.left, window.right);
    Blacken(lines_.rows, window.bottom, window.top);
    const auto list = [](const std::vector<ResultLine>& lines, std::vector<int>& shown) {
        for (std::size_t n = 0; n < lines.size(); ++n) {
            if (lines[n].kind == ResultLine::Kind::Shown) {
                shown.push_back(static_cast<int>(n));
            }
        }
    };
    list(lines_.columns, columns_);
    list(lines_.rows, rows_);
}

std::optional<SourcePosition> InverseMapping::ReadAt(int column, int row) const {
    const ResultLine& x = lines_.columns[static_cast<std::size_t>(column)];
    const ResultLine& y = lines_.rows[static_cast<std::size_t>(row)];
    if (x.kind != ResultLine::Kind::Shown || y.kind != ResultLine::Kind::Shown) {
        return std::nullopt;
    }
    const SourceOffset offset = map_->OffsetAt(x.position, y.position);
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
    using enum ResultLine::Kind;
    return lines_.columns[static_cast<std::size_t>(column)].kind == Untouched ||
           lines_.rows[static_cast<std::size_t>(row)].kind == Untouched;
}

bool InverseMapping::InPicture(const SourcePosition& place) const {
    return place.x >= -0.5 && place.x <= sourceSize_.width - 0.5 && place.y >= -0.5 &&
           place.y <= sourceSize_.height - 0.5;
}

}  // namespace varnel
