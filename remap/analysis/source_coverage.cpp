// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/source_coverage.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace varnel {

namespace {

struct OutputPixel {
    int column = 0;
    int row = 0;
};

// A border line that is missing by a rounding only is replaced by its neighbour; nothing for a
// black one.
std::optional<int> BorderLine(const std::vector<int>& shown, int line) {
    if (shown.empty()) {
        return std::nullopt;
    }
    const int nearest = line == 0 ? shown.front() : shown.back();
    return std::abs(nearest - line) <= 1 ? std::optional(nearest) : std::nullopt;
}

double Distance(const SourcePosition& a, const SourcePosition& b) {
    return std::hypot(a.x - b.x, a.y - b.y);
}

class BorderWalk {
  public:
    BorderWalk(const InverseMapping& places, int steps)
        : places_(places),
          steps_(std::max(steps, 1)),
          jump_(std::max(places.SourceSize().width, places.SourceSize().height) / 8.0) {}

    // Along columns or rows at the indices from to to of the lines that show the photo.
    template <class PixelAt>
    void Side(std::int64_t from, std::int64_t to, const PixelAt& pixelAt) {
        std::int64_t before = from;
        for (int n = 0; n <= steps_; ++n) {
            const std::int64_t here = from + (to - from) * n / steps_;
            const OutputPixel pixel = pixelAt(static_cast<std::size_t>(here));
            const auto place = places_.At(pixel.column, pixel.row);
            if (place.has_value() != !current_.empty() && n > 0) {
                GoToEdge(place ? here : before, place ? before : here, pixelAt);
            }
            Take(place);
            before = here;
        }
    }
    void Break() { Take(std::nullopt); }
    // A border that was cut only where the walk began is one curve.
    std::vector<SourceCurve> Curves() {
        Break();
        if (curves_.size() > 1 && Distance(curves_.front().front(), curves_.back().back()) < 1e-9) {
            SourceCurve& last = curves_.back();
            last.insert(last.end(), curves_.front().begin() + 1, curves_.front().end());
            std::swap(curves_.front(), last);
            curves_.pop_back();
        }
        return std::move(curves_);
    }

  private:
    // The last pixel that is shown between one that is and one that is not.
    template <class PixelAt>
    void GoToEdge(std::int64_t shown, std::int64_t hidden, const PixelAt& pixelAt) {
        while (std::abs(shown - hidden) > 1) {
            const std::int64_t middle = (shown + hidden) / 2;
            const OutputPixel pixel = pixelAt(static_cast<std::size_t>(middle));
            (places_.At(pixel.column, pixel.row) ? shown : hidden) = middle;
        }
        const OutputPixel pixel = pixelAt(static_cast<std::size_t>(shown));
        Take(places_.At(pixel.column, pixel.row));
    }
    void Take(const std::optional<SourcePosition>& place) {
        const bool ends =
            !place || (!current_.empty() && Distance(current_.back(), *place) > jump_);
        if (ends && current_.size() > 1) {
            curves_.push_back(current_);
        }
        if (ends) {
            current_.clear();
        }
        if (place && (current_.empty() || Distance(current_.back(), *place) > 0.0)) {
            current_.push_back(*place);
        }
    }

    const InverseMapping& places_;
    int steps_;
    double jump_;
    SourceCurve current_;
    std::vector<SourceCurve> curves_;
};

class Raster {
  public:
    explicit Raster(SourceCoverage& area) : area_(area) {}

    void Fill(const GridCell& cell) {
        Triangle({ToCells(cell.lowLeft), ToCells(cell.lowRight), ToCells(cell.topRight)});
        Triangle({ToCells(cell.lowLeft), ToCells(cell.topRight), ToCells(cell.topLeft)});
    }

