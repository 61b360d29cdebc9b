// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/fine/fine_coverage.h"

#include <algorithm>
#include <cmath>

#include "remap/render/engine/fine/fine_engine.h"
#include "remap/render/engine/projection_engine.h"

namespace varnel {

namespace {

// The photo's image circle.
class PhotoCircle {
  public:
    explicit PhotoCircle(const SourceFrame& photo) {
        if (photo.ratio > 0.0F) {
            centre_ = photo.Centre();
            radius_ = static_cast<double>(photo.CircleRadius());
        }
    }
    // What of a pixel lies within; its edge is straight there.
    float ShareOf(const Places& places, std::size_t n) const {
        if (radius_ == 0.0) {
            return 1.0F;
        }
        const double x = places.x[n] - centre_.x;
        const double y = places.y[n] - centre_.y;
        const double distance = std::hypot(x, y);
        if (distance == 0.0) {
            return 1.0F;
        }
        const double across = std::hypot(static_cast<double>(places.scaleX[n]) * x,
                                         static_cast<double>(places.scaleY[n]) * y) /
                              distance;
        const double within = (radius_ - distance) / std::max(across, 1e-3);
        return static_cast<float>(std::clamp(within + 0.5, 0.0, 1.0));
    }

  private:
    PixelPosition centre_;
    double radius_ = 0.0;
};

// A row of the result that the map shows.
template <class Sample>
void PutRow(const ResultGrid& grid, const Places& places, const PhotoCircle& circle,
            std::uint8_t* out) {
    for (int n = 0; n < grid.Across().Count(); ++n) {
        const std::int32_t column = grid.ColumnOf(grid.Across().first + n);
        const float share = places.share[static_cast<std::size_t>(n)];
        if (column >= 0 && share > 0.0F) {
            const float within = circle.ShareOf(places, static_cast<std::size_t>(n));
            std::uint8_t* const pixel =
                out + static_cast<std::ptrdiff_t>(3 * sizeof(Sample)) * column;
            PutSample(pixel, 0, NearestSample<Sample>(share * within));
            PutSample(pixel, 1, NearestSample<Sample>(share));
        }
    }
}

}  // namespace

BitmapHandle FineCoverage(Projection projection, const ImageRecord& image, const Frames& frames,
                          PixelFormat format) {
    const ProjectionMaps maps(projection, image, frames);
    const ProjectionMap& map = maps.Green();
    const PixelSize size = frames.output.size;
    const ResultGrid grid(map.Lines());
    const auto finder = PlacesFor(map, grid, frames.source.size, size);
    const PhotoCircle circle(frames.source);
    BitmapHandle coverage = NewBitmap(size, format);
    Places places;
    places.Resize(static_cast<std::size_t>(grid.Across().Count()) + pixelsAhead);
    const PixelWindow shown = map.Shown();
    for (std::int32_t row = 0; row < size.height; ++row) {
        const ResultLine& line = grid.Row(row);
        if (line.kind != ResultLine::Kind::Shown || !shown.HoldsRow(row)) {
            continue;
        }
        finder->RowsOf(grid.Across(), {line.position, line.position})
            ->Fill({grid.Across().first, line.position, grid.Across().Count(), grid.StepAt(row), 0},
                   places);
        WithSample(SampleKindOf(format), [&](auto kind) {
            PutRow<decltype(kind)>(grid, places, circle, coverage->ScanLine(row).data());
        });
    }
    SerialRunner runner;
    RenderSurface(coverage.get(), coverage.get(), frames.output, runner).BlackenBeside(shown);
    return coverage;
}

}  // namespace varnel
