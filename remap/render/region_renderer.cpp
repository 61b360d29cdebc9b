// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/region_renderer.h"

#include <algorithm>
#include <utility>

#include "remap/render/outside.h"
#include "remap/render/outside_rows.h"

namespace varnel {

void RegionRenderer::Start(Projection projection, const ImageRecord& image, const Bitmap* source,
                           const OutputWish& wish) {
    rows_.reset();
    const Frames frames = FramesOf(image, SizeOf(source), wish);
    const PixelSize size = frames.output.size;
    if (result_ &&
        (SizeOf(result_.get()).width != size.width || SizeOf(result_.get()).height != size.height ||
         result_->Format() != source->Format())) {
        result_.reset();
    }
    try {
        if (!result_) {
            result_ = NewBitmap(size, source->Format());
        }
        result_->metadata.colourProfile = source->metadata.colourProfile;
        there_.assign(static_cast<std::size_t>(size.height), false);
        surface_ = std::make_unique<RenderSurface>(source, result_.get(), frames.output, runner_);
        rows_ = RowsOf(projection, image, frames, *surface_);
        if (image.Outside.kind != OutsideFill::Kind::Black) {
            rows_ = RowsWithOutside(
                std::move(rows_), image.Outside,
                CoverageRows(projection, image, frames, CoverageFor(result_->Format())), *surface_);
        }
    } catch (...) {
        Drop();
        throw;
    }
}

void RegionRenderer::Forget() {
    rows_.reset();
    surface_.reset();
    there_.clear();
}

void RegionRenderer::Drop() {
    Forget();
    result_.reset();
}

RowSpan RegionRenderer::DrawSome(RowSpan wanted, std::chrono::microseconds time) {
    if (!Started()) {
        return {};
    }
    wanted.first = std::max(wanted.first, 0);
    wanted.last = std::min(wanted.last, static_cast<int>(there_.size()) - 1);
    const auto end = std::chrono::steady_clock::now() + time;
    const int middle = (wanted.first + wanted.last) / 2;
    RowSpan drawn;
    bool inTime = true;
    const auto draw = [&](int row) {
        if (!inTime || row < wanted.first || row > wanted.last || Has(row)) {
            return;
        }
        rows_->DrawRow(row);
        there_[static_cast<std::size_t>(row)] = true;
        drawn = drawn.last < drawn.first
                    ? RowSpan{row, row}
                    : RowSpan{std::min(drawn.first, row), std::max(drawn.last, row)};
        inTime = std::chrono::steady_clock::now() < end;
    };
    for (int away = 0; inTime && away <= wanted.last - wanted.first + 1; ++away) {
        draw(middle + away);
        draw(middle - away);
    }
    return drawn;
}

}  // namespace varnel
