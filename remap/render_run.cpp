// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render_run.h"

#include <cassert>

namespace varnel {

RenderRun::RenderRun(SizeKind kind, RenderProgress& progress, RenderDesk& desk)
    : kind_(kind), progress_(progress), desk_(desk) {
    progress_.HandleEvents();
    Bitmaps& bitmaps = desk.bitmaps;
    source_ = kind == SizeKind::Thumbnails ? bitmaps.PreviewSourceBitmap.get()
                                           : bitmaps.FullSourceBitmap.get();
    assert(source_ != nullptr);
    bitmaps.ResultBitmap.reset();  // first, so that no third bitmap is ever alive
    bitmaps.ResultBitmap = CloneBitmap(source_);
    result_ = bitmaps.ResultBitmap.get();
}

RenderRun::~RenderRun() {
    if (begun_) {
        progress_.End();
    }
}

void RenderRun::Begin(float maximum) {
    begun_ = true;
    progress_.Begin(maximum);
}

void RenderRun::Advance(float value) {
    progress_.Advance(value);
    nearest_ = kind_ == SizeKind::Thumbnails && !desk_.smoothPreview();
}

}  // namespace varnel
