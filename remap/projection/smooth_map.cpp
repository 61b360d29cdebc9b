// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/smooth_map.h"

#include "base/rounding.h"

namespace varnel {

namespace {

std::vector<ResultLine> LinesOf(const LoopAxis& axis, std::int32_t size) {
    std::vector<ResultLine> lines(static_cast<std::size_t>(size));
    const AxisOwners owners(axis, size);
    for (std::int32_t n = 0; n < size; ++n) {
        if (const auto owner = owners.OwnerOf(n)) {
            lines[static_cast<std::size_t>(n)] = {ResultLine::Kind::Shown, *owner};
        }
    }
    return lines;
}

std::vector<ResultLine> AllLines(std::int32_t centre, std::int32_t size) {
    std::vector<ResultLine> lines;
    lines.reserve(static_cast<std::size_t>(size));
    for (std::int32_t n = 0; n < size; ++n) {
        lines.push_back({ResultLine::Kind::Shown, n - centre});
    }
    return lines;
}

}  // namespace

SmoothMap::SmoothMap(const SourceFrame& source, const OutputFrame& output)
    : sourceCentre_(source.Centre()),
      fraction_(source.fraction),
      output_(output),
      extents_(output.Extents()) {}

LoopAxis SmoothMap::ColumnAxis() const {
    return {0.0, extents_.cx, extents_.left, extents_.right, "TranslateX"};
}

LoopAxis SmoothMap::RowAxis() const {
    return {0.0, extents_.cy, extents_.bottom, extents_.top, "TranslateY"};
}

ResultLines SmoothMap::Lines() const {
    if (IsFourfold()) {
        return {AllLines(extents_.cx, output_.size.width),
                AllLines(extents_.cy, output_.size.height)};
    }
    return {LinesOf(ColumnAxis(), output_.size.width), LinesOf(RowAxis(), output_.size.height)};
}

// The loop of a fourfold map ends at the centre.
float SmoothMap::ProgressMaximum() const {
    return static_cast<float>(extents_.left + (IsFourfold() ? 0 : extents_.right) + 1);
}

// 16 bits on the photo's own frame, so that some 65,000 columns end with an overflow there.
float SmoothMap::ProgressAt(int column) const {
    const double value = column + (extents_.left + 1.0) - ColumnAxis().shift;
    return output_.IsSpecified() ? CInt(value, ReasonCode::ProgressValue)
                                 : static_cast<float>(value);
}

int SmoothMap::LastLine() const {
    return IsFourfold() ? 0 : ColumnAxis().All().last;
}

}  // namespace varnel
