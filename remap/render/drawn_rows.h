// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A conversion that is drawn a band of rows at a time, as they are asked for, so that the whole
// result is never in memory. Rows count from the bottom row.
#pragma once

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

#include "base/arriving_rows.h"
#include "remap/image/planar/planar_picture.h"
#include "remap/image/row_source.h"
#include "remap/projection/record_maps.h"

namespace varnel {

// Where a photo's rows are that are not simply in its bitmap, see SourceRows.
struct PhotoRows {
    std::shared_ptr<const ArrivingRows> arriving{};
    std::shared_ptr<const PlanarPicture> planar{};
};

class DrawnRows : public RowSource {
  public:
    // Whether bands can be drawn by themselves at about the cost of the whole: in the classic
    // sampling, where nothing but black stands beside the photo.
    static bool CanDraw(const ImageRecord& image) {
        return image.Sampling == SamplingKind::Classic &&
               image.Outside.kind == OutsideFill::Kind::Black;
    }

    // The photo's pixels are kept for as long as this lives; where they are arriving, rows are
    // drawn as soon as what they need is there. Throws what a conversion throws before its work.
    DrawnRows(Projection projection, const ImageRecord& image, const Bitmap& photo,
              PhotoRows rows = {});

    // What a conversion makes of the photo, but for the pixels, which are not there.
    BitmapHandle WithoutPixels() const;
    // About how many rows are drawn so far: some may be asked for more than once.
    int Done() const { return std::min<int>(done_, frames_.output.size.height); }
    // Throws as the conversion does.
    void WithRows(LineRange rows, const std::function<void(const Bitmap&)>& use) const override;
    void End() override;

  private:
    using Memory = std::vector<std::byte>;
    Memory Take(std::size_t length) const;
    void GiveBack(Memory memory) const;

    Projection projection_;
    ImageRecord image_;
    Bitmap photo_;
    PhotoRows rows_;
    Frames frames_;
    mutable std::atomic<int> done_ = 0;
    mutable std::mutex mutex_;
    mutable std::vector<Memory> free_;  // as many as there are threads that ask
};

}  // namespace varnel
