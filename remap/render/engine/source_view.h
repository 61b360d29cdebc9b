// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Source and result as raw rows: the only views that the engines have of pixels. Rows count from
// the bottom. Throws nothing.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

#include "remap/image/bitmap.h"
#include "remap/image/levels/pixel_levels.h"
#include "remap/render/render_session.h"

namespace varnel {

struct SourceView {
    const std::uint8_t* bits = nullptr;  // row 0, blue of column 0
    std::ptrdiff_t pitch = 0;            // bytes from row to row
    std::int32_t width = 0;
    std::int32_t height = 0;
    PixelFormat format = PixelFormat::Bgr8;
    const ArrivingRows* arriving = nullptr;  // where rows have to be waited for
    const PlanarPicture* planar = nullptr;   // has the pixels, if it is there

    static SourceView Of(const RenderSurface& surface) {
        const Bitmap* const bitmap = surface.Source();
        const PixelSize size = bitmap->Size();
        return {bitmap->Bits(),   bitmap->Pitch(),         size.width,           size.height,
                bitmap->Format(), surface.Rows().arriving, surface.Rows().planar};
    }
    // Before rows from this one on are read.
    void WaitFor(std::int32_t row) const {
        if (arriving != nullptr) {
            arriving->WaitFor(row);
        }
    }

    // x and y are whole; no light off the picture.
    PixelLevels operator()(double x, double y) const {
        if (!(x >= 0.0 && x < width && y >= 0.0 && y < height)) {
            return noLight;
        }
        WaitFor(static_cast<std::int32_t>(y));
        if (planar != nullptr) {
            const PixelColor colour =
                planar->At(static_cast<std::int32_t>(x), static_cast<std::int32_t>(y));
            return LevelsAt(&colour.blue, PixelFormat::Bgr8);
        }
        return LevelsAt(bits + static_cast<std::ptrdiff_t>(y) * pitch +
                            static_cast<std::ptrdiff_t>(x) * PixelStep(format),
                        format);
    }
};

// Where the pixels of a run go: pixel 0 and the step in bytes to the next, to the left where it is
// negative.
struct SpanTarget {
    std::uint8_t* first = nullptr;
    std::ptrdiff_t stride = 0;
    PixelFormat format = PixelFormat::Bgr8;
    std::optional<Channel> only{};  // the one that is written; none: all

    std::uint8_t* At(std::ptrdiff_t n) const { return first + n * stride; }
    // The same from its pixel n on.
    SpanTarget Further(std::ptrdiff_t n) const { return {At(n), stride, format, only}; }
    void Put(std::ptrdiff_t n, const PixelLevels& levels) const {
        PutLevels(At(n), levels, format, only);
    }
    // The pixels begin to end - 1, if there are any.
    void Blacken(std::ptrdiff_t begin, std::ptrdiff_t end) const {
        const std::ptrdiff_t step = PixelStep(format);
        if (only || (stride != step && stride != -step)) {
            for (std::ptrdiff_t n = begin; n < end; ++n) {
                Put(n, noLight);
            }
        } else if (begin < end) {
            std::memset(stride > 0 ? At(begin) : At(end - 1), 0,
                        static_cast<std::size_t>((end - begin) * step));
        }
    }
};

// The picture that runs are written into, of the source's format.
struct TargetView {
    std::uint8_t* bits = nullptr;
    std::ptrdiff_t pitch = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    PixelFormat format = PixelFormat::Bgr8;
    std::optional<Channel> only{};

    static TargetView Of(Bitmap* bitmap, std::optional<Channel> only = {}) {
        const PixelSize size = bitmap->Size();
        return {bitmap->Bits(), bitmap->Pitch(), size.width, size.height, bitmap->Format(), only};
    }
    std::uint8_t* At(std::int32_t x, std::int32_t y) const {
        return bits + y * pitch + x * PixelStep(format);
    }
    // From (x, y) on to the right or, with direction -1, to the left.
    SpanTarget From(std::int32_t x, std::int32_t y, int direction = 1) const {
        return {At(x, y), direction * PixelStep(format), format, only};
    }
    void Blacken(std::int32_t y) const {
        std::memset(At(0, y), 0, static_cast<std::size_t>(width) * BytesPerPixel(format));
    }
};

}  // namespace varnel
