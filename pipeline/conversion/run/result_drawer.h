// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From the photo at hand to a result, as a run's plan wants it. Throws as conversions do.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>

#include "pipeline/conversion/conversion_run.h"
#include "remap/render/drawn_rows.h"

namespace varnel {

struct DrawnResult {
    BitmapHandle result;
    std::unique_ptr<DrawnRows> rows{};  // where the result is without pixels
    Reason error{};                     // of the rows
};

// Thrown by the rows of an arriving photo that was not sound in the end.
struct UnsoundPhoto : std::exception {};

class ResultDrawer {
  public:
    // All have to outlive it. The progress is notified as Render does it; of rows it hears the
    // beginning only.
    ResultDrawer(const ConversionPlan& plan, BlockRunner& runner, RenderProgress& progress,
                 bool byRows)
        : plan_(plan), runner_(runner), progress_(progress), byRows_(byRows) {}

    // For deeper files than the photo, what lies between its pixels is worked out with 16 bits.
    BitmapHandle InWorkingDepth(BitmapHandle photo);
    // Of FullSourceBitmap. The bitmap is used again where it fits.
    DrawnResult Draw(Bitmaps& bitmaps, const ImageRecord& record, BitmapHandle used);
    // The same by rows while the photo is arriving, without progress; nothing where the photo's
    // have to be there first. At the end of the rows the function is called, and may throw.
    std::optional<DrawnResult> DrawArriving(const LoadedPicture& photo, const ImageRecord& record,
                                            const std::function<void()>& atEnd) const;

  private:
    bool IsWidened(PixelFormat photo) const;
    bool IsDrawnByRows(const ImageRecord& record, const Bitmap& photo) const;

    const ConversionPlan& plan_;
    BlockRunner& runner_;
    RenderProgress& progress_;
    const bool byRows_;  // where that can be
};

}  // namespace varnel
