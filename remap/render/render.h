// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections: from a source bitmap and an image record to ResultBitmap, which has the
// metadata, the colour profile and, where nothing else is wished for, the size of its source.
#pragma once

#include <QString>
#include <functional>

#include "base/block_runner.h"
#include "remap/image/bitmap.h"
#include "remap/projection/record_maps.h"

namespace varnel {

// Thumbnails reads the preview-size source, the other two the full-size one.
enum class SizeKind { Thumbnails, Large, Batch };

QString ToText(SizeKind kind);
// "Thumbnails" and "Batch" by their text; every other text means Large.
SizeKind SizeKindFromText(QStringView text);

// Is notified of how far a conversion is. Calls come on the caller's thread only. What one throws
// ends the conversion and reaches the caller.
class RenderProgress {
  public:
    virtual ~RenderProgress() = default;
    // Once before anything is looked at: hands control to waiting events.
    virtual void HandleEvents() {}
    // Before the loops: shows the bar.
    virtual void Begin(float maximum) = 0;
    // At each column or row: shows the value and hands control to waiting events.
    virtual void Advance(float value) = 0;
    // Between pieces of the work, so often that no piece takes more than some hundredths of a
    // second however large the picture. May hand control to waiting events, too.
    virtual void Pause() {}
    // After the work, also when it failed.
    virtual void End() = 0;
};

// Does nothing.
class SilentProgress : public RenderProgress {
  public:
    void Begin(float /*maximum*/) override {}
    void Advance(float /*value*/) override {}
    void End() override {}
};

// What a conversion works on. smoothPreview is asked again for every column or row, so that a
// preview follows a change made while it is drawn; full-size pictures are always interpolated.
struct RenderContext {
    Bitmaps& bitmaps;
    std::function<bool()> smoothPreview = [] { return false; };
    // Shares the work of full-size pictures out to the cores; without one it is done on the
    // caller's.
    BlockRunner* runner = nullptr;
    // The result's frame; without a wish it is as large as the source.
    OutputWish output{};
    // Whether a result that is transparent outside the photo has an alpha channel (Bgra8), as files
    // may have it. Otherwise a checkerboard is drawn in its place.
    bool keepsTransparency = false;
};

// Replaces ResultBitmap; the record is only read, its own Projection not looked at. Throws
// RunTimeError when a number of the record makes the conversion impossible (the message names it)
// and std::bad_alloc.
void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context);

}  // namespace varnel
