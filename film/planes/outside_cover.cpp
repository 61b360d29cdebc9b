// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "film/planes/outside_cover.h"

#include <algorithm>
#include <cmath>
#include <cstring>

#include "remap/analysis/inverse_mapping.h"

namespace varnel {

namespace {

constexpr int whiteLevel = 65535;

FrameFormat GreyOf(PixelSize size) {
    FrameFormat format;
    format.size = size;
    format.chroma = ChromaLayout::Grey;
    format.fullRange = true;
    format.bits = 16;
    return format;
}

std::uint16_t* SamplesOf(const FrameTarget& grey, int row) {
    return reinterpret_cast<std::uint16_t*>(grey.planes[0].first + row * grey.planes[0].pitch);
}

double ShareAt(const FrameView& grey, int column, int row) {
    std::uint16_t level = 0;
    std::memcpy(&level,
                grey.planes[0].first + row * grey.planes[0].pitch + std::ptrdiff_t{2} * column,
                sizeof level);
    return static_cast<double>(level) / whiteLevel;
}

FrameBuffer WhiteFrame(PixelSize size, const std::optional<PhotoCircle>& circle,
                       BlockRunner& runner) {
    FrameBuffer frame(GreyOf(size));
    runner.Run(size.height, [&](int row) {
        std::uint16_t* const samples = SamplesOf(frame.Target(), row);
        for (int column = 0; column < size.width; ++column) {
            const SourcePosition place{static_cast<double>(column),
                                       static_cast<double>(size.height - 1 - row)};
            samples[column] = !circle || circle->Holds(place) ? whiteLevel : 0;
        }
    });
    return frame;
}

// Of red and blue in brightness, by ITU-T H.273's numbers of matrices.
struct Weights {
    double red, blue;

    static Weights Of(const FrameFormat& format) {
        switch (format.matrix) {
            case 1:
                return bt709;
            case 4:
                return {0.30, 0.11};
            case 5:
            case 6:
                return bt601;
            case 7:
                return {0.212, 0.087};
            case 9:
            case 10:
                return {0.2627, 0.0593};
            default:
                return format.size.height > 576 ? bt709 : bt601;
        }
    }

