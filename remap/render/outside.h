// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What of a result shows nothing of the photo, be it beside the photo or beside its image circle,
// and what stands there. Rows count from the bottom row. Constructors and drawing throw what maps
// throw and std::bad_alloc.
#pragma once

#include <map>
#include <memory>

#include "base/line_range.h"
#include "remap/render/engine/projection_engine.h"

namespace varnel {

// The engine's own picture of a photo that is white: how much of the photo each pixel of the result
// shows.
class CoverageRows {
  public:
    CoverageRows(Projection projection, const ImageRecord& image, const Frames& frames,
                 SampleKind samples = SampleKind::Byte);
    // Of another record of the same photo with the same circle, whose white picture serves both.
    CoverageRows(const ImageRecord& image, const Frames& frames, const CoverageRows& other);
    // As wide as the result, of its rows first to last, without alpha: in blue how much of the
    // photo's image circle a pixel shows, in green how much of the photo, from black to white. May
    // be called by several threads at once.
    BitmapHandle Rows(LineRange rows) const;

    // What is drawn at once where all rows are.
    static constexpr int bandRows = 128;

  private:
    Projection projection_;
    ImageRecord image_;
    Frames frames_;
    std::shared_ptr<const Bitmap> white_;
};

// Whether a coverage of 8 bits is that of a pixel wholly within; blends of white are rounded down.
inline bool IsInside(std::uint8_t coverage) {
    return coverage >= 254;
}

// What stands outside at a pixel of a result without an alpha channel.
PixelColor OutsideColour(const OutsideFill& fill, std::int32_t x, std::int32_t y);

// Fills what a result shows nothing in, as the record says: a colour, or with transparency kept an
// alpha channel, or else a checkerboard in its place. Nothing for black: the outside of a photo
// with alpha is transparent then.
void FillOutside(Projection projection, const ImageRecord& image, RenderSession& run,
                 bool keepsTransparency);

// The rows of another renderer of the same surface with their outside filled; a checkerboard stands
// for what is transparent.
std::unique_ptr<RowRenderer> RowsWithOutside(std::unique_ptr<RowRenderer> rows,
                                             const OutsideFill& fill, CoverageRows coverage,
                                             const RenderSurface& surface);

}  // namespace varnel
