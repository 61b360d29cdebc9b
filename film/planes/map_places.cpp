// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/map_places.h"

#include <algorithm>
#include <cmath>

#include "base/rounding.h"
#include "remap/projection/circle_rows.h"
#include "remap/projection/straight_rows.h"

namespace varnel {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

// The shown lines where their positions go up by one from each to the next; otherwise nothing.
std::optional<MapPlaces::Shown> RunOf(const std::vector<ResultLine>& lines) {
    MapPlaces::Shown run;
    for (std::size_t n = 0; n < lines.size(); ++n) {
        if (lines[n].kind == ResultLine::Kind::Untouched) {
            return std::nullopt;
        }
        if (lines[n].kind == ResultLine::Kind::Black) {
            continue;
        }
        const int line = static_cast<int>(n);
        if (run.end == 0) {
            run = {line, line + 1};
        } else if (run.end != line || lines[n].position != lines[n - 1].position + 1) {
            return std::nullopt;
        } else {
            run.end = line + 1;
        }
    }
    return run;
}

// Rows as they are: at whole positions, and where nodes lie the map is as smooth as its circle.
class RowNodes : public SmoothNodes {
  public:
    explicit RowNodes(const StraightRows& map) : map_(map) {}
    void Fill(const NodeRun& run, const NodeValues& into) const override {
        for (std::size_t n = 0; n < into.u.size(); ++n) {
            const auto x = static_cast<int>(run.PlaceOf(n));
            const SourceOffset offset = map_.OffsetAt(x, run.y);
            into.u[n] = offset.u;
            into.v[n] = offset.v;
        }
    }

  private:
    const StraightRows& map_;
};

}  // namespace

MapPlaces::MapPlaces(Projection projection, const ImageRecord& image, PixelSize source)
    : mapping_(projection, image, source), readsWholeRows_(mapping_.Map().AsSmooth() == nullptr) {
    const StraightRows* const straight = mapping_.Map().AsStraightRows();
    const bool keepsRows = straight != nullptr && straight->Circle().scale == 1.0;
    if (!readsWholeRows_ || keepsRows) {
        TakeRuns();
    }
    if (mapping_.Map().AsCircleRows() != nullptr) {
        TakeCircles();
    }
}

void MapPlaces::TakeRuns() {
    const ResultLines& lines = mapping_.Lines();
    const auto columns = RunOf(lines.columns);
    const auto rows = RunOf(lines.rows);
    if (!columns || !rows || columns->end == 0 || rows->end == 0) {
        return;
    }
    const int height = mapping_.ResultSize().height;
    isSmooth_ = true;
    columns_ = *columns;
    rows_ = {height - rows->end, height - rows->first};
    firstX_ = lines.columns[static_cast<std::size_t>(columns->first)].position - columns->first;
    firstY_ = lines.rows[static_cast<std::size_t>(rows->end - 1)].position + rows_.first;
}

// The left half is the mirror image of the right one.
void MapPlaces::TakeCircles() {
    const CircleRows& circles = *mapping_.Map().AsCircleRows();
    for (const ResultLine& line : mapping_.Lines().columns) {
        const double angle = circles.Angle(std::abs(line.position));
        const bool isShown = line.kind == ResultLine::Kind::Shown;
        cosines_.push_back(!isShown            ? none
                           : line.position > 0 ? std::cos(angle)
                                               : -std::cos(angle));
        sines_.push_back(std::sin(angle));
    }
    for (const ResultLine& line : mapping_.Lines().rows) {
        radii_.push_back(line.kind == ResultLine::Kind::Shown ? circles.SourceRadius(line.position)
                                                              : none);
    }
    std::ranges::reverse(radii_);  // from the top row
}

std::optional<CircleCell> MapPlaces::CircleCellAt(int left, int top) const {
    const PixelSize size = ResultSize();
    if (radii_.empty() || left + cellSide > size.width || top + cellSide > size.height) {
        return std::nullopt;
    }
    const double* const cosines = cosines_.data() + left;
    const double* const radii = radii_.data() + top;
    const auto isNone = [](double value) { return std::isnan(value); };
    if (std::any_of(cosines, cosines + cellSide, isNone) ||
        std::any_of(radii, radii + cellSide, isNone)) {
        return std::nullopt;
    }
    return CircleCell{cosines,
                      sines_.data() + left,
                      radii,
                      mapping_.Centre().x,
                      mapping_.Centre().y,
                      SourceSize().height - 1.0};
}

std::unique_ptr<SmoothNodes> MapPlaces::Nodes() const {
    if (const SmoothMap* const smooth = mapping_.Map().AsSmooth()) {
        return smooth->Nodes();
    }
    return std::make_unique<RowNodes>(*mapping_.Map().AsStraightRows());
}

SourcePosition MapPlaces::At(int column, int row) const {
    const int height = ResultSize().height;
    const int fromBottom = height - 1 - row;
    const PixelSize source = SourceSize();
    if (mapping_.Untouched(column, fromBottom)) {
        const bool keepsSource = source.width == ResultSize().width && source.height == height;
        return keepsSource ? SourcePosition{static_cast<double>(column), static_cast<double>(row)}
                           : SourcePosition{none, none};
    }
    const std::optional<SourcePosition> place = mapping_.ReadAt(column, fromBottom);
    if (!place) {
        return {none, none};
    }
    return readsWholeRows_ ? OnWholeRow(*place)
                           : SourcePosition{place->x, source.height - 1 - place->y};
}

SourcePosition MapPlaces::OnWholeRow(SourcePosition place) const {
    return {place.x, SourceSize().height - 1 - Round(place.y)};
}

void MapPlaces::Row(int row, int firstColumn, std::span<SourcePosition> places) const {
    const double radius = radii_.empty() ? none : radii_[static_cast<std::size_t>(row)];
    if (std::isnan(radius)) {
        for (std::size_t n = 0; n < places.size(); ++n) {
            places[n] = At(firstColumn + static_cast<int>(n), row);
        }
        return;
    }
    // As CircleRows::At, without its angles over and over again.
    for (std::size_t n = 0; n < places.size(); ++n) {
        const std::size_t column = static_cast<std::size_t>(firstColumn) + n;
        places[n] = std::isnan(cosines_[column])
                        ? SourcePosition{none, none}
                        : OnWholeRow({mapping_.Centre().x + radius * cosines_[column],
                                      mapping_.Centre().y + radius * sines_[column]});
    }
}

}  // namespace varnel
