// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The maps of the image circle, by their formulas.

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "remap/projection/circle_rows.h"
#include "remap/projection/straight_rows.h"
#include "remap/render/engine/fine/places.h"

namespace varnel {

namespace {

struct Place {
    double x, y;
    float scaleX, scaleY;
};

// Of a pixel that also lies within the circle by a share.
void Put(const Place& place, float within, PixelSize photo, std::size_t at, Places& into) {
    into.x[at] = place.x;
    into.y[at] = place.y;
    into.scaleX[at] = place.scaleX;
    into.scaleY[at] = place.scaleY;
    into.share[at] = within * ShareOnSide(place.x, place.scaleX, photo.width) *
                     ShareOnSide(place.y, place.scaleY, photo.height);
}

// Of a row whose middle lies a way within the circle, rows of the result; positive.
float ShareWithin(double rows) {
    return static_cast<float>(std::clamp(rows + 0.5, 0.0, 1.0));
}

float Length(double a, double b) {
    return static_cast<float>(std::sqrt(a * a + b * b));
}

// Of a finder whose rows have nothing in common.
template <class Finder>
class RowsBy : public PlaceRows {
  public:
    explicit RowsBy(const Finder& finder) : finder_(finder) {}
    void Fill(const PlaceRun& run, Places& into) override { finder_.Find(run, into); }

  private:
    const Finder& finder_;
};

class StraightPlaces : public PlaceFinder {
  public:
    StraightPlaces(const StraightRows& map, PixelSize photo) : map_(map), photo_(photo) {}

    std::unique_ptr<PlaceRows> RowsOf(LineRange /*across*/, LineRange /*up*/) const override {
        return std::make_unique<RowsBy<StraightPlaces>>(*this);
    }
    void Find(const PlaceRun& run, Places& into) const {
        const ImageCircleGeometry& circle = map_.Circle();
        const int row = std::abs(run.y);
        const double stretch = StretchOf(row);
        const double bend = (StretchOf(row + 1) - StretchOf(std::abs(row - 1))) / 2.0;
        const float scaleY = static_cast<float>(1.0 / circle.scale);
        const double y = circle.sourceCentre.y + (run.y < 0 ? -1.0 : 1.0) * map_.HeightOf(row);
        const float within = ShareWithin(map_.Radius() - row);
        for (int n = 0; n < run.count; ++n) {
            const int column = run.x + n;
            Put({circle.sourceCentre.x + column * stretch, y, Length(stretch, column * bend),
                 scaleY},
                within, photo_, run.at + static_cast<std::size_t>(n), into);
        }
    }

  private:
    // Pixels of the photo for each column.
    double StretchOf(int row) const {
        return map_.Plain(row) ? 1.0 : map_.Chord(row) / map_.Radius();
    }

    const StraightRows& map_;
    PixelSize photo_;
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

    std::unique_ptr<PlaceRows> RowsOf(LineRange /*across*/, LineRange /*up*/) const override {
        return std::make_unique<RowsBy<CirclePlaces>>(*this);
    }
    void Find(const PlaceRun& run, Places& into) const {
        const ImageCircleGeometry& circle = map_.Circle();
        const double radius = map_.SourceRadius(run.y);
        const double outward = static_cast<double>(run.height) / circle.scale;
        const double around = radius * turn_;
        const float within = ShareWithin((static_cast<double>(circle.radius) - radius) / outward);
        for (int n = 0; n < run.count; ++n) {
            const auto column = static_cast<std::size_t>(run.x + n - first_);
            const double cosine = cosines_[column];
            const double sine = sines_[column];
            Put({circle.sourceCentre.x + radius * cosine, circle.sourceCentre.y + radius * sine,
                 Length(around * sine, outward * cosine), Length(around * cosine, outward * sine)},
                within, photo_, run.at + static_cast<std::size_t>(n), into);
        }
    }

  private:
    const CircleRows& map_;
    PixelSize photo_;
    int first_;
    double turn_ = 0.0;  // radians from column to column
    std::vector<double> cosines_, sines_;
};

}  // namespace

std::unique_ptr<PlaceFinder> StraightRowPlaces(const StraightRows& map, PixelSize photo) {
    return std::make_unique<StraightPlaces>(map, photo);
}

std::unique_ptr<PlaceFinder> CircleRowPlaces(const CircleRows& map, PixelSize photo,
                                             LineRange across) {
    return std::make_unique<CirclePlaces>(map, photo, across);
}

}  // namespace varnel
