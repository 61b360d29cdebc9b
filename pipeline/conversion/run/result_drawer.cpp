// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/run/result_drawer.h"

#include <utility>

#include "remap/encode/encode_bitmap.h"
#include "remap/encode/output_format.h"
#include "remap/encode/sample_depth.h"
#include "remap/image/preview_size.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

BitmapHandle PixelsOf(const PlanarPicture& planar, const Bitmap& photo) {
    BitmapHandle pixels = planar.Pixels();
    pixels->metadata = photo.metadata;
    return pixels;
}

class RowsWithEnd : public DrawnRows {
  public:
    RowsWithEnd(const ImageRecord& record, const LoadedPicture& photo, std::function<void()> atEnd)
        : DrawnRows(ProjectionFromIndex(record.Projection), record, *photo.bitmap,
                    {{photo.arriving, &photo.arriving->rows}, photo.planar}),
          atEnd_(std::move(atEnd)) {}
    void End() override {
        atEnd_();
        DrawnRows::End();
    }

  private:
    std::function<void()> atEnd_;
};

}  // namespace

void HavePixels(LoadedPicture& picture) {
    if (picture.planar) {
        picture.bitmap = PixelsOf(*picture.planar, *picture.bitmap);
        picture.planar.reset();
    }
}

bool ResultDrawer::IsWidened(PixelFormat photo) const {
    const OutputEncoding& encoding = plan_.output.encoding;
    return SampleKindOf(photo) == SampleKind::Byte && encoding.depth != OutputDepth::Own &&
           SamplesIn(encoding.type, SamplesFor(encoding.depth, SampleKind::Byte)) !=
               SampleKind::Byte;
}

void ResultDrawer::TakePhoto(LoadedPicture& photo) {
    DropPhoto();
    const bool isWidened = photo.bitmap && IsWidened(photo.bitmap->Format());
    if (isWidened) {
        HavePixels(photo);
        photo.bitmap = InSamples(*photo.bitmap, SampleKind::Word, sharing_.Cores());
    }
    bitmaps_.FullSourceBitmap = std::move(photo.bitmap);
    planar_ = std::move(photo.planar);
}

void ResultDrawer::DropPhoto() {
    bitmaps_.FullSourceBitmap.reset();
    bitmaps_.PreviewSourceBitmap.reset();
    planar_.reset();
}

bool ResultDrawer::IsDrawnByRows(const ImageRecord& record, const Bitmap& photo) const {
    return byRows_ && !plan_.preview && DrawnRows::CanDraw(record) &&
           IsEncodedByRows(plan_.output.encoding, photo.Format(),
                           ResultSizeOf(record, photo.Size()));
}

std::optional<DrawnResult> ResultDrawer::DrawArriving(const LoadedPicture& photo,
                                                      const ImageRecord& record,
                                                      const std::function<void()>& atEnd) const {
    if (IsWidened(photo.bitmap->Format()) || !IsDrawnByRows(record, *photo.bitmap)) {
        return std::nullopt;
    }
    auto rows = std::make_unique<RowsWithEnd>(record, photo, atEnd);
    BitmapHandle result = rows->WithoutPixels();
    return DrawnResult{std::move(result), std::move(rows)};
}

DrawnResult ResultDrawer::Draw(const ImageRecord& record, BitmapHandle used) {
    const Bitmap& photo = *bitmaps_.FullSourceBitmap;
    const Projection projection = ProjectionFromIndex(record.Projection);
    if (IsDrawnByRows(record, photo)) {
        progress_.HandleEvents();
        auto rows =
            std::make_unique<DrawnRows>(projection, record, photo, PhotoRows{nullptr, planar_});
        BitmapHandle result = rows->WithoutPixels();
        progress_.Begin(static_cast<float>(result->Size().height));
        return {std::move(result), std::move(rows), {}};
    }
    if (planar_) {
        bitmaps_.FullSourceBitmap = PixelsOf(*planar_, photo);
        planar_.reset();
        return Draw(record, std::move(used));
    }
    if (plan_.preview && !bitmaps_.PreviewSourceBitmap) {
        bitmaps_.PreviewSourceBitmap =
            ReducedCopy(&photo, PreviewSize(SizeOf(&photo), *plan_.preview, *plan_.preview));
    }
    bitmaps_.ResultBitmap = std::move(used);
    const PixelSize source = SizeOf(plan_.preview ? bitmaps_.PreviewSourceBitmap.get() : &photo);
    RenderContext context{bitmaps_,
                          [this] { return plan_.smoothPreview; },
                          sharing_.For(ResultSizeOf(record, source)),
                          {},
                          true};
    Render(projection, record, plan_.preview ? SizeKind::Thumbnails : SizeKind::Batch, progress_,
           context);
    return {std::move(bitmaps_.ResultBitmap), nullptr, {}};
}

}  // namespace varnel
