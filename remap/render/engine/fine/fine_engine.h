// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The engine that reads by a wider kernel in light: for every map, in pieces of the result. What a
// pixel shows does not depend on the pieces, nor on which rows are drawn. Where a pixel shows the
// photo only partly, at its border or at the edge of a map, its samples are that share of the
// photo's, and in pictures with alpha its alpha is. Constructing and drawing throw std::bad_alloc,
// OverflowError, and what the surface's Pause throws.
#pragma once

#include "remap/image/levels/transfer_curve.h"
#include "remap/render/engine/engine.h"
#include "remap/render/engine/fine/light_band.h"
#include "remap/render/engine/fine/places.h"
#include "remap/render/engine/fine/result_grid.h"

namespace varnel {

// By the kind of the map, which has to outlive it.
std::unique_ptr<PlaceFinder> PlacesFor(const ProjectionMap& map, const ResultGrid& grid,
                                       PixelSize photo, PixelSize result);

class FineEngine : public Engine {
  public:
    // Surface and map have to outlive the engine. With a channel nothing else is written.
    FineEngine(const RenderSurface& surface, const ProjectionMap& map, TransferCurve::Handle curve,
               std::optional<Channel> only = {});

    // Those of the map, each of which stands for as many rows of the result.
    LineRange Lines() const override { return lines_; }
    void Draw(int first, int count) override;
    void DrawRow(std::int32_t row) override;

  private:
    struct Piece;
    class Workplace;

    std::int32_t RowOf(int line) const;
    void DrawFewRows(std::int32_t first, std::int32_t end) const;
    void DrawShownRows(std::int32_t first, std::int32_t end, Workplace& work) const;
    void DrawPiece(const Piece& piece, Workplace& work) const;
    void WriteRow(const Piece& piece, std::int32_t row, Workplace& work) const;

    const RenderSurface& surface_;
    ResultGrid grid_;
    LineRange lines_;
    TransferCurve::Handle curve_;
    std::unique_ptr<PlaceFinder> places_;
    LightSource source_;
    TargetView target_;
};

}  // namespace varnel
