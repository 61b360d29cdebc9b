// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/fine.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>

#include "remap/image/levels/transfer_curve.h"
#include "remap/projection/circle_rows.h"
#include "remap/projection/smooth_map.h"
#include "remap/projection/straight_rows.h"
#include "remap/render/engine/fine/fine_kernel.h"
#include "remap/render/engine/fine/result_grid.h"
#include "remap/render/engine/projection_engine.h"

namespace varnel::reference {

namespace {

using Light = std::array<double, 3>;

PixelPosition CentreOf(const ProjectionMap& map) {
    if (const StraightRows* const rows = map.AsStraightRows()) {
        return rows->Circle().sourceCentre;
    }
    if (const CircleRows* const circles = map.AsCircleRows()) {
        return circles->Circle().sourceCentre;
    }
    return map.AsSmooth()->SourceCentre();
}

// A photo as light; beside it its border goes on.
class Photo {
  public:
    explicit Photo(const Bitmap& bitmap)
        : bitmap_(bitmap), size_(bitmap.Size()), curve_(TransferCurve::Of(bitmap)) {}

    PixelSize Size() const { return size_; }
    const TransferCurve& Curve() const { return *curve_; }
    double At(int x, int y, std::size_t channel) const {
        const std::uint8_t* const row = bitmap_.ScanLine(std::clamp(y, 0, size_.height - 1)).data();
        const std::uint8_t* const pixel =
            row + std::clamp(x, 0, size_.width - 1) * PixelStep(bitmap_.Format());
        return WithSample(SampleKindOf(bitmap_.Format()), [&](auto kind) {
            const float light = curve_->LightOf(SampleAt<decltype(kind)>(pixel, channel));
            return static_cast<double>(light);
        });
    }

  private:
    const Bitmap& bitmap_;
    PixelSize size_;
    TransferCurve::Handle curve_;
};

double Within(double value, double a, double b, double slack) {
    const auto [low, high] = std::minmax(a, b);
    const double room = (high - low) * slack;
    return std::clamp(value, low - room, high + room);
}

// The blend of a line of neighbours, of which at(n) is the n-th.
double Blend(const FineAxis<double>& axis, double position, const std::function<double(int)>& at) {
    const CubicKernel<double> kernel = axis.Kernel();
    double sum = 0.0;
    double weights = 0.0;
    for (int n = axis.FirstTap(position); n <= axis.LastTap(position); ++n) {
        const double weight = kernel.At((n - position) / axis.width);
        sum += weight * at(n);
        weights += weight;
    }
    return sum / weights;
}

double BlendWithin(const FineAxis<double>& axis, double position,
                   const std::function<double(int)>& at) {
    const int nearest = static_cast<int>(std::floor(position));
    return Within(Blend(axis, position, at), at(nearest), at(nearest + 1), axis.Slack());
}

// Where a pixel is read, and how much of the photo it spans.
struct Spot {
    double x = 0.0;
    double y = 0.0;
    double scaleX = 0.0;
    double scaleY = 0.0;
};

// Along both axes at once.
double BlendOfBoth(const Photo& photo, const Spot& spot, std::size_t channel) {
    const auto across = FineAxis<double>::Of(spot.scaleX);
    const auto up = FineAxis<double>::Of(spot.scaleY);
    return Blend(up, spot.y, [&](int row) {
        return Blend(across, spot.x, [&](int column) { return photo.At(column, row, channel); });
    });
}

double WithinFour(double value, const Photo& photo, const Spot& spot, std::size_t channel,
                  double slack) {
    const int left = static_cast<int>(std::floor(spot.x));
    const int bottom = static_cast<int>(std::floor(spot.y));
    const auto [low, high] =
        std::minmax({photo.At(left, bottom, channel), photo.At(left + 1, bottom, channel),
                     photo.At(left, bottom + 1, channel), photo.At(left + 1, bottom + 1, channel)});
    return Within(value, low, high, slack);
}

// Where only one axis is smooth it comes first.
double ColourAt(const Photo& photo, const Spot& spot, std::size_t channel) {
    const auto across = FineAxis<double>::Of(spot.scaleX);
    const auto up = FineAxis<double>::Of(spot.scaleY);
    const bool smoothAcross = across.blur >= 1.0;
    const bool smoothUp = up.blur >= 1.0;
    const auto at = [&](int x, int y) { return photo.At(x, y, channel); };
    if (smoothAcross && !smoothUp) {
        return BlendWithin(up, spot.y, [&](int y) {
            return BlendWithin(across, spot.x, [&](int x) { return at(x, y); });
        });
    }
    if (smoothUp && !smoothAcross) {
        return BlendWithin(across, spot.x, [&](int x) {
            return BlendWithin(up, spot.y, [&](int y) { return at(x, y); });
        });
    }
    const double found = BlendOfBoth(photo, spot, channel);
    if (!smoothUp) {
        return WithinFour(found, photo, spot, channel, std::min(across.Slack(), up.Slack()));
    }
    const double nearest =
        at(static_cast<int>(std::floor(spot.x)), static_cast<int>(std::floor(spot.y)));
    return std::max(found, std::min(nearest, 0.0));
}

// What of a pixel is on a side of the photo.
double ShareOf(double position, double scale, int side) {
    const double half = std::max(scale, 1e-3) / 2.0;
    const double from = std::max(position - half, -0.5);
    const double to = std::min(position + half, side - 0.5);
    return std::max(to - from, 0.0) / (2.0 * half);
}

bool IsThere(const SourceOffset& offset) {
    return std::fabs(offset.u) < 1e6 && std::fabs(offset.v) < 1e6;
}

// A map of a result by its pixels.
class Pixels {
  public:
    Pixels(const ProjectionMap& map, int column, int row, double height)
        : map_(map), column_(column), row_(row), height_(height), centre_(CentreOf(map)) {}

