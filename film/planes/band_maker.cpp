// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/band_maker.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "film/planes/cubic_patch.h"

namespace varnel {

namespace {

constexpr double none = std::numeric_limits<double>::quiet_NaN();

// Vectors read four samples of 8 bits from the left neighbour on.
constexpr int samplesRead = 4;

struct Bounds {
    double low, high;
};

// Of what a polynomial through the nodes takes within the cell.
Bounds BoundsOf(const NodeLattice::Patch& patch) {
    const auto [low, high] =
        std::minmax({patch.At(2, 2), patch.At(2, 3), patch.At(3, 2), patch.At(3, 3)});
    constexpr double rounding = 0.01;
    const double room = BendOf(patch) / 4.0 + rounding;
    return {low - room, high + room};
}

// By the left upper neighbour's column and row.
bool IsInside(double x, double y, PixelSize plane) {
    return x >= 0.0 && x < plane.width - samplesRead + 1 && y >= 0.0 && y < plane.height - 1;
}

// To the nearest, as adding leaves it in the low bits.
std::int32_t FixedOf(double place) {
    constexpr double shift = 6755399441055744.0;  // 1.5 * 2^52
    return static_cast<std::int32_t>(std::bit_cast<std::int64_t>(place * placesPerSample + shift));
}

}  // namespace

// Of samples of brightness, rows one after the other; x is not a number where nothing is shown.
struct BandMaker::CellPlaces {
    std::array<SourcePosition, cellSide * cellSide> of;

