// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/analysis/clean_crop.h"

#include <algorithm>
#include <array>

#include "remap/projection/projection_info.h"
#include "remap/render/outside.h"

namespace varnel {

namespace {

// A read there takes nothing from beside the photo, or from outside its circle.
bool Clean(const InverseMapping& places, const std::optional<SourcePosition>& place) {
    const PixelSize size = places.SourceSize();
    return place && place->x >= 0.0 && place->x <= size.width - 1.0 && place->y >= 0.0 &&
           place->y <= size.height - 1.0 && places.InCircle(*place);
}

// Indices of lines, both ends within.
struct Bounds {
    std::int64_t left = 0, right = 0, bottom = 0, top = 0;
};

// Of the grid's points that are clean, the rectangle that covers the most pixels: for each row of
// the grid how far every column reaches down, then the widest stretch for each height.
class GridSearch {
  public:
    explicit GridSearch(const MappingMesh& grid)
        : grid_(grid), lowest_(grid.Columns().size(), none) {}

    std::optional<Bounds> Best() {
        for (std::size_t j = 0; j < grid_.Rows().size(); ++j) {
            for (std::size_t i = 0; i < lowest_.size(); ++i) {
                if (!Clean(grid_.Places(), grid_.At(i, j))) {
                    lowest_[i] = none;
                } else if (lowest_[i] == none) {
                    lowest_[i] = static_cast<std::int64_t>(j);
                }
            }
            LookAtRow(static_cast<std::int64_t>(j));
        }
        return best_;
    }

  private:
    static constexpr std::int64_t none = -1;

    void LookAtRow(std::int64_t row) {
        struct Step {
            std::int64_t from;
            std::int64_t lowest;
        };
        std::vector<Step> steps;
        const auto count = static_cast<std::int64_t>(lowest_.size());
        for (std::int64_t i = 0; i <= count; ++i) {
            // Past the last column and where nothing is shown every stretch ends.
            const std::int64_t here = i == count || lowest_[static_cast<std::size_t>(i)] == none
                                          ? row + 1
                                          : lowest_[static_cast<std::size_t>(i)];
            std::int64_t from = i;
            while (!steps.empty() && steps.back().lowest <= here) {
                Offer({steps.back().from, i - 1, steps.back().lowest, row});
                from = steps.back().from;
                steps.pop_back();
            }
            if (here <= row) {
                steps.push_back({from, here});
            }
        }
    }
    void Offer(const Bounds& bounds) {
        const auto span = [](const std::vector<int>& lines, std::int64_t from, std::int64_t to) {
            return static_cast<std::int64_t>(lines[static_cast<std::size_t>(to)]) -
                   lines[static_cast<std::size_t>(from)];
        };
        const std::int64_t pixels = span(grid_.Columns(), bounds.left, bounds.right) *
                                    span(grid_.Rows(), bounds.bottom, bounds.top);
        if (pixels > most_) {
            most_ = pixels;
            best_ = bounds;
        }
    }

    const MappingMesh& grid_;
    std::vector<std::int64_t> lowest_;
    std::int64_t most_ = 0;
    std::optional<Bounds> best_;
};

// Bounds that are indices of the columns and rows that show the photo.
class RimCheck {
  public:
    explicit RimCheck(const InverseMapping& places) : places_(places) {}

    static constexpr std::array<std::int64_t Bounds::*, 4> sides{&Bounds::left, &Bounds::right,
                                                                 &Bounds::bottom, &Bounds::top};

    // Wide steps first; the last round looks at every pixel.
    Bounds Fitted(Bounds bounds, std::int64_t reach) const {
        const std::int64_t coarse = std::max<std::int64_t>(reach / 4, 1);
        bounds = Shrunk(bounds, coarse, coarse);
        for (std::int64_t step = reach; step >= 1; step /= 2) {
            for (const auto side : sides) {
                Bounds wider = bounds;
                wider.*side += Outward(side) * step;
                if (Within(wider) && SideClean(wider, side, coarse)) {
                    bounds = wider;
                }
            }
        }
        return Shrunk(bounds, 1, 1);
    }

