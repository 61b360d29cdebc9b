// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/engine/fine/fine_engine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/projection/circle_rows.h"
#include "remap/projection/straight_rows.h"
#include "remap/render/engine/batches.h"
#include "remap/render/engine/fine/fine_kernel.h"

namespace varnel {

namespace {

constexpr int pieceRows = 32;  // about square, as a turned piece spans least of the photo
// Pixels of the photo that are light at once, at most; for pieces of more than one pixel.
constexpr std::int64_t largestReach = 1 << 16;

// What the kernels of pixels reach.
PixelBox BoxOf(const FineReach& reach) {
    if (reach.IsEmpty()) {
        return {};
    }
    const auto across = FineAxis<float>::Of(reach.scaleX);
    const auto up = FineAxis<float>::Of(reach.scaleY);
    return {across.FirstTap(reach.left), up.FirstTap(reach.bottom),
            across.LastTap(reach.right) + 1 + sparePixels, up.LastTap(reach.top) + 1 + sparePixels};
}

// From colours that are multiplied by alpha.
void TakeAlphaOut(std::span<float> pixels) {
    for (std::size_t n = 0; n < pixels.size(); n += lightNumbers) {
        const float alpha = pixels[n + 3];
        for (std::size_t k = n; k < n + 3; ++k) {
            pixels[k] = alpha > 0.0F ? pixels[k] / alpha : 0.0F;
        }
        pixels[n + 3] = std::clamp(alpha, 0.0F, 1.0F);
    }
}

// Black is what lies beside the photo, or nothing where there is alpha.
void TakeShares(std::span<float> pixels, const float* shares, bool toAlpha) {
    for (std::size_t n = 0; n < pixels.size(); n += lightNumbers) {
        const float share = shares[n / lightNumbers];
        if (share < 1.0F) {
            for (std::size_t k = toAlpha ? 3 : 0; k < (toAlpha ? 4U : 3U); ++k) {
                pixels[n + k] *= share;
            }
        }
    }
}

void PutPixel(const float* levels, const TargetView& target, std::uint8_t* pixel) {
    WithSample(SampleKindOf(target.format), [&](auto kind) {
        using Sample = decltype(kind);
        if (target.only) {
            const auto channel = static_cast<std::size_t>(*target.only);
            return PutSample(pixel, channel, NearestSample<Sample>(levels[channel]));
        }
        for (std::size_t n = 0; n < (HasAlpha(target.format) ? 4U : 3U); ++n) {
            PutSample(pixel, n, NearestSample<Sample>(levels[n]));
        }
    });
}

}  // namespace

std::unique_ptr<PlaceFinder> PlacesFor(const ProjectionMap& map, const ResultGrid& grid,
                                       PixelSize photo, PixelSize result) {
    if (const StraightRows* const rows = map.AsStraightRows()) {
        return StraightRowPlaces(*rows, photo, grid.Across());
    }
    if (const CircleRows* const circles = map.AsCircleRows()) {
        return CircleRowPlaces(*circles, photo, grid.Across());
    }
    return SmoothPlaces(*map.AsSmooth(), photo, result);
}

// Neighbouring pixels of some rows, by their places in a workplace.
struct FineEngine::Piece {
    std::int32_t row = 0;  // of the result
    int rows = 0;
    int x = 0;  // the map's position
    int count = 0;
    std::size_t at = 0;  // the first place; rows of places lie placesStep apart

    std::size_t PlaceOf(int n) const { return at + static_cast<std::size_t>(n * placesStep); }
    // Two halves of it, across its longer side.
    std::pair<Piece, Piece> Halves() const {
        std::pair halves(*this, *this);
        if (count >= rows) {
            halves.first.count = count / 2;
            halves.second.x += count / 2;
            halves.second.count -= count / 2;
            halves.second.at += static_cast<std::size_t>(count / 2);
        } else {
            halves.first.rows = rows / 2;
            halves.second.row += rows / 2;
            halves.second.rows -= rows / 2;
            halves.second.at = PlaceOf(rows / 2);
        }
        return halves;
    }
};

// The memory of one thread.
class FineEngine::Workplace {
  public:
    Workplace() {
        places.Resize(static_cast<std::size_t>(pieceRows * placesStep) + pixelsAhead);
        colours.resize(placesStep * lightNumbers);
    }

    // Of a row of a piece.
    FineRun Run(const Piece& piece, int row) const {
        const std::size_t at = piece.PlaceOf(row);
        return {&places.x[at],      &places.y[at],     &places.scaleX[at],
                &places.scaleY[at], &places.share[at], piece.count};
    }
    // What a piece reads; no area where it shows nothing.
    PixelBox ReachOf(const Piece& piece) const {
        FineReach reach;
        for (int row = 0; row < piece.rows; ++row) {
            ExtendReach(Run(piece, row), reach);
        }
        return BoxOf(reach);
    }

