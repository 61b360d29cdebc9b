// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// From the photo at hand to a result, as a run's plan wants it. Throws as conversions do.
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>

#include "pipeline/conversion/conversion_run.h"
#include "pipeline/conversion/run/sharing.h"
#include "remap/render/drawn_rows.h"

namespace varnel {

struct DrawnResult {
    BitmapHandle result;
    std::unique_ptr<DrawnRows> rows{};  // where the result is without pixels
    Reason error{};                     // of the rows
    QByteArray digest{};                // of its file once that is written
};

// A planar picture's pixels in its bitmap.
void HavePixels(LoadedPicture& picture);

// Thrown by the rows of an arriving photo that was not sound in the end.
struct UnsoundPhoto : std::exception {};

class ResultDrawer {
  public:
    // All have to outlive it. The progress is notified as Render does it; of rows it hears the
    // beginning only.
    ResultDrawer(const ConversionPlan& plan, const Sharing& sharing, RenderProgress& progress,
                 bool byRows)
        : plan_(plan), sharing_(sharing), progress_(progress), byRows_(byRows) {}

    // The photo that is drawn from now on, whose pixels are taken from it. For deeper files than
    // it, what lies between its pixels is worked out with 16 bits.
    void TakePhoto(LoadedPicture& photo);
    void DropPhoto();
    // The bitmap is used again where it fits.
    DrawnResult Draw(const ImageRecord& record, BitmapHandle used);
    // The same by rows while the photo is arriving, without progress; nothing where the photo's
    // have to be there first. At the end of the rows the function is called, and may throw.
    std::optional<DrawnResult> DrawArriving(const LoadedPicture& photo, const ImageRecord& record,
                                            const std::function<void()>& atEnd) const;

  private:
    bool IsWidened(PixelFormat photo) const;
    bool IsDrawnByRows(const ImageRecord& record, const Bitmap& photo) const;

    const ConversionPlan& plan_;
    const Sharing sharing_;
    RenderProgress& progress_;
    const bool byRows_;  // where that can be
    Bitmaps bitmaps_;
    std::shared_ptr<const PlanarPicture> planar_;  // in place of the photo's pixels
};

}  // namespace varnel