  private:
    static std::int64_t Outward(std::int64_t Bounds::*side) {
        return side == &Bounds::left || side == &Bounds::bottom ? -1 : 1;
    }
    bool Within(const Bounds& b) const {
        return b.left >= 0 && b.bottom >= 0 &&
               b.right < static_cast<std::int64_t>(places_.Columns().size()) &&
               b.top < static_cast<std::int64_t>(places_.Rows().size());
    }
    // Each side moves inward by a step until all are clean.
    Bounds Shrunk(Bounds b, std::int64_t step, std::int64_t stride) const {
        bool changed = true;
        while (changed && b.left < b.right && b.bottom < b.top) {
            changed = false;
            for (const auto side : sides) {
                if (!SideClean(b, side, stride)) {
                    b.*side -= Outward(side) * step;
                    changed = true;
                }
            }
        }
        return b;
    }
    bool SideClean(const Bounds& b, std::int64_t Bounds::*side, std::int64_t stride) const {
        const bool upright = side == &Bounds::left || side == &Bounds::right;
        const std::int64_t from = upright ? b.bottom : b.left;
        const std::int64_t to = upright ? b.top : b.right;
        const auto clean = [&](std::int64_t n) {
            const auto i = static_cast<std::size_t>(upright ? b.*side : n);
            const auto j = static_cast<std::size_t>(upright ? n : b.*side);
            return Clean(places_, places_.ReadAt(places_.Columns()[i], places_.Rows()[j]));
        };
        for (std::int64_t n = from; n < to; n += stride) {
            if (!clean(n)) {
                return false;
            }
        }
        return clean(to);
    }

    const InverseMapping& places_;
};

std::int64_t IndexOf(const std::vector<int>& lines, int line) {
    return std::ranges::lower_bound(lines, line) - lines.begin();
}

// The largest rectangle of pixels that are clean, row by row from the bottom: for each column how
// many rows are clean down from here, then the widest stretch for each height.
class CleanSearch {
  public:
    CleanSearch(int width, std::optional<double> shape)
        : shape_(shape), heights_(static_cast<std::size_t>(width) + 1) {}

    void Take(std::span<const std::uint8_t> clean) {
        for (std::size_t x = 0; x < clean.size(); ++x) {
            heights_[x] = clean[x] != 0 ? heights_[x] + 1 : 0;
        }
        steps_.clear();
        for (int x = 0; x < static_cast<int>(heights_.size()); ++x) {
            const int height = heights_[static_cast<std::size_t>(x)];
            int from = x;
            while (!steps_.empty() && steps_.back().height >= height) {
                Offer(steps_.back(), x);
                from = steps_.back().from;
                steps_.pop_back();
            }
            if (height > 0) {
                steps_.push_back({from, height});
            }
        }
        ++row_;
    }
    const CleanCrop& Best() const { return best_; }

  private:
    struct Step {
        int from;
        int height;
    };

    // In the middle of a rectangle that is larger than its shape allows.
    void Offer(const Step& step, int end) {
        CleanCrop crop{step.from, row_ - step.height + 1, end - step.from, step.height};
        if (shape_) {
            const int width = std::min(crop.width, static_cast<int>(crop.height * *shape_));
            const int height = std::min(crop.height, static_cast<int>(crop.width / *shape_));
            crop = {crop.left + (crop.width - width) / 2, crop.bottom + (crop.height - height) / 2,
                    width, height};
        }
        const std::int64_t pixels = std::int64_t{crop.width} * crop.height;
        if (pixels > most_) {
            most_ = pixels;
            best_ = crop;
        }
    }

