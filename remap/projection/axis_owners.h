// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Loops whose positions are written elsewhere than they are counted. With a translation that ends
// on half a pixel two positions can meet on one output pixel and others stay unwritten; of two the
// later one stays.
#pragma once

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <vector>

#include "base/line_range.h"

namespace varnel {

// One axis of the loops: positions from shift - before to shift + after, which are written at the
// centre less the shift.
struct LoopAxis {
    double shift = 0.0;  // pixels
    std::int32_t centre = 0;
    std::int32_t before = 0, after = 0;
    const char* shiftName = "";  // for errors

    // Throws OverflowError.
    LineRange All() const;
};

// Where the positions of one axis go, and which is the last to write each place.
class AxisOwners {
  public:
    // Places outside 0 to size - 1 are dropped. Throws OverflowError.
    AxisOwners(const LoopAxis& axis, std::int32_t size);
    // What of the loop is worth a run.
    LineRange Run() const { return run_; }
    int First() const { return run_.first; }
    int Last() const { return run_.last; }
    std::int32_t Place(int n) const { return places_[static_cast<std::size_t>(n - run_.first)]; }
    // Position n is the one that stays at its place.
    bool Stays(int n) const {
        const std::int32_t place = Place(n);
        return place >= 0 && place < static_cast<std::int32_t>(owners_.size()) &&
               owners_[static_cast<std::size_t>(place)] == n;
    }
    // The position that stays at a place; nothing where none is written.
    std::optional<int> OwnerOf(std::int32_t place) const {
        const int owner = owners_[static_cast<std::size_t>(place)];
        return owner == none ? std::nullopt : std::optional(owner);
    }
    // Neighbouring positions go to neighbouring places.
    bool Contiguous() const { return contiguous_; }
    bool Covers() const { return std::ranges::find(owners_, none) == owners_.end(); }

  private:
    static constexpr int none = std::numeric_limits<int>::min();
    LineRange run_;
    std::vector<std::int32_t> places_;
    std::vector<int> owners_;
    bool contiguous_ = true;
};

}  // namespace varnel
