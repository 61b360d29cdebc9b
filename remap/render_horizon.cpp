// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>
#include <cstring>
#include <limits>

#include "remap/engine/batches.h"
#include "remap/engine/node_lines.h"
#include "remap/horizon_map.h"
#include "remap/record_maps.h"

namespace varnel {

namespace {

// What an output row holds in the end, found out by writing whole rows in the order of the loops:
// first black on both sides of the centre row, then the radii upward, each of which writes one row,
// or beyond the circle black on both sides again.
class RowOwners {
  public:
    RowOwners(const HorizonMap& map, std::int32_t height)
        : owners_(static_cast<std::size_t>(height), nobody) {
        const CircleRows& rows = map.Rows();
        for (int r = 1; r <= rows.lastRow; ++r) {
            Blacken(rows.centreY, r);
        }
        for (int r = map.FirstRadius(); r <= rows.lastRow; ++r) {
            if (map.Blank(r)) {
                Blacken(rows.centreY, r);
            } else {
                Take(map.OutputRow(r), r);
            }
        }
    }
    bool Has(std::int32_t row, int r) const { return Exists(row) && At(row) == r; }
    bool Black(std::int32_t row) const { return At(row) == black_; }
    bool Nobody(std::int32_t row) const { return At(row) == nobody; }

  private:
    static constexpr int nobody = std::numeric_limits<int>::min();
    static constexpr int black_ = nobody + 1;

    bool Exists(std::int32_t row) const {
        return row >= 0 && row < static_cast<std::int32_t>(owners_.size());
    }
    int At(std::int32_t row) const { return owners_[static_cast<std::size_t>(row)]; }
    void Take(std::int32_t row, int owner) {
        if (Exists(row)) {
            owners_[static_cast<std::size_t>(row)] = owner;
        }
    }
    void Blacken(std::int32_t centre, int r) {
        Take(centre + r, black_);
        Take(centre - r, black_);
    }
    std::vector<int> owners_;
};

class HorizonEngine {
  public:
    HorizonEngine(const RenderRun& run, const HorizonMap& map)
        : run_(run),
          map_(map),
          owners_(map, run.Size().height),
          source_(SourceView::Of(run.Source())),
          target_(TargetView::Of(run.Result())) {}

    void FillUnownedRows() const {
        const std::size_t bytes = static_cast<std::size_t>(target_.width) * 3;
        for (std::int32_t row = 0; row < target_.height; ++row) {
            if (owners_.Black(row)) {
                std::memset(target_.At(0, row), 0, bytes);
            } else if (owners_.Nobody(row)) {
                std::memcpy(target_.At(0, row), source_.bits + row * source_.pitch, bytes);
            }
        }
    }

    // Radii r to r + count - 1. Within a block narrow pieces of neighbouring radii follow each
    // other: a whole turn around the centre reads thousands of source rows, a piece a small patch.
    void Draw(int r, int count) {
        PrepareColumns(r);
        DrawBlocks(run_, r, count, 16, [this](int from, int to) {
            const int columns = map_.Rows().lastColumn + 1;
            for (int first = 0; first < columns; first += pieceColumns) {
                const int pieceEnd = std::min(first + pieceColumns, columns);
                for (int n = from; n <= to; ++n) {
                    DrawPiece(n, first, pieceEnd);
                }
            }
        });
    }

  private:
    static constexpr int pieceColumns = 256;

    // The angles of the columns, as soon as a radius within the circle needs them.
    void PrepareColumns(int first) {
        if (!cosines_.empty() || map_.Blank(first)) {
            return;
        }
        for (int column = 0; column <= map_.Rows().lastColumn; ++column) {
            cosines_.push_back(std::cos(map_.Angle(column)));
            sines_.push_back(std::sin(map_.Angle(column)));
        }
        // Whole vectors are read at the end, too.
        cosines_.resize(cosines_.size() + 8);
        sines_.resize(sines_.size() + 8);
    }

    // Columns first to end - 1 of both halves of the row that a radius goes to.
    void DrawPiece(int r, int first, int end) const {
        const std::int32_t row = map_.Blank(r) ? -1 : map_.OutputRow(r);
        if (!owners_.Has(row, r)) {
            return;
        }
        const std::int32_t centre = map_.Rows().centreX;
        CircleSpan span{source_,
                        0,
                        0,
                        static_cast<double>(centre),
                        static_cast<double>(map_.Rows().centreY),
                        1.0,
                        static_cast<double>(r),
                        cosines_.data(),
                        sines_.data(),
                        run_.Nearest()};
        // The left half comes last and so has the centre column.
        for (const int sign : {1, -1}) {
            const Clip clip = Clip::Of(centre, sign, end, target_.width);
            span.sign = sign;
            span.first = std::max(clip.begin, first);
            span.count = clip.end - span.first;
            SampleCircleSpan(span, {target_.At(centre + sign * span.first, row), 3 * sign});
        }
    }

    const RenderRun& run_;
    const HorizonMap& map_;
    RowOwners owners_;
    SourceView source_;
    TargetView target_;
    std::vector<double> cosines_, sines_;
};

}  // namespace

void RenderHorizon(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                   RenderDesk& desk) {
    RenderRun run(kind, progress, desk, Canvas::Anything);
    const HorizonMap map(CircleViewOf(image, run.Size()));
    const CircleRows& rows = map.Rows();
    run.Begin(static_cast<float>(std::fabs(rows.shiftY) + 2.0 * rows.upperHalf));
    HorizonEngine engine(run, map);
    engine.FillUnownedRows();
    DrawLines(
        run, map.FirstRadius(), rows.lastRow, [&](int r, int count) { engine.Draw(r, count); },
        [&](int r) { run.Advance(static_cast<float>(r + rows.upperHalf)); });
}

}  // namespace varnel