    std::optional<double> shape_;
    std::vector<int> heights_;  // and a last one of 0
    std::vector<Step> steps_;
    int row_ = 0;
    std::int64_t most_ = 0;
    CleanCrop best_;
};

std::vector<CoverageRows> CoveragesOf(const CleanCropWish& wish) {
    const OutputWish whole = [&wish](const SourceFrame& photo) {
        return OutputFrameOf({}, photo, wish.frame);
    };
    std::vector<CoverageRows> coverages;
    for (const ImageRecord& record : wish.records) {
        const Frames frames = FramesOf(record, wish.photo, whole);
        if (coverages.empty()) {
            coverages.emplace_back(ProjectionFromIndex(record.Projection), record, frames);
        } else {
            coverages.emplace_back(record, frames, coverages.front());
        }
    }
    return coverages;
}

// Leaves what is clean in the coverage's rows, too.
void KeepClean(const CoverageRows& coverage, LineRange rows, std::span<std::uint8_t> clean) {
    const BitmapHandle band = coverage.Rows(rows);
    const auto width = static_cast<std::size_t>(SizeOf(band.get()).width);
    for (int row = 0; row < rows.Count(); ++row) {
        const auto pixels = ScanLine(band.get(), row);
        const auto line = clean.subspan(static_cast<std::size_t>(row) * width, width);
        for (std::size_t x = 0; x < width; ++x) {
            line[x] = line[x] != 0 && IsInside(pixels[3 * x]) ? 1 : 0;
        }
    }
}

}  // namespace

CleanCrop ExactCleanCrop(const CleanCropWish& wish, BlockRunner& runner) {
    constexpr int bandsAtOnce = 8;
    constexpr int rowsAtOnce = bandsAtOnce * CoverageRows::bandRows;
    const std::vector<CoverageRows> coverages = CoveragesOf(wish);
    const auto width = static_cast<std::size_t>(wish.frame.width);
    CleanSearch search(wish.frame.width, wish.shape);
    std::vector<std::uint8_t> clean;
    for (int first = 0; first < wish.frame.height; first += rowsAtOnce) {
        const int count = std::min(rowsAtOnce, wish.frame.height - first);
        clean.assign(static_cast<std::size_t>(count) * width, 1);
        const int bands = (count + CoverageRows::bandRows - 1) / CoverageRows::bandRows;
        runner.Run(bands, [&](int band) {
            const int from = band * CoverageRows::bandRows;
            const int end = std::min(from + CoverageRows::bandRows, count);
            const auto rows =
                std::span(clean).subspan(static_cast<std::size_t>(from) * width,
                                         static_cast<std::size_t>(end - from) * width);
            for (const CoverageRows& coverage : coverages) {
                KeepClean(coverage, {first + from, first + end - 1}, rows);
            }
        });
        for (int row = 0; row < count; ++row) {
            search.Take(std::span(clean).subspan(static_cast<std::size_t>(row) * width, width));
        }
    }
    return search.Best();
}

CleanCrop FindCleanCrop(const MappingMesh& grid) {
    const std::optional<Bounds> found = GridSearch(grid).Best();
    if (!found) {
        return {};
    }
    const std::vector<int>& columns = grid.Places().Columns();
    const std::vector<int>& rows = grid.Places().Rows();
    const auto columnAt = [&](std::int64_t i) {
        return IndexOf(columns, grid.Columns()[static_cast<std::size_t>(i)]);
    };
    const auto rowAt = [&](std::int64_t j) {
        return IndexOf(rows, grid.Rows()[static_cast<std::size_t>(j)]);
    };
    const std::int64_t cell = std::max<std::int64_t>(columnAt(1), 1);
    const Bounds fitted = RimCheck(grid.Places())
                              .Fitted({columnAt(found->left), columnAt(found->right),
                                       rowAt(found->bottom), rowAt(found->top)},
                                      cell);
    if (fitted.left >= fitted.right || fitted.bottom >= fitted.top) {
        return {};
    }
    const int left = columns[static_cast<std::size_t>(fitted.left)];
    const int bottom = rows[static_cast<std::size_t>(fitted.bottom)];
    return {left, bottom, columns[static_cast<std::size_t>(fitted.right)] - left + 1,
            rows[static_cast<std::size_t>(fitted.top)] - bottom + 1};
}

}  // namespace varnel
