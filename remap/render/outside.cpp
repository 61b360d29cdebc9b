// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/outside.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "remap/render/engine/batches.h"

namespace varnel {

namespace {

constexpr std::uint8_t white = 255;

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

BitmapHandle WhitePhoto(const SourceFrame& photo) {
    BitmapHandle bitmap = NewBitmap(photo.size);
    for (std::int32_t row = 0; row < photo.size.height; ++row) {
        const CircleColumns circle = CircleColumns::Of(photo, row);
        std::uint8_t* pixel = ScanLine(bitmap.get(), row).data();
        for (std::int32_t column = 0; column < photo.size.width; ++column, pixel += 3) {
            const bool isShown = column >= circle.first && column < circle.end;
            PutColour(pixel, {isShown ? white : std::uint8_t{0}, white, 0, 0}, PixelFormat::Bgr8);
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

// A colour that black from beside the photo was mixed into, as it would be without.
std::uint8_t Unmixed(std::uint8_t value, std::uint8_t share) {
    return share == white || share == 0
               ? value
               : static_cast<std::uint8_t>(std::min(255, (value * 255 + share / 2) / share));
}

std::uint8_t Mixed(std::uint8_t over, std::uint8_t under, std::uint8_t share) {
    return static_cast<std::uint8_t>((over * share + under * (255 - share) + 127) / 255);
}

PixelColor WithoutBlack(const std::uint8_t* pixel, std::uint8_t share) {
    return {Unmixed(pixel[0], share), Unmixed(pixel[1], share), Unmixed(pixel[2], share), 0};
}

// A row of the result, its coverage and where it is.
struct OutsideRow {
    std::uint8_t* pixels;
    const std::uint8_t* coverage;
    std::int32_t width;
    std::int32_t y;
};

void FillRow(const OutsideRow& row, const OutsideFill& fill) {
    for (std::int32_t x = 0; x < row.width; ++x) {
        const std::uint8_t* const coverage = row.coverage + 3 * x;
        const std::uint8_t shown = coverage[0];
        if (IsInside(shown)) {
            continue;
        }
        std::uint8_t* const pixel = row.pixels + 3 * x;
        const PixelColor over = WithoutBlack(pixel, coverage[1]);
        const PixelColor under = OutsideColour(fill, x, row.y);
        PutColour(pixel,
                  {Mixed(over.blue, under.blue, shown), Mixed(over.green, under.green, shown),
                   Mixed(over.red, under.red, shown), 0},
                  PixelFormat::Bgr8);
    }
}

// To a row with alpha, which is not multiplied into the colours.
void TakeAlpha(const OutsideRow& row, std::uint8_t* out) {
    for (std::int32_t x = 0; x < row.width; ++x, out += 4) {
        const std::uint8_t* const coverage = row.coverage + 3 * x;
        const std::uint8_t shown = IsInside(coverage[0]) ? white : coverage[0];
        const std::uint8_t share = shown == white ? white : coverage[1];
        PixelColor colour = shown == 0 ? black : WithoutBlack(row.pixels + 3 * x, share);
        colour.reserved = shown;
        PutColour(out, colour, PixelFormat::Bgra8);
    }
}

// Calls fill for each row of the result.
template <class Fill>
void ForEachRow(const RenderSurface& run, const CoverageRows& coverage, const Fill& fill) {
    const PixelSize size = run.ResultSize();
    DrawBlocks(run, {0, size.height - 1}, CoverageRows::bandRows, [&](int from, int to) {
        const BitmapHandle band = coverage.Rows({from, to});
        for (int y = from; y <= to; ++y) {
            fill(OutsideRow{ScanLine(run.Result(), y).data(), ScanLine(band.get(), y - from).data(),
                            size.width, y});
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
        varnel::FillRow(
            {ScanLine(surface_.Result(), row).data(), ScanLine(Band(first), row - first).data(),
             surface_.ResultSize().width, row},
            fill_);
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

CoverageRows::CoverageRows(Projection projection, const ImageRecord& image, const Frames& frames)
    : projection_(projection),
      image_(InOneColour(image)),
      frames_(frames),
      white_(WhitePhoto(frames.source)) {}

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
    BitmapHandle drawn = NewBitmap(band.output.size);
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
    const CoverageRows coverage(projection, image, run.PhotoAndResult());
    if (!keepsTransparency || image.Outside.kind != OutsideFill::Kind::Transparent) {
        ForEachRow(run, coverage, [&](const OutsideRow& row) { FillRow(row, image.Outside); });
        return;
    }
    BitmapHandle withAlpha = NewBitmap(run.ResultSize(), PixelFormat::Bgra8);
    ForEachRow(run, coverage, [&](const OutsideRow& row) {
        TakeAlpha(row, ScanLine(withAlpha.get(), row.y).data());
    });
    run.Replace(std::move(withAlpha));
}

std::unique_ptr<RowRenderer> RowsWithOutside(std::unique_ptr<RowRenderer> rows,
                                             const OutsideFill& fill, CoverageRows coverage,
                                             const RenderSurface& surface) {
    return std::make_unique<FilledRows>(std::move(rows), fill, std::move(coverage), surface);
}

}  // namespace varnel
