// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A full-size conversion of which only the rows that are looked at are drawn, a few at a time. Rows
// count from the bottom row.
#pragma once

#include <chrono>
#include <memory>
#include <vector>

#include "remap/render/row_renderer.h"

namespace varnel {

// Rows first to last; none when last is less.
struct RowSpan {
    int first = 0;
    int last = -1;
};

class RegionRenderer {
  public:
    // Forgets what was drawn and begins anew; the bitmap is taken again where it fits. The source
    // has to stay until Drop or the next Start. Without a wish the result is as large as the
    // source. Throws as the conversion does and is dropped then.
    void Start(Projection projection, const ImageRecord& image, const Bitmap* source,
               const OutputWish& wish = {});
    // Forgets what was drawn and keeps the memory.
    void Forget();
    // Forgets all and gives the memory back.
    void Drop();
    bool Started() const { return rows_ != nullptr; }

    // Draws rows of the span, the nearest to its middle first, until all are there or the time is
    // up; at least one. Returns what was drawn: everything new is in there, and what else is in
    // there was there before.
    RowSpan DrawSome(RowSpan wanted, std::chrono::microseconds time);
    bool Has(int row) const {
        return row >= 0 && row < static_cast<int>(there_.size()) &&
               there_[static_cast<std::size_t>(row)];
    }
    // Null when nothing is under way. Rows that are not there hold anything.
    const Bitmap* Result() const { return Started() ? result_.get() : nullptr; }

  private:
    SerialRunner runner_;
    BitmapHandle result_;
    std::unique_ptr<RenderSurface> surface_;
    std::unique_ptr<RowRenderer> rows_;
    std::vector<bool> there_;
};

}  // namespace varnel
