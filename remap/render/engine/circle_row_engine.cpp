// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include <cmath>

#include "remap/projection/last_writer.h"
#include "remap/render/engine/batches.h"
#include "remap/render/engine/circle_prefetch.h"
#include "remap/render/engine/control_points.h"
#include "remap/render/engine/engine.h"

namespace varnel {

namespace {

class CircleRowEngine : public Engine {
  public:
    CircleRowEngine(const RenderSurface& surface, const CircleRows& map)
        : surface_(surface),
          map_(map),
          owners_(map, surface.ResultSize().height),
          pieceColumns_(SampleKindOf(surface.Source()->Format()) == SampleKind::Byte ? 256 : 128),
          columns_(Columns(map.Circle(), surface.ResultSize().width)),
          source_(SourceView::Of(surface)),
          target_(TargetView::Of(surface.Result())),
          prefetch_(map, source_, cosines_, sines_) {}

    LineRange Lines() const override { return map_.Radii(); }
    void FillTheRest() override {
        DrawBlocks(surface_, {0, target_.height - 1}, 64, [this](int from, int to) {
            for (std::int32_t row = from; row <= to; ++row) {
                FillUnownedRow(row);
            }
        });
    }
    void DrawRow(std::int32_t row) override { DrawRows({row, row}); }
    void DrawRows(LineRange rows) override {
        std::vector<RadiusRow> radii;
        for (std::int32_t row = rows.first; row <= rows.last; ++row) {
            if (!FillUnownedRow(row)) {
                PrepareColumns(owners_.Radius(row));
                radii.push_back({owners_.Radius(row), row});
            }
        }
        DrawRadii(radii);
    }

    // Radii r to r + count - 1.
    void Draw(int r, int count) override {
        PrepareColumns(r);
        DrawBlocks(surface_, {r, r + count - 1}, radiiOfATile, [this](int from, int to) {
            std::vector<RadiusRow> radii;
            for (int n = from; n <= to; ++n) {
                const std::int32_t row = map_.Blank(n) ? -1 : map_.OutputRow(n);
                if (owners_.Has(row, n)) {
                    radii.push_back({n, row});
                }
            }
            DrawRadii(radii);
        });
    }

  private:
    // Those that the picture has, in whole pieces from the centre.
    LineRange Columns(const ImageCircleGeometry& circle, std::int32_t width) const {
        const LineRange shown = OnPicture(circle.outputCentre.x, width, circle.lastColumn);
        return {shown.first / pieceColumns_ * pieceColumns_, shown.last};
    }
    // False for the row of a radius.
    bool FillUnownedRow(std::int32_t row) const {
        if (owners_.Black(row)) {
            target_.Blacken(row);
            return true;
        }
        if (owners_.Nobody(row)) {
            surface_.FillRow(row);
            return true;
        }
        return false;
    }

    void DrawRadii(std::span<const RadiusRow> radii) const {
        for (; radii.size() > radiiOfATile; radii = radii.subspan(radiiOfATile)) {
            DrawTiles(radii.first(radiiOfATile));
        }
        DrawTiles(radii);
    }
    // Narrow pieces of neighbouring radii follow each other: a whole turn around the centre reads
    // thousands of source rows, a piece a small patch.
    void DrawTiles(std::span<const RadiusRow> radii) const {
        for (std::size_t n = 0; n < radii.size(); ++n) {
            AskFor(radii, n, columns_.first);
        }
        for (int first = columns_.first; first <= columns_.last; first += pieceColumns_) {
            for (std::size_t n = 0; n < radii.size(); ++n) {
                AskFor(radii, n, first + pieceColumns_);
                DrawPiece(radii[n], first, PieceEnd(first));
            }
        }
    }
    int PieceEnd(int first) const { return std::min(first + pieceColumns_, columns_.last + 1); }
    void AskFor(std::span<const RadiusRow> radii, std::size_t n, int first) const {
        if (first <= columns_.last) {
            prefetch_.Ask(radii, n, static_cast<std::size_t>(first - columns_.first),
                          static_cast<std::size_t>(PieceEnd(first) - columns_.first));
        }
    }

    // The angles of the columns, as soon as a radius within the circle needs them.
    void PrepareColumns(int first) {
        if (!cosines_.empty() || map_.Blank(first)) {
            return;
        }
        for (int column = columns_.first; column <= columns_.last; ++column) {
            cosines_.push_back(std::cos(map_.Angle(column)));
            sines_.push_back(std::sin(map_.Angle(column)));
        }
        // Whole vectors are read at the end, too.
        cosines_.resize(cosines_.size() + 8);
        sines_.resize(sines_.size() + 8);
    }

    // Columns first to end - 1 of both halves of the row that a radius goes to.
    void DrawPiece(const RadiusRow& line, int first, int end) const {
        const std::int32_t centre = map_.Circle().outputCentre.x;
        CircleSpan span{source_,
                        0,
                        0,
                        static_cast<double>(map_.Circle().sourceCentre.x),
                        static_cast<double>(map_.Circle().sourceCentre.y),
                        1.0,
                        map_.SourceRadius(line.radius),
                        cosines_.data(),
                        sines_.data(),
                        surface_.Nearest() ? RowReading::Nearest : RowReading::Vectors};
        // The left half comes last and so has the centre column.
        for (const int sign : {1, -1}) {
            const Clip clip = Clip::Of(centre, sign, end, target_.width);
            const int begin = std::max(clip.begin, first);
            if (begin < clip.end) {
                span.sign = sign;
                span.first = begin - columns_.first;
                span.count = clip.end - begin;
                SampleCircleSpan(span, target_.From(centre + sign * begin, line.row, sign));
            }
        }
    }

    static constexpr int radiiOfATile = 32;

    const RenderSurface& surface_;
    const CircleRows& map_;
    LastWriters owners_;
    int pieceColumns_;   // so that what they read stays in the cache
    LineRange columns_;  // distances from the centre
    SourceView source_;
    TargetView target_;
    std::vector<double> cosines_, sines_;  // from the first of the columns on
    CirclePrefetch prefetch_;
};

}  // namespace

std::unique_ptr<Engine> CircleRowEngineFor(const RenderSurface& surface, const CircleRows& map) {
    return std::make_unique<CircleRowEngine>(surface, map);
}

}  // namespace varnel
