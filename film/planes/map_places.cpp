// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/map_places.h"

#include "base/rounding.h"

namespace varnel {

namespace {

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

}  // namespace

MapPlaces::MapPlaces(Projection projection, const ImageRecord& image, PixelSize source)
    : mapping_(projection, image, source), readsWholeRows_(mapping_.Map().AsSmooth() == nullptr) {
    const ResultLines& lines = mapping_.Lines();
    const auto columns = RunOf(lines.columns);
    const auto rows = RunOf(lines.rows);
    if (readsWholeRows_ || !columns || !rows || columns->end == 0 || rows->end == 0) {
        return;
    }
    const int height = mapping_.ResultSize().height;
    smooth_ = mapping_.Map().AsSmooth();
    columns_ = *columns;
    rows_ = {height - rows->end, height - rows->first};
    firstX_ = lines.columns[static_cast<std::size_t>(columns->first)].position - columns->first;
    firstY_ = lines.rows[static_cast<std::size_t>(rows->end - 1)].position + rows_.first;
}

std::optional<SourcePosition> MapPlaces::At(int column, int row) const {
    const int height = ResultSize().height;
    const int fromBottom = height - 1 - row;
    const PixelSize source = SourceSize();
    if (mapping_.Untouched(column, fromBottom)) {
        const bool keepsSource = source.width == ResultSize().width && source.height == height;
        return keepsSource ? std::optional(SourcePosition{static_cast<double>(column),
                                                          static_cast<double>(row)})
                           : std::nullopt;
    }
    std::optional<SourcePosition> place = mapping_.ReadAt(column, fromBottom);
    if (place) {
        place->y = source.height - 1 - (readsWholeRows_ ? Round(place->y) : place->y);
    }
    return place;
}

}  // namespace varnel
