// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A projection of one record from one photo to one result, as everything else sees it: numbers
// worked out once, and the questions of those that draw, measure or steer it. Rows count from the
// bottom row.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

#include "remap/projection/frames.h"

namespace varnel {

class SmoothMap;
class StraightRows;
class CircleRows;

// What becomes of a column or row of the result.
struct ResultLine {
    enum class Kind { Untouched, Black, Shown };
    Kind kind = Kind::Untouched;
    int position = 0;  // of a shown one: what the map is asked for
};

struct ResultLines {
    std::vector<ResultLine> columns, rows;
};

class ProjectionMap {
  public:
    virtual ~ProjectionMap() = default;

    // Where on the photo is read, from the centre of its circle, for the positions of a column and
    // a row that are shown. Throws nothing.
    virtual SourceOffset OffsetAt(int x, int y) const = 0;
    // All columns and rows of the result. Throws OverflowError.
    virtual ResultLines Lines() const = 0;
    // For a progress bar: its maximum, and its value at a column, row or radius of the loop, the
    // last of which is LastLine. Throws OverflowError.
    virtual float ProgressMaximum() const = 0;
    virtual float ProgressAt(int line) const = 0;
    virtual int LastLine() const = 0;

    // What of the result it is for; the rest is black. Only maps that are specified on the photo's
    // frame leave a rest.
    virtual PixelWindow Shown() const { return {}; }

    // How it is drawn: exactly one of these is not null.
    virtual const SmoothMap* AsSmooth() const { return nullptr; }
    virtual const StraightRows* AsStraightRows() const { return nullptr; }
    virtual const CircleRows* AsCircleRows() const { return nullptr; }

  protected:
    ProjectionMap() = default;
    ProjectionMap(const ProjectionMap&) = default;
    ProjectionMap& operator=(const ProjectionMap&) = default;
};

}  // namespace varnel
