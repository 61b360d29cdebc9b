// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/projection_metrics.h"

#include <algorithm>
#include <cmath>

namespace varnel {

namespace {

// How the place on the photo moves when the result's pixel moves by one.
struct Jacobian {
    SourcePosition across, up;

    double Area() const { return std::fabs(across.x * up.y - across.y * up.x); }
    // The smaller of the two main stretches, photo pixels per result pixel.
    double Smallest() const {
        const double squares =
            across.x * across.x + across.y * across.y + up.x * up.x + up.y * up.y;
        const double area = Area();
        const double root = std::sqrt(std::max(squares * squares - 4.0 * area * area, 0.0));
        // The stable form of (squares - root) / 2.
        return squares == 0.0 ? 0.0 : std::sqrt(2.0 * area * area / (squares + root));
    }
};

class Stretches {
  public:
    explicit Stretches(const InverseMapping& places)
        : places_(places), columns_(places.Columns()), rows_(places.Rows()) {}

    // At a share of the way over the columns and rows that show the photo. From the neighbours on
    // both sides; nothing where one of them shows nothing of the circle.
    std::optional<Jacobian> At(double across, double up) const {
        if (columns_.size() < 3 || rows_.size() < 3) {
            return std::nullopt;
        }
        const std::size_t i = Index(columns_, across);
        const std::size_t j = Index(rows_, up);
        const auto alongRow =
            Slope(Shown(columns_[i - 1], rows_[j]), Shown(columns_[i + 1], rows_[j]),
                  columns_[i + 1] - columns_[i - 1]);
        const auto alongColumn =
            Slope(Shown(columns_[i], rows_[j - 1]), Shown(columns_[i], rows_[j + 1]),
                  rows_[j + 1] - rows_[j - 1]);
        if (!alongRow || !alongColumn) {
            return std::nullopt;
        }
        return Jacobian{*alongRow, *alongColumn};
    }

  private:
    static std::size_t Index(const std::vector<int>& lines, double share) {
        const auto last = static_cast<double>(lines.size() - 1);
        return static_cast<std::size_t>(std::clamp(std::round(share * last), 1.0, last - 1.0));
    }
    std::optional<SourcePosition> Shown(int column, int row) const {
        const auto place = places_.At(column, row);
        return place && places_.InCircle(*place) ? place : std::nullopt;
    }
    static std::optional<SourcePosition> Slope(const std::optional<SourcePosition>& from,
                                               const std::optional<SourcePosition>& to,
                                               int pixels) {
        if (!from || !to) {
            return std::nullopt;
        }
        return SourcePosition{(to->x - from->x) / pixels, (to->y - from->y) / pixels};
    }

    const InverseMapping& places_;
    const std::vector<int>& columns_;
    const std::vector<int>& rows_;
};

std::optional<double> StretchTowards(const Stretches& stretches, double across, double up) {
    constexpr int steps = 200;
    for (int n = 0; n < steps; ++n) {
        const double way = static_cast<double>(n) / steps;
        const auto jacobian = stretches.At(across + (0.5 - across) * way, up + (0.5 - up) * way);
        if (jacobian && jacobian->Smallest() > 0.0) {
            return 1.0 / jacobian->Smallest();
        }
    }
    return std::nullopt;
}

double Cross(const SourcePosition& a, const SourcePosition& b, const SourcePosition& c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

// Of the photo, pixels squared.
double AreaOf(const GridCell& cell) {
    return std::fabs(Cross(cell.lowLeft, cell.lowRight, cell.topRight) +
                     Cross(cell.lowLeft, cell.topRight, cell.topLeft)) /
           2.0;
}

// The share of the way up at which an unrolled result's middle column is half way to the rim.
std::optional<double> HalfWayUp(const InverseMapping& places) {
    if (!places.Circle() || places.Columns().empty()) {
        return std::nullopt;
    }
    const PhotoCircle& circle = *places.Circle();
    const int column = places.Columns()[places.Columns().size() / 2];
    double nearest = circle.radius;
    std::size_t found = 0;
    for (std::size_t n = 0; n < places.Rows().size(); ++n) {
        if (const auto place = places.At(column, places.Rows()[n])) {
            const double distance =
                std::hypot(place->x - circle.centre.x, place->y - circle.centre.y);
            if (const double off = std::fabs(distance - circle.radius / 2.0); off < nearest) {
                nearest = off;
                found = n;
            }
        }
    }
    return static_cast<double>(found) / static_cast<double>(places.Rows().size() - 1);
}

}  // namespace

ProjectionMetrics MeasureResult(const MappingMesh& grid, const SourceCoverage& kept) {
    const Stretches stretches(grid.Places());
    ProjectionMetrics numbers;
    numbers.halfWay = grid.Places().IsUnrolled();
    const auto high = numbers.halfWay ? HalfWayUp(grid.Places()) : 0.5;
    if (const auto middle = high ? stretches.At(0.5, *high) : std::nullopt) {
        numbers.centreResolution = std::sqrt(middle->Area());
    }
    for (const double across : {0.0, 1.0}) {
        for (const double up : {0.0, 1.0}) {
            if (const auto stretch = StretchTowards(stretches, across, up)) {
                numbers.cornerStretch = std::max(numbers.cornerStretch.value_or(0.0), *stretch);
            }
        }
    }
    numbers.keptShare = kept.share;
    numbers.rectangle = FindCleanCrop(grid);
    return numbers;
}

Magnified ClassOf(double magnification) {
    if (!(magnification > 0.0)) {
        return Magnified::Nothing;
    }
    if (magnification < 1.0 / aboutSame) {
        return Magnified::Shrunk;
    }
    return magnification > aboutSame ? Magnified::Stretched : Magnified::AboutSame;
}

MagnificationMap MapMagnification(const MappingMesh& grid) {
    const std::vector<int>& columns = grid.Columns();
    const std::vector<int>& rows = grid.Rows();
    MagnificationMap map;
    if (columns.size() < 2 || rows.size() < 2) {
        return map;
    }
    map.columns = static_cast<int>(columns.size()) - 1;
    map.rows = static_cast<int>(rows.size()) - 1;
    const InverseMapping& places = grid.Places();
    const auto inside = [&](const SourcePosition& place) {
        return places.InPicture(place) && places.InCircle(place);
    };
    for (std::size_t j = 0; j + 1 < rows.size(); ++j) {
        for (std::size_t i = 0; i + 1 < columns.size(); ++i) {
            float magnification = 0.0F;
            if (const auto cell = grid.InnerCell(i, j);
                cell && inside(cell->lowLeft) && inside(cell->lowRight) && inside(cell->topLeft) &&
                inside(cell->topRight)) {
                const double pixels =
                    static_cast<double>(columns[i + 1] - columns[i]) * (rows[j + 1] - rows[j]);
                magnification =
                    static_cast<float>(std::sqrt(pixels / std::max(AreaOf(*cell), 1e-6)));
            }
            map.magnification.push_back(magnification);
        }
    }
    return map;
}

}  // namespace varnel
