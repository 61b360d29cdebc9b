// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/point_mapping.h"

#include <algorithm>
#include <cmath>

#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

constexpr double farthest = 1e6;  // pixels from the result that still have a position

// All lines of a result are moved by the same, or are so counted from the other side, as those of
// the horizon are; two lines in the middle tell.
std::optional<PointMapping::Lines> LinesOf(const std::vector<ResultLine>& lines) {
    const auto shown = [](const ResultLine& line) { return line.kind == ResultLine::Kind::Shown; };
    const auto middle = lines.begin() + static_cast<std::ptrdiff_t>(lines.size() / 2);
    auto line = std::find_if(middle, lines.end(), shown);
    if (line == lines.end()) {
        line = std::find_if(lines.begin(), middle, shown);
        if (line == middle) {
            return std::nullopt;
        }
    }
    const auto next = std::find_if(line + 1, lines.end(), shown);
    const double step = next != lines.end() && next->position < line->position ? -1.0 : 1.0;
    return PointMapping::Lines{line->position - step * static_cast<double>(line - lines.begin()),
                               step};
}

double Between(double low, double high, double share) {
    return low + (high - low) * share;
}

}  // namespace

PointMapping::PointMapping(Projection projection, const ImageRecord& image, PixelSize size) {
    const Frames frames = FramesOf(image, size);
    const PixelPosition centre = frames.source.Centre();
    centre_ = {static_cast<double>(centre.x), static_cast<double>(centre.y)};
    axis_ = {centre_.x + frames.source.fraction.x, centre_.y + frames.source.fraction.y};
    map_ = InfoOf(projection).Make(image, frames);
    const ResultLines lines = map_->Lines();
    across_ = LinesOf(lines.columns);
    up_ = LinesOf(lines.rows);
}

// The map is smooth: between four whole positions a straight line differs from it by less than a
// thousandth of a pixel.
std::optional<SourcePosition> PointMapping::At(const SourcePosition& point) const {
    if (!across_ || !up_ || !(std::max(std::fabs(point.x), std::fabs(point.y)) < farthest)) {
        return std::nullopt;
    }
    const double x = across_->first + across_->step * point.x;
    const double y = up_->first + up_->step * point.y;
    const int left = static_cast<int>(std::floor(x));
    const int low = static_cast<int>(std::floor(y));
    const double right = x - left;
    const double up = y - low;
    const SourceOffset at[]{map_->OffsetAt(left, low), map_->OffsetAt(left + 1, low),
                            map_->OffsetAt(left, low + 1), map_->OffsetAt(left + 1, low + 1)};
    const double u =
        Between(Between(at[0].u, at[1].u, right), Between(at[2].u, at[3].u, right), up);
    const double v =
        Between(Between(at[0].v, at[1].v, right), Between(at[2].v, at[3].v, right), up);
    if (!std::isfinite(u) || !std::isfinite(v)) {
        return std::nullopt;
    }
    return SourcePosition{centre_.x + u, centre_.y + v};
}

}  // namespace varnel
