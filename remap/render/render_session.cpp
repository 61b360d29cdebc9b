// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render_session.h"

#include <algorithm>
#include <cassert>
#include <exception>
#include <utility>

#include "remap/image/preview_size.h"

namespace varnel {

namespace {

// A bitmap that will be overwritten is taken again where it fits: its memory is there already.
void TakeCanvas(const Bitmap* source, PixelSize size, BitmapHandle& result) {
    if (result && (result->Size().width != size.width || result->Size().height != size.height ||
                   result->Format() != source->Format())) {
        result.reset();
    }
    if (!result) {
        result = NewBitmap(size, source->Format());
    }
    result->metadata = source->metadata;
}

// A preview's source is smaller than the photo, and so is its result, whatever the record's size.
OutputWish WishFor(SizeKind kind, const ImageRecord& image, const RenderContext& context) {
    if (context.output || kind != SizeKind::Thumbnails) {
        return context.output;
    }
    return [&image](const SourceFrame& photo) {
        const PixelSize result = ResultSizeOf(image, photo.size);
        return OutputFrameOf(image, photo, FittedSize(result, photo.size));
    };
}

}  // namespace

RenderSession::RenderSession(SizeKind kind, RenderProgress& progress, RenderContext& context,
                             Canvas canvas, const ImageRecord& image)
    : RenderSurface(progress),
      kind_(kind),
      workspace_(context),
      exceptionsBefore_(std::uncaught_exceptions()) {
    runner_ = context.runner != nullptr ? context.runner : &serial_;
    progress_->HandleEvents();
    Bitmaps& bitmaps = context.bitmaps;
    source_ = kind == SizeKind::Thumbnails ? bitmaps.PreviewSourceBitmap.get()
                                           : bitmaps.FullSourceBitmap.get();
    assert(source_ != nullptr);
    frames_ = FramesOf(image, SourceSize(), WishFor(kind, image, context));
    keepsSource_ = IsOwnFrame(source_, frames_.output);
    if (canvas == Canvas::CopyOfSource) {
        bitmaps.ResultBitmap.reset();  // first, so that no third bitmap is ever alive
    }
    TakeCanvas(source_, frames_.output.size, bitmaps.ResultBitmap);
    result_ = bitmaps.ResultBitmap.get();
    if (canvas == Canvas::CopyOfSource) {
        FillAll();
    }
}

// After a failure the result is as if nothing had been drawn.
RenderSession::~RenderSession() {
    if (std::uncaught_exceptions() > exceptionsBefore_ && result_ != nullptr) {
        FillAll();
    }
    if (begun_) {
        progress_->End();
    }
}

void RenderSurface::FillAll() const {
    for (std::int32_t row = 0; row < ResultSize().height; ++row) {
        FillRow(row);
    }
}

void RenderSurface::FillRow(std::int32_t row) const {
    const auto target = ScanLine(result_, row);
    if (keepsSource_) {
        if (rows_.arriving != nullptr) {
            rows_.arriving->WaitFor(row);
        }
        if (rows_.planar != nullptr) {
            rows_.planar->CopyRow(row, target.data());
        } else {
            std::ranges::copy(ScanLine(source_, row), target.begin());
        }
    } else {
        std::ranges::fill(target, std::uint8_t{0});
    }
}

void RenderSurface::BlackenBeside(const PixelWindow& window, std::int32_t row) const {
    const PixelSize size = ResultSize();
    const std::int32_t left = window.HoldsRow(row) ? std::clamp(window.left, 0, size.width) : 0;
    const std::int32_t right =
        window.HoldsRow(row) ? std::clamp(window.right, left, size.width) : left;
    const auto pixels = ScanLine(result_, row);
    const std::size_t step = BytesPerPixel(result_->Format());
    std::ranges::fill(pixels.first(static_cast<std::size_t>(left) * step), std::uint8_t{0});
    std::ranges::fill(pixels.subspan(static_cast<std::size_t>(right) * step), std::uint8_t{0});
}

void RenderSurface::BlackenBeside(const PixelWindow& window) const {
    if (window.Covers(ResultSize())) {
        return;
    }
    for (std::int32_t row = 0; row < ResultSize().height; ++row) {
        BlackenBeside(window, row);
    }
}

void RenderSession::Replace(BitmapHandle result) {
    result->metadata = std::move(result_->metadata);
    workspace_.bitmaps.ResultBitmap = std::move(result);
    result_ = workspace_.bitmaps.ResultBitmap.get();
}

void RenderSession::Begin(float maximum) {
    begun_ = true;
    progress_->Begin(maximum);
}

void RenderSession::Advance(float value) {
    progress_->Advance(value);
    nearest_ = kind_ == SizeKind::Thumbnails && !workspace_.smoothPreview();
}

}  // namespace varnel
