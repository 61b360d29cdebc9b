// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From a map to the tables of a row of cells. Rows count from the top row. Throws std::bad_alloc.
#pragma once

#include "film/planes/cells.h"
#include "film/planes/node_lattice.h"

namespace varnel {

class BandMaker {
  public:
    // The nodes are looked at where the places are smooth only. All have to outlive it.
    BandMaker(const MapPlaces& places, const NodeLattice& nodes, const FrameFormat& source,
              const FrameFormat& result);

    int Bands() const { return (resultSize_.height + cellSide - 1) / cellSide; }
    // Several threads may make different bands at the same time.
    void Make(int cellRow, Band& band) const;

  private:
    struct Grid {
        bool isThere = false;
        SampleGrid samples;
        PixelSize source;  // of the plane
    };
    // Samples of brightness of the result.
    struct CellArea {
        int column = 0, row = 0;  // of cells
        int left = 0, top = 0;
        int right = 0, bottom = 0;  // ends
    };
    struct CellPlaces;
    enum class Way { Blank, Polynomial, ByInside, OneByOne };

    CellArea AreaOf(int column, int row) const;
    Way WayOf(const CellArea& area) const;
    bool IsSmooth(const NodeLattice::Patch& patch) const;
    void TakePolynomial(const CellArea& area, Band& band) const;
    void TakePlaces(const CellPlaces& places, Band& band) const;
    void TakePlaces(const Grid& grid, const CellPlaces& places, BandOfGrid& band) const;
    // All of the cells' places so far have been taken.
    static std::uint32_t NextBlock(const Band& band);
    // False, and nothing is taken, where it is no whole cell inside of the source's planes.
    bool TakeCircleCell(const CellArea& area, Band& band) const;
    void FillExactly(const CellArea& area, CellPlaces& places) const;
    void FillByInside(const CellArea& area, CellPlaces& places) const;

    const MapPlaces& places_;
    const NodeLattice& nodes_;
    PixelSize sourceSize_, resultSize_;
    double limit_;  // of fourth differences, pixels
    std::array<Grid, grids> grids_;
};

}  // namespace varnel