    SourcePosition& At(int row, int column) {
        return of[static_cast<std::size_t>(row * cellSide + column)];
    }
    // The mean of those of a sample's that show anything.
    SourcePosition MeanOf(const SampleGrid& grid, int row, int column) const;
    void Repeat(const CellArea& area);
};

SourcePosition BandMaker::CellPlaces::MeanOf(const SampleGrid& grid, int row, int column) const {
    const int across = grid.shiftX == 0.5 ? 2 : 1;
    const int down = grid.shiftY == 0.5 ? 2 : 1;
    const int left = column * grid.stepX;
    const int top = row * grid.stepY + (grid.shiftY == 1.0 ? 1 : 0);
    SourcePosition sum;
    int shown = 0;
    for (int n = 0; n < across * down; ++n) {
        const SourcePosition& place =
            of[static_cast<std::size_t>((top + n / across) * cellSide + left + n % across)];
        if (!std::isnan(place.x)) {
            sum = {sum.x + place.x, sum.y + place.y};
            ++shown;
        }
    }
    return shown == 0 ? SourcePosition{none, none} : SourcePosition{sum.x / shown, sum.y / shown};
}

// Beyond the result as its last ones.
void BandMaker::CellPlaces::Repeat(const CellArea& area) {
    const int columns = area.right - area.left;
    const int rows = area.bottom - area.top;
    for (int row = 0; row < rows; ++row) {
        for (int column = columns; column < cellSide; ++column) {
            At(row, column) = At(row, columns - 1);
        }
    }
    for (int row = rows; row < cellSide; ++row) {
        for (int column = 0; column < cellSide; ++column) {
            At(row, column) = At(rows - 1, column);
        }
    }
}

BandMaker::BandMaker(const MapPlaces& places, const NodeLattice& nodes, const FrameFormat& source,
                     const FrameFormat& result)
    : places_(places),
      nodes_(nodes),
      sourceSize_(source.size),
      resultSize_(result.size),
      // A thousandth of a pixel and less is missed, see node_checks.h; finer levels show more.
      limit_(source.bits > 8 ? 0.005 : 0.02) {
    grids_[brightness] = {true, {}, source.size};
    if (SharingOf(source, 1).width > 1) {
        grids_[colour] = {true, SampleGrid::Of(source, 1), PlaneSize(source, 1)};
    }
}

BandMaker::CellArea BandMaker::AreaOf(int column, int row) const {
    const int left = column * cellSide;
    const int top = row * cellSide;
    return {column,
            row,
            left,
            top,
            std::min(left + cellSide, resultSize_.width),
            std::min(top + cellSide, resultSize_.height)};
}

void BandMaker::Make(int cellRow, Band& band) const {
    const int columns = (resultSize_.width + cellSide - 1) / cellSide;
    band.cells.clear();
    band.cells.reserve(static_cast<std::size_t>(columns));
    for (BandOfGrid& grid : band.of) {
        grid.kinds.clear();
        grid.places.clear();
    }
    CellPlaces places;
    for (int column = 0; column < columns; ++column) {
        const CellArea area = AreaOf(column, cellRow);
        switch (WayOf(area)) {
            case Way::Blank:
                band.cells.emplace_back();
                for (BandOfGrid& grid : band.of) {
                    grid.kinds.push_back(CellKind::Blank);
                }
                break;
            case Way::Polynomial:
                TakePolynomial(area, band);
                break;
            case Way::ByInside:
                FillByInside(area, places);
                TakePlaces(places, band);
                break;
            case Way::OneByOne:
                if (!TakeCircleCell(area, band)) {
                    FillExactly(area, places);
                    TakePlaces(places, band);
                }
                break;
        }
    }
}

BandMaker::Way BandMaker::WayOf(const CellArea& area) const {
    if (!places_.IsSmooth()) {
        return Way::OneByOne;
    }
    const auto [firstColumn, endColumn] = places_.Columns();
    const auto [firstRow, endRow] = places_.Rows();
    if (area.right <= firstColumn || area.left >= endColumn || area.bottom <= firstRow ||
        area.top >= endRow) {
        return Way::Blank;
    }
    if (area.left < firstColumn || area.right > endColumn || area.top < firstRow ||
        area.bottom > endRow) {
        return Way::OneByOne;
    }
    Way way = Way::Polynomial;
    if (nodes_.HasEdge()) {
        const NodeLattice::Patch inside = nodes_.Within(area.column, area.row);
        const auto [low, high] =
            std::minmax({inside.At(2, 2), inside.At(2, 3), inside.At(3, 2), inside.At(3, 3)});
        const double bend = BendOf(inside) + leastInside;
        if (high < -bend) {
            return Way::Blank;
        }
        way = low > bend ? Way::Polynomial : Way::ByInside;
    }
    const bool isSmooth =
        IsSmooth(nodes_.X(area.column, area.row)) && IsSmooth(nodes_.Y(area.column, area.row));
    return isSmooth ? way : Way::OneByOne;
}

bool BandMaker::IsSmooth(const NodeLattice::Patch& patch) const {
    constexpr double farthest = 1e6;
    return FourthDifferenceOf(patch) < limit_ && std::fabs(patch.At(2, 2)) < farthest &&
           std::fabs(patch.At(3, 3)) < farthest;
}

void BandMaker::TakePolynomial(const CellArea& area, Band& band) const {
    const NodeLattice::Patch patchX = nodes_.X(area.column, area.row);
    const NodeLattice::Patch patchY = nodes_.Y(area.column, area.row);
    const Bounds x = BoundsOf(patchX);
    const Bounds y = BoundsOf(patchY);
    CellPolynomial& cell = band.cells.emplace_back();
    const bool isOff = x.high <= -1.0 || x.low >= sourceSize_.width || y.high <= -1.0 ||
                       y.low >= sourceSize_.height;
    for (std::size_t n = 0; n < grids; ++n) {
        const auto& [isThere, samples, plane] = grids_[n];
        const bool isInside = IsInside(samples.ColumnOf(x.low), samples.RowOf(y.low), plane) &&
                              IsInside(samples.ColumnOf(x.high), samples.RowOf(y.high), plane);
        band.of[n].kinds.push_back(isOff      ? CellKind::Blank
                                   : isInside ? CellKind::Inside
                                              : CellKind::Border);
    }
    if (!isOff) {
        cell.baseX = static_cast<std::int32_t>(std::floor(patchX.At(2, 2)));
        cell.baseY = static_cast<std::int32_t>(std::floor(patchY.At(2, 2)));
        TakeCoefficients(patchX, cell.baseX, 0, cell);
        TakeCoefficients(patchY, cell.baseY, 4, cell);
    }
}

void BandMaker::TakePlaces(const CellPlaces& places, Band& band) const {
    const std::uint32_t block = NextBlock(band);
    band.cells.emplace_back().block = block;
    for (std::size_t n = 0; n < grids; ++n) {
        TakePlaces(grids_[n], places, band.of[n]);
    }
}

void BandMaker::TakePlaces(const Grid& grid, const CellPlaces& places, BandOfGrid& band) const {
    if (!grid.isThere) {
        band.kinds.push_back(CellKind::Blank);
        return;
    }
    const int columns = grid.samples.CellColumns();
    const int rows = grid.samples.CellRows();
    const std::size_t start = band.places.size();
    band.places.resize(start + static_cast<std::size_t>(2 * columns * rows), nowhere);
    std::int32_t* place = band.places.data() + start;
    bool allInside = true;
    bool anyShown = false;
    for (int row = 0; row < rows; ++row, place += 2 * columns) {
        for (int column = 0; column < columns; ++column) {
            const SourcePosition mean = places.MeanOf(grid.samples, row, column);
            const bool isOn = mean.x > -1.0 && mean.x < sourceSize_.width && mean.y > -1.0 &&
                              mean.y < sourceSize_.height;
            anyShown |= isOn;
            if (isOn) {
                place[column] = FixedOf(grid.samples.ColumnOf(mean.x));
                place[columns + column] = FixedOf(grid.samples.RowOf(mean.y));
            }
            allInside &=
                isOn && IsInside(place[column] >> 16, place[columns + column] >> 16, grid.source);
        }
    }
    band.kinds.push_back(allInside  ? CellKind::PixelsInside
                         : anyShown ? CellKind::Pixels
                                    : CellKind::Blank);
}

std::uint32_t BandMaker::NextBlock(const Band& band) {
    return static_cast<std::uint32_t>(band.of[brightness].places.size() /
                                      (2 * cellSide * cellSide));
}

bool BandMaker::TakeCircleCell(const CellArea& area, Band& band) const {
    const std::optional<CircleCell> circles = places_.CircleCellAt(area.left, area.top);
    if (!circles) {
        return false;
    }
    CellPositions positions;
    const PositionBounds bounds = FillPositions(*circles, positions);
    const bool allInside = std::ranges::all_of(grids_, [&](const Grid& grid) {
        const SampleGrid& samples = grid.samples;
        return !grid.isThere ||
               (IsInside(samples.ColumnOf(bounds.leastX), samples.RowOf(bounds.leastY),
                         grid.source) &&
                IsInside(samples.ColumnOf(bounds.mostX), samples.RowOf(bounds.mostY), grid.source));
    });
    if (!allInside) {
        return false;
    }
    const std::uint32_t block = NextBlock(band);
    band.cells.emplace_back().block = block;
    for (std::size_t n = 0; n < grids; ++n) {
        const auto& [isThere, samples, plane] = grids_[n];
        BandOfGrid& of = band.of[n];
        of.kinds.push_back(isThere ? CellKind::PixelsInside : CellKind::Blank);
        if (isThere) {
            const std::size_t start = of.places.size();
            of.places.resize(
                start + static_cast<std::size_t>(2 * samples.CellColumns() * samples.CellRows()));
            TakePositions(positions, samples, of.places.data() + start);
        }
    }
    return true;
}

void BandMaker::FillExactly(const CellArea& area, CellPlaces& places) const {
    const auto columns = static_cast<std::size_t>(area.right - area.left);
    for (int row = area.top; row < area.bottom; ++row) {
        places_.Row(row, area.left, {&places.At(row - area.top, 0), columns});
    }
    places.Repeat(area);
}

// At an edge of the map: only what is too close to call is asked of the map itself.
void BandMaker::FillByInside(const CellArea& area, CellPlaces& places) const {
    const NodeLattice::Patch inside = nodes_.Within(area.column, area.row);
    const double close = BendOf(inside) / 4.0 + leastInside;
    const CubicPatch shares(inside);
    const CubicPatch x(nodes_.X(area.column, area.row));
    const CubicPatch y(nodes_.Y(area.column, area.row));
    for (int row = 0; row < area.bottom - area.top; ++row) {
        for (int column = 0; column < area.right - area.left; ++column) {
            const double share = shares.At(row, column);
            SourcePosition& place = places.At(row, column);
            if (!(std::fabs(share) > close)) {
                place = places_.At(area.left + column, area.top + row);
            } else if (share > 0.0) {
                place = {x.At(row, column), y.At(row, column)};
            } else {
                place = {none, none};
            }
        }
    }
    places.Repeat(area);
}

}  // namespace varnel
