// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The caller's pictures through the engines.

#include <memory>
#include <utility>

#include "library/caller_image.h"
#include "library/guard.h"
#include "library/lens.h"
#include "library/pool.h"
#include "remap/render/render.h"

namespace varnel {

namespace {

void CheckResult(const varnel_image& source, const varnel_image& result, PixelSize size) {
    if (result.width != size.width || result.height != size.height) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QStringLiteral("result: the view makes %1 x %2 pixels, not %3 x %4")
                            .arg(size.width)
                            .arg(size.height)
                            .arg(result.width)
                            .arg(result.height));
    }
    if (result.channels != source.channels || result.sample != source.sample ||
        result.order != source.order) {
        throw CallError(
            VARNEL_BAD_ARGUMENT,
            QStringLiteral("result: its channels, samples or order are not the source's"));
    }
    if (result.pixels == source.pixels) {
        throw CallError(VARNEL_BAD_ARGUMENT, QStringLiteral("result: it is the source itself"));
    }
}

// The engines' first colour is blue. Where the caller's is red, whatever tells them apart changes
// places.
void SwapColours(ImageRecord& image) {
    std::swap(image.Outside.red, image.Outside.blue);
    if (image.Lens && (image.Lens->red || image.Lens->blue)) {
        auto lens = std::make_shared<SampledLens>(*image.Lens);
        std::swap(lens->red, lens->blue);
        image.Lens = LensReference(std::move(lens));
    }
}

BitmapHandle BitmapOf(const varnel_image& image, bool reads) {
    if (IsInPlace(image)) {
        return std::make_unique<Bitmap>(Over(image));
    }
    return reads ? Copied(image) : NewBitmap({image.width, image.height}, FormatOf(image));
}

// A picture that is transparent outside has alpha whatever its source has: the result has not.
void CheckOutside(const ImageRecord& image, const varnel_image& source) {
    if (image.Outside.kind == OutsideFill::Kind::Transparent && source.channels % 2 != 0) {
        throw CallError(VARNEL_BAD_ARGUMENT,
                        QStringLiteral("source: what is transparent outside needs alpha"));
    }
}

void Remap(const varnel_lens& lens, const varnel_view& view, const varnel_image& source,
           const varnel_image& result, varnel_pool* pool) {
    ImageRecord image = RecordOf(lens, source.width, source.height, &view);
    CheckResult(source, result, ResultSizeOf(image, {source.width, source.height}));
    CheckOutside(image, source);
    if (source.order == VARNEL_RGB) {
        SwapColours(image);
    }
    Bitmaps bitmaps{BitmapOf(source, true), nullptr, BitmapOf(result, false)};
    const Bitmap* const canvas = bitmaps.ResultBitmap.get();
    SilentProgress progress;
    std::optional<CoreTaken> core;
    if (pool != nullptr) {
        core.emplace(pool->runner);
    }
    RenderContext context{.bitmaps = bitmaps,
                          .runner = pool != nullptr ? &pool->runner : nullptr,
                          .keepsTransparency = true};
    Render(ProjectionOf(view), image, SizeKind::Large, progress, context);
    if (bitmaps.ResultBitmap.get() != canvas) {
        throw CallError(VARNEL_INTERNAL, QStringLiteral("the result is not where it belongs"));
    }
    if (!IsInPlace(result)) {
        CopyBack(*canvas, result);
    }
}

}  // namespace

}  // namespace varnel

varnel_status varnel_remap(const varnel_lens* lens, const varnel_view* view,
                           const varnel_image* source, const varnel_image* result,
                           varnel_pool* pool, varnel_error** error) {
    return varnel::Guarded(error, [&] {
        varnel::Check(source, "source");
        varnel::Check(result, "result");
        varnel::Remap(*varnel::Given(lens, "lens"), *varnel::Given(view, "view"), *source, *result,
                      pool);
    });
}
