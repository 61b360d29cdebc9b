// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/render_session.h"

#include <algorithm>
#include <cassert>
#include <exception>

namespace varnel {

namespace {

// A bitmap that will be overwritten is taken again where it fits: its memory is there already.
void TakeCanvas(const Bitmap* source, BitmapHandle& result) {
    const PixelSize size = SizeOf(source);
    if (result &&
        (SizeOf(result.get()).width != size.width || SizeOf(result.get()).height != size.height)) {
        result.reset();
    }
    if (!result) {
        result = NewBitmap(size);
    }
    result->metadata = source->metadata;
}

}  // namespace

RenderSession::RenderSession(SizeKind kind, RenderProgress& progress, RenderContext& context,
                             Canvas canvas)
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
    if (canvas == Canvas::Anything) {
        TakeCanvas(source_, bitmaps.ResultBitmap);
    } else {
        bitmaps.ResultBitmap.reset();  // first, so that no third bitmap is ever alive
        bitmaps.ResultBitmap = CloneBitmap(source_);
    }
    result_ = bitmaps.ResultBitmap.get();
}

// After a failure the result is the plain copy of the source, whatever was drawn before.
RenderSession::~RenderSession() {
    if (std::uncaught_exceptions() > exceptionsBefore_ && result_ != nullptr) {
        CopySource();
    }
    if (begun_) {
        progress_->End();
    }
}

void RenderSurface::CopySource() const {
    for (std::int32_t row = 0; row < Size().height; ++row) {
        CopySourceRow(row);
    }
}

void RenderSurface::CopySourceRow(std::int32_t row) const {
    std::ranges::copy(ScanLine(source_, row), ScanLine(result_, row).begin());
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
