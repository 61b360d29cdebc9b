// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pieces of a photo as light. Beside the photo its border is continued. Throws std::bad_alloc.
#pragma once

#include <array>
#include <vector>

#include "remap/image/levels/transfer_curve.h"
#include "remap/render/engine/fine/fine_kernels.h"
#include "remap/render/engine/source_view.h"

namespace varnel {

// Columns left to right - 1 and rows bottom to top - 1; may reach beyond the photo.
struct PixelBox {
    std::int32_t left = 0;
    std::int32_t bottom = 0;
    std::int32_t right = 0;
    std::int32_t top = 0;

    std::int64_t Area() const {
        return (static_cast<std::int64_t>(right) - left) *
               (static_cast<std::int64_t>(top) - bottom);
    }
};

class LightSource {
  public:
    // Both have to outlive it.
    LightSource(const SourceView& photo, const TransferCurve& curve);

    PixelSize Size() const { return {photo_.width, photo_.height}; }
    const TransferCurve& Curve() const { return curve_; }
    // The box as light; its numbers go into the memory given.
    LightView Of(const PixelBox& box, std::vector<float>& memory) const;

  private:
    template <class Sample>
    float LightOf(Sample sample) const;
    template <class Sample>
    void PutPixel(const std::uint8_t* pixel, float* out) const;
    template <class Sample>
    void PutRow(const PixelBox& box, const std::uint8_t* row, float* out) const;

    SourceView photo_;
    const TransferCurve& curve_;
    std::array<float, 256> ofBytes_;
};

}  // namespace varnel