  private:
    SourcePosition ToCells(const SourcePosition& place) const {
        return {(place.x + 0.5) / area_.cell - 0.5, (place.y + 0.5) / area_.cell - 0.5};
    }
    // Every cell whose middle lies in the triangle.
    void Triangle(const std::array<SourcePosition, 3>& corners) {
        const auto [low, high] = std::ranges::minmax(corners, {}, &SourcePosition::y);
        const int first = static_cast<int>(std::ceil(std::max(low.y, 0.0)));
        const int last = static_cast<int>(std::floor(std::min(high.y, area_.rows - 1.0)));
        for (int row = first; row <= last; ++row) {
            double left = std::numeric_limits<double>::infinity();
            double right = -left;
            for (std::size_t n = 0; n < 3; ++n) {
                const SourcePosition& a = corners[n];
                const SourcePosition& b = corners[(n + 1) % 3];
                if (std::min(a.y, b.y) <= row && std::max(a.y, b.y) >= row && a.y != b.y) {
                    const double x = a.x + (b.x - a.x) * (row - a.y) / (b.y - a.y);
                    left = std::min(left, x);
                    right = std::max(right, x);
                }
            }
            Span(row, left, right);
        }
    }
    void Span(int row, double left, double right) {
        const double first = std::ceil(std::max(left, 0.0));
        const double last = std::floor(std::min(right, area_.columns - 1.0));
        std::uint8_t* const line =
            area_.cells.data() + static_cast<std::ptrdiff_t>(row) * area_.columns;
        for (double x = first; x <= last; ++x) {
            line[static_cast<std::ptrdiff_t>(x)] |= SourceCoverage::Kept;
        }
    }

    SourceCoverage& area_;
};

// Where a lens formula jumps from one end of the plane to the other there is nothing in between.
bool Torn(const GridCell& cell, double limit) {
    return Distance(cell.lowLeft, cell.topRight) > limit ||
           Distance(cell.lowRight, cell.topLeft) > limit;
}

void MarkPhoto(const InverseMapping& places, SourceCoverage& area) {
    for (int row = 0; row < area.rows; ++row) {
        std::uint8_t* const line =
            area.cells.data() + static_cast<std::ptrdiff_t>(row) * area.columns;
        for (int column = 0; column < area.columns; ++column) {
            const SourcePosition middle{(column + 0.5) * area.cell - 0.5,
                                        (row + 0.5) * area.cell - 0.5};
            if (places.InPicture(middle) && places.InCircle(middle)) {
                line[column] |= SourceCoverage::Photo;
            }
        }
    }
}

}  // namespace

std::vector<SourceCurve> BorderCurves(const InverseMapping& places, int pointsPerSide) {
    const std::vector<int>& columns = places.Columns();
    const std::vector<int>& rows = places.Rows();
    const auto left = BorderLine(columns, 0);
    const auto right = BorderLine(columns, places.ResultSize().width - 1);
    const auto bottom = BorderLine(rows, 0);
    const auto top = BorderLine(rows, places.ResultSize().height - 1);
    const auto lastColumn = static_cast<std::int64_t>(columns.size()) - 1;
    const auto lastRow = static_cast<std::int64_t>(rows.size()) - 1;
    BorderWalk walk(places, pointsPerSide);
    const auto across = [&](const std::optional<int>& row, std::int64_t from, std::int64_t to) {
        if (row && lastColumn > 0) {
            walk.Side(from, to, [&](std::size_t n) { return OutputPixel{columns[n], *row}; });
        } else {
            walk.Break();
        }
    };
    const auto along = [&](const std::optional<int>& column, std::int64_t from, std::int64_t to) {
        if (column && lastRow > 0) {
            walk.Side(from, to, [&](std::size_t n) { return OutputPixel{*column, rows[n]}; });
        } else {
            walk.Break();
        }
    };
    across(bottom, 0, lastColumn);
    along(right, 0, lastRow);
    across(top, lastColumn, 0);
    along(left, lastRow, 0);
    return walk.Curves();
}

