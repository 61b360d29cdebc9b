// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The conversions one output row at a time, for callers that need some rows only and not all at
// once.
#pragma once

#include <memory>

#include "base/line_range.h"
#include "remap/render/render_session.h"

namespace varnel {

class RowRenderer {
  public:
    virtual ~RowRenderer() = default;
    // Every pixel of the row (of the result, from 0 at the bottom), exactly as the whole
    // conversion leaves it, and no other row.
    virtual void DrawRow(std::int32_t row) = 0;
    // The same for each of the rows.
    virtual void DrawRows(LineRange rows) {
        for (std::int32_t row = rows.first; row <= rows.last; ++row) {
            DrawRow(row);
        }
    }
};

// By the projection's kind; the record's own Projection is not looked at. The surface has to
// outlive the drawing; its bitmaps have the sizes of the frames. Throws as the conversion does.
std::unique_ptr<RowRenderer> RowsOf(Projection projection, const ImageRecord& image,
                                    const Frames& frames, const RenderSurface& surface);

}  // namespace varnel
