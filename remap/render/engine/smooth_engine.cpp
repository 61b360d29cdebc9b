// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/smooth_engine.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "base/rounding.h"
#include "remap/render/engine/fourfold_engine.h"

namespace varnel {

namespace {

LoopAxis ColumnAxis(const RotatedRectilinearMap& map, const CentreAndExtents& centre) {
    return {static_cast<double>(map.ShiftX()), centre.cx, centre.left, centre.right, "TranslateX"};
}

LoopAxis RowAxis(const RotatedRectilinearMap& map, const CentreAndExtents& centre) {
    return {static_cast<double>(map.ShiftY()), centre.cy, centre.bottom, centre.top, "TranslateY"};
}

LineRange AllOf(const LoopAxis& axis) {
    return {CLng(axis.shift - axis.before, axis.shiftName),
            CLng(axis.shift + axis.after, axis.shiftName)};
}

// The positions that go to the picture, and some around them.
LineRange ShownOf(const LoopAxis& axis, std::int32_t size, LineRange all) {
    const auto within = [all](double n) {
        return static_cast<int>(std::clamp<double>(n, all.first, all.last));
    };
    const double origin = std::floor(axis.shift - axis.centre);
    return {within(origin - 1.0), within(origin + size + 1.0)};
}

}  // namespace

AxisOwners::AxisOwners(const LoopAxis& axis, std::int32_t size)
    : all_(AllOf(axis)),
      run_(WorthARun(all_, ShownOf(axis, size, all_), size)),
      owners_(static_cast<std::size_t>(size), none) {
    for (int n = 0; n < run_.Count(); ++n) {
        const int position = run_.first + n;
        places_.push_back(CLng(static_cast<double>(axis.centre) + position - axis.shift,
                               ReasonCode::OutputPosition));
        if (places_.back() >= 0 && places_.back() < size) {
            owners_[static_cast<std::size_t>(places_.back())] = position;
        }
    }
    for (std::size_t n = 1; n < places_.size(); ++n) {
        contiguous_ = contiguous_ && places_[n] == places_[n - 1] + 1;
    }
}

RotatedEngine::RotatedEngine(const RenderSurface& surface, const RotatedRectilinearMap& map,
                             const CentreAndExtents& centre)
    : surface_(surface),
      map_(map),
      nodes_(map_),
      centre_(centre),
      columns_(ColumnAxis(map, centre), surface.Size().width),
      rows_(RowAxis(map, centre), surface.Size().height),
      covers_(columns_.Covers() && rows_.Covers()),
      source_(SourceView::Of(surface.Source())),
      target_(TargetView::Of(surface.Result())) {}

void RotatedEngine::FillTheRest() const {
    if (covers_) {
        return;
    }
    DrawBlocks(surface_, {0, target_.height - 1}, 64, [this](int from, int to) {
        for (std::int32_t row = from; row <= to; ++row) {
            surface_.CopySourceRow(row);
        }
    });
}

void RotatedEngine::Draw(int x, int count) const {
    DrawBlocks(surface_, {rows_.First(), rows_.Last()}, blockRows, [&](int from, int to) {
        ControlPointLine line = LineOf(x, count);
        std::vector<std::uint8_t> spare;
        for (line.y = from; line.y <= to; ++line.y) {
            if (rows_.Stays(line.y)) {
                DrawLine(line, spare);
            }
        }
    });
}

// Nodes lie where the batches of columns have them, too.
void RotatedEngine::DrawRow(std::int32_t row) {
    if (!covers_) {
        surface_.CopySourceRow(row);
    }
    if (const std::optional<int> y = rows_.OwnerOf(row)) {
        ControlPointLine line = LineOf(columns_.First(), columns_.Last() - columns_.First() + 1);
        std::vector<std::uint8_t> spare;
        line.y = *y;
        DrawLine(line, spare);
    }
}

ControlPointLine RotatedEngine::LineOf(int x, int count) const {
    ControlPointLine line;
    line.x = x;
    line.count = count;
    line.step = NodeStepFor(surface_.Size());
    return line;
}

void RotatedEngine::DrawLine(ControlPointLine& line, std::vector<std::uint8_t>& spare) const {
    WorkOutNodes(nodes_, line);
    const ExactLine<RotatedRectilinearMap> exact{map_, line};
    std::uint8_t* const row = target_.At(0, rows_.Place(line.y));
    SpanImage image{1, 1, {}, 0, line.count};
    if (columns_.Contiguous()) {
        const std::int32_t place = columns_.Place(line.x);
        const Clip clip = Clip::Of(place, 1, line.count, target_.width);
        image = {1, 1, {row + 3 * static_cast<std::ptrdiff_t>(place), 3}, clip.begin, clip.end};
    } else {
        spare.resize(static_cast<std::size_t>(line.count) * 3);
        image.target = {spare.data(), 3};
    }
    SampleNodeSpan({source_,
                    line.u.data(),
                    line.v.data(),
                    line.step,
                    line.count,
                    centre_.cx,
                    centre_.cy,
                    surface_.Nearest(),
                    &ExactLine<RotatedRectilinearMap>::Colour,
                    &exact,
                    {&image, 1}});
    if (!columns_.Contiguous()) {
        ScatterLine(line, spare, row);
    }
}

// Each pixel to its place, but for those that a later one replaces.
void RotatedEngine::ScatterLine(const ControlPointLine& line,
                                const std::vector<std::uint8_t>& pixels, std::uint8_t* row) const {
    for (std::ptrdiff_t n = 0; n < line.count; ++n) {
        const int x = line.x + static_cast<int>(n);
        if (columns_.Stays(x)) {
            std::memcpy(row + 3 * static_cast<std::ptrdiff_t>(columns_.Place(x)),
                        pixels.data() + 3 * n, 3);
        }
    }
}

}  // namespace varnel