    Places places;
    LightView light;
    std::vector<float> memory;
    std::vector<float> colours;
};

FineEngine::FineEngine(const RenderSurface& surface, const ProjectionMap& map,
                       TransferCurve::Handle curve, std::optional<Channel> only)
    : surface_(surface),
      grid_(map.Lines()),
      lines_(EngineFor(surface, map)->Lines()),
      curve_(std::move(curve)),
      places_(PlacesFor(map, grid_, surface.SourceSize(), surface.ResultSize())),
      source_(SourceView::Of(surface), *curve_),
      target_(TargetView::Of(surface.Result(), only)) {}

std::int32_t FineEngine::RowOf(int line) const {
    const std::int64_t rows = target_.height;
    return static_cast<std::int32_t>(rows * (line - lines_.first) / std::max(lines_.Count(), 1));
}

void FineEngine::Draw(int first, int count) {
    DrawBlocks(surface_, {RowOf(first), RowOf(first + count) - 1}, pieceRows,
               [this](int from, int to) { DrawFewRows(from, to + 1); });
}

void FineEngine::DrawRow(std::int32_t row) {
    DrawFewRows(row, row + 1);
}

// Shown rows together, the others one by one.
void FineEngine::DrawFewRows(std::int32_t first, std::int32_t end) const {
    Workplace work;
    for (std::int32_t row = first; row < end;) {
        const auto isShown = [this](std::int32_t n) {
            return grid_.Row(n).kind == ResultLine::Kind::Shown;
        };
        std::int32_t next = row;
        for (; next < end && isShown(next); ++next) {
            if (!grid_.CoversRows() && !target_.only) {
                surface_.FillRow(next);
            }
        }
        if (next > row) {
            DrawShownRows(row, next, work);
        } else {
            if (!target_.only) {
                grid_.Row(row).kind == ResultLine::Kind::Black ? target_.Blacken(row)
                                                               : surface_.FillRow(row);
            }
            ++next;
        }
        row = next;
    }
}

void FineEngine::DrawShownRows(std::int32_t first, std::int32_t end, Workplace& work) const {
    LineRange up{grid_.Row(first).position, grid_.Row(first).position};
    for (std::int32_t row = first; row < end; ++row) {
        up = {std::min(up.first, grid_.Row(row).position),
              std::max(up.last, grid_.Row(row).position)};
    }
    const LineRange across = grid_.Across();
    const std::unique_ptr<PlaceRows> rows = places_->RowsOf(across, up);
    for (int x = across.first; x <= across.last; x += placesStep) {
        const Piece piece{first, end - first, x, std::min(placesStep, across.last + 1 - x)};
        for (int n = 0; n < piece.rows; ++n) {
            rows->Fill({x, grid_.Row(first + n).position, piece.count, grid_.StepAt(first + n),
                        piece.PlaceOf(n)},
                       work.places);
        }
        DrawPiece(piece, work);
    }
}

void FineEngine::DrawPiece(const Piece& piece, Workplace& work) const {
    const PixelBox reach = work.ReachOf(piece);
    if (reach.Area() > largestReach && (piece.rows > 1 || piece.count > 1)) {
        const auto [first, second] = piece.Halves();
        DrawPiece(first, work);
        DrawPiece(second, work);
        return;
    }
    work.light = source_.Of(reach, work.memory);
    for (int n = 0; n < piece.rows; ++n) {
        WriteRow(piece, n, work);
    }
}

void FineEngine::WriteRow(const Piece& piece, std::int32_t row, Workplace& work) const {
    const FineRun run = work.Run(piece, row);
    SampleLight(work.light, run, work.colours.data());
    const auto pixels =
        std::span(work.colours).first(static_cast<std::size_t>(piece.count) * lightNumbers);
    const bool alpha = HasAlpha(target_.format);
    if (alpha) {
        TakeAlphaOut(pixels);
    }
    CodeLight(*curve_, pixels);
    TakeShares(pixels, run.share, alpha);
    if (grid_.IsPlain() && !target_.only && target_.format == PixelFormat::Bgr8) {
        return StoreBytes(pixels, target_.At(grid_.ColumnOf(piece.x), piece.row + row));
    }
    if (grid_.IsPlain() && !target_.only && target_.format == PixelFormat::Bgr16) {
        return StoreWords(pixels, target_.At(grid_.ColumnOf(piece.x), piece.row + row));
    }
    for (int n = 0; n < piece.count; ++n) {
        if (const std::int32_t column = grid_.ColumnOf(piece.x + n); column >= 0) {
            PutPixel(&pixels[static_cast<std::size_t>(n) * lightNumbers], target_,
                     target_.At(column, piece.row + row));
        }
    }
}

}  // namespace varnel
