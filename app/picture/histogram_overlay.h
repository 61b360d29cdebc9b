// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The levels of a picture in a corner of it, with marks where light or dark is cut off. Throws
// nothing but for want of memory.
#pragma once

#include <array>

#include "app/picture/picture_overlay.h"
#include "remap/image/bitmap.h"
#include "state/records/outside_fill.h"

namespace varnel {

// Pixels that are what stands outside are none of the photo and do not count.
struct Histogram {
    std::array<std::array<int, 256>, 3> counts{};  // of blue, green and red
    int pixels = 0;
    int cutDark = 0;   // pixels with a channel at 0
    int cutLight = 0;  // and at 255

    static Histogram Of(const Bitmap& picture, const OutsideFill& outside = {});
    // Shares of a thousandth and more are marked.
    bool IsDarkCut() const { return cutDark * 1000LL >= pixels && cutDark > 0; }
    bool IsLightCut() const { return cutLight * 1000LL >= pixels && cutLight > 0; }
};

class HistogramOverlay : public PictureOverlay {
  public:
    void Show(const Histogram& histogram) { histogram_ = histogram; }
    void Paint(QPainter& painter, const QTransform& toWidget, QSize picture) override;

  private:
    void PaintChannel(QPainter& painter, std::size_t channel, const QRect& place) const;

    Histogram histogram_;
};

}  // namespace varnel
