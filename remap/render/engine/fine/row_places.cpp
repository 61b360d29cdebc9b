// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The maps of the image circle, by their formulas.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "remap/projection/circle_rows.h"
#include "remap/projection/straight_rows.h"
#include "remap/render/engine/fine/fine_kernels.h"
#include "remap/render/engine/fine/places.h"

namespace varnel {

namespace {

// Of a run's places, whose pixels lie within the circle by a share too. All of them lie no farther
// from the first than so many pixels of the photo, with all that they span.
void FillShares(const PlaceRun& run, float within, double far, PixelSize photo, Places& into) {
    const auto fits = [far](double position, std::int32_t side) {
        return position - far >= -0.5 && position + far <= side - 0.5;
    };
    if (fits(into.x[run.at], photo.width) && fits(into.y[run.at], photo.height)) {
        std::fill_n(&into.share[run.at], run.count, within);
        return;
    }
    const std::size_t end = run.at + static_cast<std::size_t>(run.count);
    for (std::size_t n = run.at; n < end; ++n) {
        into.share[n] = within * ShareOnSide(into.x[n], into.scaleX[n], photo.width) *
                        ShareOnSide(into.y[n], into.scaleY[n], photo.height);
    }
}

// Of a row whose middle lies a way within the circle, rows of the result; positive.
float ShareWithin(double rows) {
    return static_cast<float>(std::clamp(rows + 0.5, 0.0, 1.0));
}

// Of a finder that works out rows by themselves.
template <class Finder>
class RowsBy : public PlaceRows {
  public:
    RowsBy(const Finder& finder, LineRange up) : finder_(finder), first_(up.first) {
        for (int y = up.first; y <= up.last; ++y) {
            rows_.push_back(finder.RowAt(y));
        }
    }
    void Fill(const PlaceRun& run, Places& into) override {
        finder_.Find(run, rows_[static_cast<std::size_t>(run.y - first_)], into);
    }

  private:
    const Finder& finder_;
    int first_;
    std::vector<typename Finder::Row> rows_;
};

class StraightPlaces : public PlaceFinder {
  public:
    StraightPlaces(const StraightRows& map, PixelSize photo, LineRange across)
        : map_(map), photo_(photo), first_(across.first) {
        for (int column = across.first; column <= across.last; ++column) {
            columns_.push_back(column);
        }
        ones_.assign(columns_.size(), 1.0);
    }

    std::unique_ptr<PlaceRows> RowsOf(LineRange /*across*/, LineRange up) const override {
        return std::make_unique<RowsBy<StraightPlaces>>(*this, up);
    }
    struct Row {
        double stretch;  // pixels of the photo for each column
        double bend;     // how much more in the next row
        double y;
        float within;
    };
    Row RowAt(int position) const {
        const int row = std::abs(position);
        return {StretchOf(row), (StretchOf(row + 1) - StretchOf(std::abs(row - 1))) / 2.0,
                map_.Circle().sourceCentre.y + (position < 0 ? -1.0 : 1.0) * map_.HeightOf(row),
                ShareWithin(map_.Radius() - row)};
    }
    void Find(const PlaceRun& run, const Row& row, Places& into) const {
        const ImageCircleGeometry& circle = map_.Circle();
        const auto scaleY = static_cast<float>(1.0 / circle.scale);
        const double* const columns = &columns_[static_cast<std::size_t>(run.x - first_)];
        const auto count = static_cast<std::size_t>(run.count);
        for (std::size_t n = 0; n < count; ++n) {
            into.x[run.at + n] = circle.sourceCentre.x + columns[n] * row.stretch;
        }
        std::fill_n(&into.y[run.at], run.count, row.y);
        std::fill_n(&into.scaleY[run.at], run.count, scaleY);
        FillLengths({ones_.data(), columns, row.stretch, row.bend}, {&into.scaleX[run.at], count});
        const int farthest = std::max(std::abs(run.x), std::abs(run.x + run.count));
        const double widest = row.stretch + std::fabs(row.bend) * farthest;
        FillShares(run, row.within, row.stretch * run.count + widest + static_cast<double>(scaleY),
                   photo_, into);
    }

  private:
    double StretchOf(int row) const {
        return map_.Plain(row) ? 1.0 : map_.Chord(row) / map_.Radius();
    }

    const StraightRows& map_;
    PixelSize photo_;
    int first_;
    std::vector<double> columns_, ones_;
};

class CirclePlaces : public PlaceFinder {
  public:
    CirclePlaces(const CircleRows& map, PixelSize photo, LineRange across)
        : map_(map), photo_(photo), first_(across.first) {
        for (int column = across.first; column <= across.last; ++column) {
            const double angle = map.Angle(std::abs(column));
            cosines_.push_back(column > 0 ? std::cos(angle) : -std::cos(angle));
            sines_.push_back(std::sin(angle));
        }
        turn_ = std::fabs(map.Angle(2) - map.Angle(1));
    }

    std::unique_ptr<PlaceRows> RowsOf(LineRange /*across*/, LineRange up) const override {
        return std::make_unique<RowsBy<CirclePlaces>>(*this, up);
    }
    using Row = double;  // its radius on the photo
    Row RowAt(int position) const { return map_.SourceRadius(position); }
    void Find(const PlaceRun& run, Row radius, Places& into) const {
        const ImageCircleGeometry& circle = map_.Circle();
        const double outward = static_cast<double>(run.height) / circle.scale;
        const double around = radius * turn_;
        const float within = ShareWithin((static_cast<double>(circle.radius) - radius) / outward);
        const auto column = static_cast<std::size_t>(run.x - first_);
        const auto count = static_cast<std::size_t>(run.count);
        const double* const cosines = &cosines_[column];
        const double* const sines = &sines_[column];
        for (std::size_t n = 0; n < count; ++n) {
            into.x[run.at + n] = circle.sourceCentre.x + radius * cosines[n];
            into.y[run.at + n] = circle.sourceCentre.y + radius * sines[n];
        }
        FillLengths({sines, cosines, around, outward}, {&into.scaleX[run.at], count});
        FillLengths({cosines, sines, around, outward}, {&into.scaleY[run.at], count});
        FillShares(run, within, std::fabs(around) * (run.count + 1) + outward, photo_, into);
    }

  private:
    const CircleRows& map_;
    PixelSize photo_;
    int first_;
    double turn_ = 0.0;  // radians from column to column
    std::vector<double> cosines_, sines_;
};

}  // namespace

std::unique_ptr<PlaceFinder> StraightRowPlaces(const StraightRows& map, PixelSize photo,
                                               LineRange across) {
    return std::make_unique<StraightPlaces>(map, photo, across);
}

std::unique_ptr<PlaceFinder> CircleRowPlaces(const CircleRows& map, PixelSize photo,
                                             LineRange across) {
    return std::make_unique<CirclePlaces>(map, photo, across);
}

}  // namespace varnel