  private:
    static const Weights bt601, bt709;
};

const Weights Weights::bt601{0.299, 0.114};
const Weights Weights::bt709{0.2126, 0.0722};

// A sample's level with what is mixed in from beside the photo taken out again, over another level.
float Mixed(float level, float blank, float under, float circle, float photo) {
    const float ofLevel = photo > 0.0F ? circle / photo : 0.0F;
    return blank * circle + (level - blank) * ofLevel + under * (1.0F - circle);
}

template <class Sample, class Run>
void Fill(std::byte* row, const Run& run, float blank, float under) {
    auto* const samples = reinterpret_cast<Sample*>(row) + run.first;
    if (run.circle.empty()) {
        std::fill_n(samples, run.end - run.first, static_cast<Sample>(under));
        return;
    }
    constexpr float most = std::numeric_limits<Sample>::max();
    for (std::size_t n = 0; n < run.circle.size(); ++n) {
        const float level =
            Mixed(static_cast<float>(samples[n]), blank, under, run.circle[n], run.photo[n]);
        samples[n] = static_cast<Sample>(std::clamp(level + 0.5F, 0.0F, most));
    }
}

}  // namespace

std::array<float, mostPlanes> LevelsOf(const OutsideFill& colour, const FrameFormat& format) {
    const double red = colour.red / 255.0;
    const double green = colour.green / 255.0;
    const double blue = colour.blue / 255.0;
    const double most = (1 << format.bits) - 1;
    std::array<double, mostPlanes> levels{};
    const Weights weights = Weights::Of(format);
    const double bright =
        weights.red * red + (1.0 - weights.red - weights.blue) * green + weights.blue * blue;
    if (format.chroma == ChromaLayout::Colours) {
        levels = {green * most, blue * most, red * most};
    } else {
        const double one = 1 << (format.bits - 8);
        const double blank = BlankLevel(format, 0);
        const double range = format.fullRange ? most : 219.0 * one;
        const double colours = format.fullRange ? most : 224.0 * one;
        levels = {blank + range * bright,
                  128.0 * one + colours * (blue - bright) / (2.0 * (1.0 - weights.blue)),
                  128.0 * one + colours * (red - bright) / (2.0 * (1.0 - weights.red))};
    }
    if (format.alpha) {
        levels[static_cast<std::size_t>(PlanesOf(format) - 1)] = most;
    }
    std::array<float, mostPlanes> rounded{};
    std::ranges::transform(levels, rounded.begin(), [most](double level) {
        return static_cast<float>(std::clamp(std::nearbyint(level), 0.0, most));
    });
    return rounded;
}

OutsideCover::OutsideCover(const ImageRecord& image, const FrameFormat& source,
                           const FrameFormat& result, const Tools& tools)
    : format_(result), levels_(LevelsOf(image.Outside, source)) {
    const auto drawn = [&](const std::optional<PhotoCircle>& circle) {
        FrameBuffer frame(GreyOf(result.size));
        tools.draw(WhiteFrame(source.size, circle, tools.runner).View(), frame.Target());
        return frame;
    };
    const FrameBuffer circle = drawn(PhotoCircleOf(image, source.size));
    const FrameBuffer photo = drawn({});
    for (int plane = 0; plane < std::min(PlanesOf(result), 2); ++plane) {
        const PixelSize size = PlaneSize(result, plane);
        const Shares shares{circle.View(), photo.View(), SampleGrid::Of(result, plane)};
        Runs& runs = runs_[GridOf(result, plane)];
        runs.resize(static_cast<std::size_t>(size.height));
        tools.runner.Run(size.height, [&](int row) {
            runs[static_cast<std::size_t>(row)] = RowOf(shares, row, size.width);
        });
    }
}

std::vector<OutsideCover::Run> OutsideCover::RowOf(const Shares& shares, int row, int columns) {
    const SampleGrid& grid = shares.grid;
    const PixelSize whole = shares.circle.format.size;
    // The mean of the brightness samples that it stands for.
    const int lower = std::min(row * grid.stepY + (grid.shiftY > 0.0 ? 1 : 0), whole.height - 1);
    const int upper = grid.shiftY < 1.0 ? row * grid.stepY : lower;
    const auto shareOf = [&](const FrameView& grey, int column) {
        const int left = column * grid.stepX;
        const int right = std::min(left + (grid.shiftX > 0.0 ? 1 : 0), whole.width - 1);
        return static_cast<float>((ShareAt(grey, left, upper) + ShareAt(grey, right, upper) +
                                   ShareAt(grey, left, lower) + ShareAt(grey, right, lower)) /
                                  4.0);
    };
    // What blends of white leave below white.
    constexpr float all = 1.0F - 2.0F / whiteLevel;
    std::vector<Run> runs;
    for (int column = 0; column < columns; ++column) {
        const float share = shareOf(shares.circle, column);
        if (share >= all) {
            continue;
        }
        const bool showsNothing = share == 0.0F;
        if (runs.empty() || runs.back().end != column ||
            runs.back().circle.empty() != showsNothing) {
            runs.push_back({column, column, {}, {}});
        }
        runs.back().end = column + 1;
        if (!showsNothing) {
            runs.back().circle.push_back(share);
            runs.back().photo.push_back(shareOf(shares.photo, column));
        }
    }
    return runs;
}

void OutsideCover::FillRow(const FrameTarget& result, int plane, int row) const {
    const auto n = static_cast<std::size_t>(plane);
    const Runs& runs = runs_[GridOf(format_, plane)];
    std::byte* const first = result.planes[n].first + row * result.planes[n].pitch;
    const auto blank = static_cast<float>(BlankLevel(format_, plane));
    for (const Run& run : runs[static_cast<std::size_t>(row)]) {
        if (BytesPerSample(format_) == 1) {
            Fill<std::uint8_t>(first, run, blank, levels_[n]);
        } else {
            Fill<std::uint16_t>(first, run, blank, levels_[n]);
        }
    }
}

}  // namespace varnel
