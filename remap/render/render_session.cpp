// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render_session.h"

#include <algorithm>
#include <cassert>
#include <exception>

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
    frames_ = FramesOf(image, SourceSize(), context.output);
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
    if (SourceSize().width == ResultSize().width && SourceSize().height == ResultSize().height) {
        std::ranges::copy(ScanLine(source_, row), target.begin());
    } else {
        std::ranges::fill(target, std::uint8_t{0});
    }
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