namespace {

// Every pixel of the loop is read, or there is none.
std::optional<SourceCurve> ClosedLoop(const InverseMapping& places, int pointsPerSide) {
    const std::vector<int>& columns = places.Columns();
    const std::vector<int>& rows = places.Rows();
    const PixelSize size = places.ResultSize();
    if (!BorderLine(columns, 0) || !BorderLine(columns, size.width - 1) || !BorderLine(rows, 0) ||
        !BorderLine(rows, size.height - 1)) {
        return std::nullopt;
    }
    SourceCurve loop;
    for (int n = 0; n < 4 * pointsPerSide; ++n) {
        const int side = n / pointsPerSide;
        const auto lineAt = [&](const std::vector<int>& lines, bool back) {
            const std::size_t far = (lines.size() - 1) *
                                    static_cast<std::size_t>(n % pointsPerSide) /
                                    static_cast<std::size_t>(pointsPerSide);
            return lines[back ? lines.size() - 1 - far : far];
        };
        const int column = side == 0   ? lineAt(columns, false)
                           : side == 1 ? columns.back()
                           : side == 2 ? lineAt(columns, true)
                                       : columns.front();
        const int row = side == 0   ? rows.front()
                        : side == 1 ? lineAt(rows, false)
                        : side == 2 ? rows.back()
                                    : lineAt(rows, true);
        const auto place = places.ReadAt(column, row);
        if (!place) {
            return std::nullopt;
        }
        loop.push_back(*place);
    }
    loop.push_back(loop.front());
    return loop;
}

// Where the loop crosses the middle of a row of cells, in cells, ascending.
std::vector<double> Crossings(const SourceCurve& loop, const SourceCoverage& kept, int row) {
    std::vector<double> crossings;
    const double height = (row + 0.5) * kept.cell - 0.5;
    for (std::size_t n = 0; n + 1 < loop.size(); ++n) {
        const SourcePosition& a = loop[n];
        const SourcePosition& b = loop[n + 1];
        if ((a.y > height) != (b.y > height)) {
            const double x = a.x + (b.x - a.x) * (height - a.y) / (b.y - a.y);
            crossings.push_back((x + 0.5) / kept.cell - 0.5);
        }
    }
    std::ranges::sort(crossings);
    return crossings;
}

}  // namespace

std::optional<SourceCurve> CoverageOutline(const InverseMapping& places, const SourceCoverage& kept,
                                           int pointsPerSide) {
    constexpr double tolerance = 0.005;
    std::optional<SourceCurve> loop = ClosedLoop(places, pointsPerSide);
    if (!loop) {
        return loop;
    }
    int photo = 0;
    int different = 0;
    for (int row = 0; row < kept.rows; ++row) {
        const std::vector<double> crossings = Crossings(*loop, kept, row);
        const std::uint8_t* const line =
            kept.cells.data() + static_cast<std::ptrdiff_t>(row) * kept.columns;
        std::size_t passed = 0;
        for (int column = 0; column < kept.columns; ++column) {
            while (passed < crossings.size() && crossings[passed] <= column) {
                ++passed;
            }
            if ((line[column] & SourceCoverage::Photo) != 0) {
                ++photo;
                different +=
                    (passed % 2 == 1) == ((line[column] & SourceCoverage::Kept) != 0) ? 0 : 1;
            }
        }
    }
    return different <= tolerance * photo ? loop : std::nullopt;
}

bool SourceCoverage::Keeps(const SourcePosition& place) const {
    const double x = std::floor((place.x + 0.5) / cell);
    const double y = std::floor((place.y + 0.5) / cell);
    return x >= 0.0 && x < columns && y >= 0.0 && y < rows &&
           (cells[static_cast<std::size_t>(y) * static_cast<std::size_t>(columns) +
                  static_cast<std::size_t>(x)] &
            Kept) != 0;
}

SourceCoverage MeasureCoverage(const MappingMesh& grid, int columns) {
    const PixelSize size = grid.Places().SourceSize();
    SourceCoverage area;
    area.cell = static_cast<double>(std::max(size.width, size.height)) / columns;
    area.columns = static_cast<int>(std::ceil(size.width / area.cell));
    area.rows = static_cast<int>(std::ceil(size.height / area.cell));
    area.cells.resize(static_cast<std::size_t>(area.columns) * static_cast<std::size_t>(area.rows));
    MarkPhoto(grid.Places(), area);
    Raster raster(area);
    for (std::size_t j = 0; j + 1 < grid.Rows().size(); ++j) {
        for (std::size_t i = 0; i + 1 < grid.Columns().size(); ++i) {
            const auto cell = grid.Cell(i, j);
            if (cell && !Torn(*cell, std::max(size.width, size.height) / 2.0)) {
                raster.Fill(*cell);
            }
        }
    }
    const auto photo = std::ranges::count_if(
        area.cells, [](std::uint8_t cell) { return (cell & SourceCoverage::Photo) != 0; });
    const auto kept = std::ranges::count(area.cells, SourceCoverage::Photo | SourceCoverage::Kept);
    area.share = photo == 0 ? 0.0 : static_cast<double>(kept) / static_cast<double>(photo);
    return area;
}

}  // namespace varnel
