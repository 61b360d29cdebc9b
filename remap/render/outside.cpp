// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/outside.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/render/engine/batches.h"
#include "remap/render/engine/fine/fine_coverage.h"
#include "remap/render/outside_rows.h"

namespace varnel {

namespace {

// The columns of a row that lie in the photo's image circle; all of them without a circle.
struct CircleColumns {
    std::int32_t first = 0;
    std::int32_t end = 0;

    static CircleColumns Of(const SourceFrame& photo, std::int32_t row) {
        if (!(photo.ratio > 0.0F)) {
            return {0, photo.size.width};
        }
        const PixelPosition centre = photo.Centre();
        const double radius = static_cast<double>(photo.CircleRadius());
        const double up = row - static_cast<double>(centre.y);
        const double square = radius * radius - up * up;
        if (square < 0.0) {
            return {};
        }
        const double half = std::floor(std::sqrt(square));
        const auto within = [&](double column) {
            return static_cast<std::int32_t>(std::clamp<double>(column, 0.0, photo.size.width));
        };
        return {within(centre.x - half), within(centre.x + half + 1.0)};
    }
};

BitmapHandle WhitePhoto(const SourceFrame& photo, SampleKind samples) {
    constexpr PixelColor inCircle{255, 255, 0, 0};
    constexpr PixelColor beside{0, 255, 0, 0};
    const PixelFormat format = PixelFormatOf(samples, false);
    BitmapHandle bitmap = NewBitmap(photo.size, format);
    for (std::int32_t row = 0; row < photo.size.height; ++row) {
        const CircleColumns circle = CircleColumns::Of(photo, row);
        std::uint8_t* pixel = ScanLine(bitmap.get(), row).data();
        for (std::int32_t column = 0; column < photo.size.width; ++column) {
            const bool isShown = column >= circle.first && column < circle.end;
            PutColour(pixel, isShown ? inCircle : beside, format);
            pixel += PixelStep(format);
        }
    }
    return bitmap;
}

// Of a lens that sees colours at different places that of green stands for all.
ImageRecord InOneColour(ImageRecord image) {
    if (image.Lens &&
        (image.Lens->ShiftOf(LensColour::Red) || image.Lens->ShiftOf(LensColour::Blue))) {
        SampledLens lens = *image.Lens;
        lens.red.reset();
        lens.blue.reset();
        image.Lens = std::make_shared<const SampledLens>(std::move(lens));
    }
    return image;
}

// Calls fill for each row of the result.
template <class Fill>
void ForEachRow(const RenderSurface& run, const CoverageRows& coverage, const Fill& fill) {
    const PixelSize size = run.ResultSize();
    DrawBlocks(run, {0, size.height - 1}, CoverageRows::bandRows, [&](int from, int to) {
        const BitmapHandle band = coverage.Rows({from, to});
        for (int y = from; y <= to; ++y) {
            fill(OutsideRow(*run.Result(), y, *band, y - from));
        }
    });
}

class FilledRows : public RowRenderer {
  public:
    FilledRows(std::unique_ptr<RowRenderer> rows, const OutsideFill& fill, CoverageRows coverage,
               const RenderSurface& surface)
        : rows_(std::move(rows)), fill_(fill), coverage_(std::move(coverage)), surface_(surface) {}

    void DrawRow(std::int32_t row) override {
        rows_->DrawRow(row);
        const int first = row / bandRows * bandRows;
        OutsideRow(*surface_.Result(), row, *Band(first), row - first).Fill(fill_);
    }

  private:
    static constexpr int bandRows = 32;
    static constexpr std::size_t mostBands = 4;  // rows are drawn from the middle to both sides

    const Bitmap* Band(int first) {
        BitmapHandle& band = bands_[first];
        if (!band) {
            const int last = std::min(first + bandRows, surface_.ResultSize().height) - 1;
            band = coverage_.Rows({first, last});
        }
        const Bitmap* const found = band.get();
        if (bands_.size() > mostBands) {
            std::erase_if(bands_, [first](const auto& entry) { return entry.first != first; });
        }
        return found;
    }

    std::unique_ptr<RowRenderer> rows_;
    const OutsideFill fill_;
    const CoverageRows coverage_;
    const RenderSurface& surface_;
    std::map<int, BitmapHandle> bands_;  // by their first rows
};

}  // namespace

PixelColor OutsideColour(const OutsideFill& fill, std::int32_t x, std::int32_t y) {
    if (fill.kind != OutsideFill::Kind::Transparent) {
        return {fill.blue, fill.green, fill.red, 0};
    }
    constexpr std::int32_t square = 8;  // pixels
    const std::uint8_t grey = (x / square + y / square) % 2 == 0 ? 204 : 153;
    return {grey, grey, grey, 0};
}

CoverageRows::CoverageRows(Projection projection, const ImageRecord& image, const Frames& frames,
                           SampleKind samples)
    : projection_(projection),
      image_(InOneColour(image)),
      frames_(frames),
      white_(WhitePhoto(frames.source, samples)) {}

CoverageRows::CoverageRows(const ImageRecord& image, const Frames& frames,
                           const CoverageRows& other)
    : projection_(ProjectionFromIndex(image.Projection)),
      image_(InOneColour(image)),
      frames_(frames),
      white_(other.white_) {}

// A crop of the result.
BitmapHandle CoverageRows::Rows(LineRange rows) const {
    Frames band = frames_;
    band.output.whole = frames_.output.Whole();
    band.output.corner.y += rows.first;
    band.output.size.height = rows.Count();
    if (image_.Sampling == SamplingKind::Fine) {
        return FineCoverage(projection_, image_, band, white_->Format());
    }
    BitmapHandle drawn = NewBitmap(band.output.size, white_->Format());
    SerialRunner runner;
    const RenderSurface surface(white_.get(), drawn.get(), band.output, runner);
    const auto renderer = RowsOf(projection_, image_, band, surface);
    for (int row = 0; row < rows.Count(); ++row) {
        renderer->DrawRow(row);
    }
    return drawn;
}

void FillOutside(Projection projection, const ImageRecord& image, RenderSession& run,
                 bool keepsTransparency) {
    if (image.Outside.kind == OutsideFill::Kind::Black) {
        return;
    }
    const CoverageRows coverage(projection, image, run.PhotoAndResult(),
                                CoverageFor(run.Result()->Format()));
    if (!keepsTransparency || image.Outside.kind != OutsideFill::Kind::Transparent) {
        ForEachRow(run, coverage, [&](const OutsideRow& row) { row.Fill(image.Outside); });
        return;
    }
    const PixelFormat format = run.Result()->Format();
    if (HasAlpha(format)) {
        ForEachRow(run, coverage, [&](const OutsideRow& row) { row.TakeAlpha(*run.Result()); });
        return;
    }
    BitmapHandle withAlpha = NewBitmap(run.ResultSize(), PixelFormatOf(SampleKindOf(format), true));
    ForEachRow(run, coverage, [&](const OutsideRow& row) { row.TakeAlpha(*withAlpha); });
    run.Replace(std::move(withAlpha));
}

std::unique_ptr<RowRenderer> RowsWithOutside(std::unique_ptr<RowRenderer> rows,
                                             const OutsideFill& fill, CoverageRows coverage,
                                             const RenderSurface& surface) {
    return std::make_unique<FilledRows>(std::move(rows), fill, std::move(coverage), surface);
}

}  // namespace varnel