    SourceOffset Offset(int x, int y) const { return map_.OffsetAt(column_ + x, row_ + y); }
    Spot Find() const {
        const SourceOffset at = Offset(0, 0);
        const SourceOffset left = Offset(-1, 0);
        const SourceOffset right = Offset(1, 0);
        const SourceOffset below = Offset(0, -1);
        const SourceOffset above = Offset(0, 1);
        return {centre_.x + at.u, centre_.y + at.v,
                std::hypot(right.u - left.u, (above.u - below.u) * height_) / 2.0,
                std::hypot(right.v - left.v, (above.v - below.v) * height_) / 2.0};
    }

  private:
    const ProjectionMap& map_;
    int column_, row_;
    double height_;
    PixelPosition centre_;
};

void Put(double sample, std::size_t channel, PixelFormat format, std::uint8_t* pixel) {
    WithSample(SampleKindOf(format), [&](auto kind) {
        using Sample = decltype(kind);
        if constexpr (std::is_same_v<Sample, float>) {
            PutSample(pixel, channel, static_cast<float>(sample));
        } else {
            constexpr double most = std::numeric_limits<Sample>::max();
            PutSample(pixel, channel,
                      static_cast<Sample>(std::lround(std::clamp(sample, 0.0, 1.0) * most)));
        }
    });
}

// What a channel of a result's pixel has: for the position of its column and row, and how many
// positions the row is high.
using PixelLight =
    std::function<double(const ProjectionMap&, int x, int y, double height, std::size_t channel)>;

BitmapHandle Drawn(const ProjectionMaps& maps, const Bitmap& source, PixelSize size,
                   const PixelLight& sampleAt) {
    BitmapHandle result = NewBitmap(size, source.Format());
    for (const auto& [map, only] : maps.entries) {
        const ResultLines lines = map->Lines();
        const ResultGrid grid(lines);
        for (std::int32_t y = 0; y < size.height; ++y) {
            const ResultLine& row = grid.Row(y);
            for (std::int32_t x = 0; x < size.width && row.kind == ResultLine::Kind::Shown; ++x) {
                for (std::size_t channel = 0; channel < 3; ++channel) {
                    if (only && channel != static_cast<std::size_t>(*only)) {
                        continue;
                    }
                    const int position = lines.columns[static_cast<std::size_t>(x)].position;
                    Put(sampleAt(*map, position, row.position, static_cast<double>(grid.StepAt(y)),
                                 channel),
                        channel, source.Format(),
                        result->ScanLine(y).data() + x * PixelStep(source.Format()));
                }
            }
        }
    }
    return result;
}

double CodedBy(const Photo& photo, double light) {
    return static_cast<double>(photo.Curve().SampleOf(static_cast<float>(light)));
}

// So many pixels for each of the frame's.
OutputFrame Enlarged(OutputFrame frame, int times) {
    const auto larger = [times](PixelSize size) {
        return PixelSize{size.width * times, size.height * times};
    };
    frame.size = larger(frame.size);
    frame.whole = larger(frame.whole);
    frame.inner = larger(frame.inner);
    frame.corner = {frame.corner.x * times, frame.corner.y * times};
    frame.shift = {frame.shift.x * times, frame.shift.y * times};
    frame.scale *= times;
    return frame;
}

// The mean over the places of a pixel; those on its border count half.
double MeanOver(int perSide, const std::function<double(int, int)>& at) {
    const int half = perSide / 2;
    const auto weight = [half](int n) { return n == -half || n == half ? 0.5 : 1.0; };
    double sum = 0.0;
    for (int y = -half; y <= half; ++y) {
        for (int x = -half; x <= half; ++x) {
            sum += weight(x) * weight(y) * at(x, y);
        }
    }
    return sum / (perSide * perSide);
}

bool IsOn(const Photo& photo, double x, double y) {
    return x >= -0.5 && y >= -0.5 && x < photo.Size().width - 0.5 && y < photo.Size().height - 0.5;
}

}  // namespace

BitmapHandle RenderFine(Projection projection, const ImageRecord& image, const Bitmap& source,
                        const OutputWish& wish) {
    const Photo photo(source);
    const Frames frames = FramesOf(image, source.Size(), wish);
    const ProjectionMaps maps(projection, image, frames);
    return Drawn(maps, source, frames.output.size,
                 [&](const ProjectionMap& map, int x, int y, double height, std::size_t channel) {
                     const Pixels pixel(map, x, y, height);
                     if (!IsThere(pixel.Offset(0, 0))) {
                         return 0.0;
                     }
                     const Spot spot = pixel.Find();
                     const double share = ShareOf(spot.x, spot.scaleX, photo.Size().width) *
                                          ShareOf(spot.y, spot.scaleY, photo.Size().height);
                     return share > 0.0 ? share * CodedBy(photo, ColourAt(photo, spot, channel))
                                        : 0.0;
                 });
}

BitmapHandle RenderSupersampled(Projection projection, const ImageRecord& image,
                                const Bitmap& source, int perSide, const OutputWish& wish) {
    const Photo photo(source);
    Frames frames = FramesOf(image, source.Size(), wish);
    const ProjectionMaps maps(projection, image, frames);
    const PixelSize size = frames.output.size;
    frames.output = Enlarged(frames.output, perSide);
    const ProjectionMaps closely(projection, image, frames);
    return Drawn(
        maps, source, size,
        [&](const ProjectionMap& map, int x, int y, double height, std::size_t channel) {
            const auto same = std::ranges::find_if(
                maps.entries, [&](const auto& entry) { return entry.map.get() == &map; });
            const ProjectionMap& close =
                *closely.entries[static_cast<std::size_t>(same - maps.entries.begin())].map;
            const PixelPosition centre = CentreOf(close);
            const int step = static_cast<int>(height);
            return CodedBy(photo, MeanOver(perSide, [&](int right, int up) {
                               const SourceOffset at =
                                   close.OffsetAt(perSide * x + right, perSide * y + up * step);
                               const double column = centre.x + at.u;
                               const double row = centre.y + at.v;
                               return IsThere(at) && IsOn(photo, column, row)
                                          ? ColourAt(photo, {column, row, 1.0, 1.0}, channel)
                                          : 0.0;
                           }));
        });
}

}  // namespace varnel::reference
