// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/mapping_mesh.h"

#include <algorithm>
#include <cstdlib>

namespace varnel {

namespace {

// Evenly out of those that show the photo, with the first and the last of them.
std::vector<int> Spread(const std::vector<int>& shown, int count) {
    std::vector<int> chosen;
    const auto last = static_cast<std::int64_t>(shown.size()) - 1;
    const std::int64_t steps = std::min<std::int64_t>(last, std::max(count - 1, 1));
    for (std::int64_t n = 0; n <= steps; ++n) {
        chosen.push_back(
            shown[static_cast<std::size_t>(steps == 0 ? 0 : (2 * n * last + steps) / (2 * steps))]);
    }
    return chosen;
}

using Place = std::optional<SourcePosition>;

std::optional<GridCell> Joined(const Place& lowLeft, const Place& lowRight, const Place& topLeft,
                               const Place& topRight) {
    if (!lowLeft || !lowRight || !topLeft || !topRight) {
        return std::nullopt;
    }
    return GridCell{*lowLeft, *lowRight, *topLeft, *topRight};
}

}  // namespace

MappingMesh::MappingMesh(const InverseMapping& places, int columns) : places_(&places) {
    if (places.Columns().empty() || places.Rows().empty()) {
        return;
    }
    const PixelSize size = places.ResultSize();
    columns_ = Spread(places.Columns(), columns);
    rows_ = Spread(places.Rows(), std::max(columns * size.height / std::max(size.width, 1), 16));
    net_.reserve(columns_.size() * rows_.size());
    for (const int row : rows_) {
        for (const int column : columns_) {
            net_.push_back(places.ReadAt(column, row));
        }
    }
}

std::optional<SourcePosition> MappingMesh::Corner(std::size_t i, std::size_t j) const {
    std::optional<SourcePosition> place = At(i, j);
    if (!place) {
        return place;
    }
    const SourcePosition here = *place;
    const auto widen = [&](const std::optional<SourcePosition>& inner, int pixels) {
        if (inner) {
            place->x += (here.x - inner->x) * 0.5 / pixels;
            place->y += (here.y - inner->y) * 0.5 / pixels;
        }
    };
    const std::size_t right = columns_.size() - 1;
    const std::size_t top = rows_.size() - 1;
    if (i == 0 || i == right) {
        const std::size_t inner = i == 0 ? 1 : right - 1;
        widen(At(inner, j), std::abs(columns_[inner] - columns_[i]));
    }
    if (j == 0 || j == top) {
        const std::size_t inner = j == 0 ? 1 : top - 1;
        widen(At(i, inner), std::abs(rows_[inner] - rows_[j]));
    }
    return place;
}

std::optional<GridCell> MappingMesh::InnerCell(std::size_t i, std::size_t j) const {
    return Joined(At(i, j), At(i + 1, j), At(i, j + 1), At(i + 1, j + 1));
}

std::optional<GridCell> MappingMesh::Cell(std::size_t i, std::size_t j) const {
    return Joined(Corner(i, j), Corner(i + 1, j), Corner(i, j + 1), Corner(i + 1, j + 1));
}

}  // namespace varnel
