// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One run of a projection: its source, its result and its progress. Shared by the four renderers.
#pragma once

#include <optional>

#include "base/arriving_rows.h"
#include "remap/image/levels/pixel_levels.h"
#include "remap/image/planar/planar_picture.h"
#include "remap/render/render.h"

namespace varnel {

// What ResultBitmap holds before the first pixel is written: a copy of the source, so that what is
// never written keeps its pixels (black where the result has another frame), or anything, where
// every pixel will be written.
enum class Canvas { CopyOfSource, Anything };

// Where a source's rows are that are not simply in its bitmap.
struct SourceRows {
    const ArrivingRows* arriving = nullptr;  // where they have to be waited for
    const PlanarPicture* planar = nullptr;   // in place of the bitmap's, which is without pixels
};

// What an engine reads from and writes to.
class RenderSurface {
  public:
    // The frame is the result's, for the source.
    RenderSurface(const Bitmap* source, Bitmap* result, const OutputFrame& frame,
                  BlockRunner& runner, const SourceRows& rows = {})
        : source_(source),
          result_(result),
          runner_(&runner),
          rows_(rows),
          keepsSource_(IsOwnFrame(source, frame)) {}

    const Bitmap* Source() const { return source_; }
    const SourceRows& Rows() const { return rows_; }
    Bitmap* Result() const { return result_; }
    BlockRunner& Runner() const { return *runner_; }
    PixelSize SourceSize() const { return SizeOf(source_); }
    PixelSize ResultSize() const { return SizeOf(result_); }
    // True when what is drawn next is read without interpolation.
    bool Nearest() const { return nearest_; }
    // What the result has where nothing is written: the source's pixels, or black where the result
    // has another frame.
    void FillAll() const;
    void FillRow(std::int32_t row) const;
    // Black on what of a row, or of all rows, lies beside the window.
    void BlackenBeside(const PixelWindow& window, std::int32_t row) const;
    void BlackenBeside(const PixelWindow& window) const;
    // To be called often: lets the conversion's caller handle events, who throws to end it.
    void Pause() const {
        if (progress_ != nullptr) {
            progress_->Pause();
        }
    }

  protected:
    explicit RenderSurface(RenderProgress& progress) : progress_(&progress) {}
    static bool IsOwnFrame(const Bitmap* source, const OutputFrame& frame) {
        return frame.IsSpecified() && frame.size.width == SizeOf(source).width &&
               frame.size.height == SizeOf(source).height;
    }
    RenderProgress* progress_ = nullptr;
    const Bitmap* source_ = nullptr;
    Bitmap* result_ = nullptr;
    BlockRunner* runner_ = nullptr;
    SourceRows rows_;
    bool nearest_ = false;
    bool keepsSource_ = false;
};

class RenderSession : public RenderSurface {
  public:
    // Lets waiting events run once, picks the source by the kind, which must be there, and makes
    // ResultBitmap anew with the source's metadata and colour profile, in the size that the context
    // wishes for the record, or the source's. Throws std::bad_alloc.
    RenderSession(SizeKind kind, RenderProgress& progress, RenderContext& context,
                  Canvas canvas = Canvas::CopyOfSource, const ImageRecord& image = {});
    ~RenderSession();
    RenderSession(const RenderSession&) = delete;
    RenderSession& operator=(const RenderSession&) = delete;

    SizeKind Kind() const { return kind_; }
    // For the record that the session was made with.
    const Frames& PhotoAndResult() const { return frames_; }
    // Another bitmap in the place of ResultBitmap; it gets its metadata.
    void Replace(BitmapHandle result);
    // Shows the progress, which is taken away again at the end of the run.
    void Begin(float maximum);
    // Shows the value, lets waiting events run and asks anew how to read.
    void Advance(float value);
    // Off the result nothing is written.
    void Write(std::int32_t x, std::int32_t y, const PixelLevels& levels) const {
        SetLevels(result_, x, y, levels, only_);
    }
    // What is written from now on: a channel, or all.
    void WriteOnly(std::optional<Channel> only) { only_ = only; }

  private:
    SizeKind kind_;
    Frames frames_;
    RenderContext& workspace_;
    SerialRunner serial_;
    int exceptionsBefore_;
    bool begun_ = false;
    std::optional<Channel> only_;
};

}  // namespace varnel
