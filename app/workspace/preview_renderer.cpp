// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/workspace/preview_renderer.h"

#include <new>
#include <utility>

#include "base/error_reason.h"
#include "base/error_text.h"
#include "base/run_time_error.h"
#include "base/shortage.h"
#include "remap/image/preview_size.h"
#include "remap/render/result_size.h"

namespace varnel {

// The photo at hand may have come with it.
void PreviewRenderer::Reduce() {
    Bitmaps& bitmaps = model_.state.bitmaps;
    const Bitmap* const full = bitmaps.FullSourceBitmap.get();
    const PixelSize size = PreviewSize(SizeOf(full), view_.PreviewBox(), view_.PictureRoom());
    const Bitmap* const ready = bitmaps.PreviewSourceBitmap.get();
    if (ready == nullptr || ready->Size().width != size.width ||
        ready->Size().height != size.height) {
        bitmaps.PreviewSourceBitmap.reset();
        bitmaps.PreviewSourceBitmap = ReducedCopy(full, size);
    }
    view_.ShowSource(bitmaps.PreviewSourceBitmap.get());
}

// A preview that is asked for while one is drawn is drawn after it, with what is current then: a
// second one inside the first would free the result that the first still draws.
void PreviewRenderer::Draw(const ImageRecord& image) {
    if (!model_.state.bitmaps.PreviewSourceBitmap) {
        return;
    }
    if (model_.activity.Rendering()) {
        drawAgain_ = !model_.activity.Saving();
        return;
    }
    {
        const auto rendering = model_.activity.Render();
        const auto hourglass = view_.Hourglass();
        DrawNow(image);
    }
    const ImageRecord* const current = model_.list.Current();
    if (std::exchange(drawAgain_, false) && current != nullptr) {
        Draw(*current);
    }
    Q_EMIT model_.activity.Idle();
}

// As large as the reduced photo where the result is as large as the photo.
PixelSize PreviewRenderer::SizeFor(const ImageRecord& image) const {
    const PixelSize full = FullSize();
    const PixelSize result = ResultSizeOf(image, full);
    return result.width == full.width && result.height == full.height
               ? model_.state.bitmaps.PreviewSourceBitmap->Size()
               : PreviewSize(result, view_.PreviewBox(), view_.PictureRoom());
}

PixelSize PreviewRenderer::FullSize() const {
    const Bitmaps& bitmaps = model_.state.bitmaps;
    const auto& photo =
        bitmaps.FullSourceBitmap ? bitmaps.FullSourceBitmap : bitmaps.PreviewSourceBitmap;
    return photo->Size();
}

void PreviewRenderer::DrawNow(const ImageRecord& image) {
    Bitmaps& bitmaps = model_.state.bitmaps;
    const Projection projection = model_.controls.ChosenProjection();
    try {
        ImageRecord drawn = model_.showsWholeFrame ? WithoutCrop(image, FullSize()) : image;
        drawn.Projection = static_cast<std::int16_t>(projection);
        RenderContext context{bitmaps, [this] { return model_.controls.Antialiased(); },
                              &model_.state.pool, AtSize(drawn, SizeFor(drawn))};
        Render(projection, drawn, SizeKind::Thumbnails, view_.Progress(), context);
        view_.NoteDrawn(drawn);
        view_.ShowResult(bitmaps.ResultBitmap.get());
    } catch (const RunTimeError& error) {
        view_.ShowResult(nullptr);
        view_.ShowStatus(ErrorText(ReasonFor(error)));
    } catch (const std::bad_alloc&) {
        view_.ShowResult(nullptr);
        view_.ShowStatus(ShortageText(Scarce::Memory));
    }
}

void PreviewRenderer::Preview() {
    model_.steps.Note(StepKind::Other);  // a change without a name of its own
    const ImageRecord* const image = model_.list.Current();
    if (image != nullptr && model_.controls.AutoPreview()) {
        Draw(*image);
    }
}

void PreviewRenderer::PreviewControls() {
    if (model_.activity.Busy() || model_.list.Current() == nullptr ||
        !model_.controls.AutoPreview()) {
        return;
    }
    ImageRecord trial = *model_.list.Current();
    model_.controls.StoreInto(trial);
    Draw(trial);
}

}  // namespace varnel
