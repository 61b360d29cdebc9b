// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/area_average.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "remap/image/levels/byte_coding.h"

namespace varnel {

namespace {

constexpr int blockRows = 16;

// The pixels first to last of the source in shares that sum up to 1: all alike but the two ends.
struct Cover {
    int first = 0;
    int last = 0;
    float firstShare = 1.0F;
    float share = 0.0F;  // of each between the ends
    float lastShare = 0.0F;

    float ShareOf(int n) const { return n == first ? firstShare : n == last ? lastShare : share; }
};

Cover CoverOf(const AreaAxis& axis, int n, int size) {
    const double from = std::clamp(axis.start + n * axis.step, 0.0, size - 1e-6);
    const double to = std::clamp(axis.start + (n + 1) * axis.step, from + 1e-6, size * 1.0);
    Cover cover;
    cover.first = static_cast<int>(from);
    cover.last = std::max(cover.first, static_cast<int>(std::ceil(to)) - 1);
    if (cover.last > cover.first) {
        const double length = to - from;
        cover.firstShare = static_cast<float>((cover.first + 1 - from) / length);
        cover.share = static_cast<float>(1.0 / length);
        cover.lastShare = static_cast<float>((to - cover.last) / length);
    }
    return cover;
}

// Adds a row's samples to the sums, each in the share. The whole inner loop is the compiler's.
template <class Sample>
void AddRow(const std::uint8_t* row, float share, std::vector<float>& sums) {
    const std::size_t count = sums.size();
    float* const out = sums.data();
    for (std::size_t n = 0; n < count; ++n) {
        out[n] += share * static_cast<float>(SampleAt<Sample>(row, n));
    }
}

// The mean of a sample's column; the samples of a pixel are that many.
float MeanOf(const Cover& column, const float* from, std::size_t samples) {
    if (column.last == column.first) {
        return *from;
    }
    float between = 0.0F;
    const float* at = from;
    for (int n = column.first + 1; n < column.last; ++n) {
        between += *(at += samples);
    }
    return *from * column.firstShare + between * column.share + at[samples] * column.lastShare;
}

template <class Sample>
Sample RoundedTo(float mean) {
    if constexpr (std::is_same_v<Sample, float>) {
        return mean;
    } else {
        const float above = mean + 0.5F;  // what is cut off of it is the mean rounded
        return static_cast<Sample>(above);
    }
}

class Averaging {
  public:
    Averaging(const Bitmap& source, const AreaPlace& place, Bitmap& target)
        : source_(source), place_(place), target_(target) {
        for (int x = 0; x < target.Size().width; ++x) {
            columns_.push_back(CoverOf(place.across, x, source.Size().width));
        }
    }

    void DrawRows(int first, int end) const {
        WithSample(SampleKindOf(source_.Format()), [&](auto kind) {
            using Sample = decltype(kind);
            std::vector<float> sums(source_.ScanLine(0).size() / sizeof(Sample));
            for (int y = first; y < end; ++y) {
                std::ranges::fill(sums, 0.0F);
                const Cover rows = CoverOf(place_.up, y, source_.Size().height);
                for (int row = rows.first; row <= rows.last; ++row) {
                    AddRow<Sample>(source_.ScanLine(row).data(), rows.ShareOf(row), sums);
                }
                FillRow<Sample>(sums, target_.ScanLine(y).data());
            }
        });
    }

  private:
    // To samples of the source's kind or bytes.
    template <class Sample>
    void FillRow(const std::vector<float>& sums, std::uint8_t* out) const {
        if (target_.Format() == source_.Format()) {
            FillRow<Sample>(sums, out, SampleCount(source_),
                            [](float mean) { return RoundedTo<Sample>(mean); });
        } else {
            const ByteCoding coding(source_);
            FillRow<std::uint8_t>(sums, out, 3, [&](float mean) { return coding.ByteOf(mean); });
        }
    }
    // The first samples of each pixel, as many as are wanted.
    template <class Sample, class Code>
    void FillRow(const std::vector<float>& sums, std::uint8_t* out, std::size_t wanted,
                 const Code& code) const {
        const std::size_t samples = SampleCount(source_);
        for (const Cover& column : columns_) {
            const float* const from = &sums[static_cast<std::size_t>(column.first) * samples];
            for (std::size_t n = 0; n < wanted; ++n, out += sizeof(Sample)) {
                PutSample<Sample>(out, 0, code(MeanOf(column, from + n, samples)));
            }
        }
    }
    static std::size_t SampleCount(const Bitmap& bitmap) {
        return HasAlpha(bitmap.Format()) ? 4 : 3;
    }

    const Bitmap& source_;
    const AreaPlace place_;
    Bitmap& target_;
    std::vector<Cover> columns_;
};

}  // namespace

void AverageAreas(const Bitmap& source, const AreaPlace& place, Bitmap& target,
                  BlockRunner& runner) {
    const Averaging averaging(source, place, target);
    const int height = target.Size().height;
    runner.Run((height + blockRows - 1) / blockRows, [&](int block) {
        averaging.DrawRows(block * blockRows, std::min((block + 1) * blockRows, height));
    });
}

}  // namespace varnel
