// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/image/sampling.h"

#include <array>

#include "remap/image/interpolation.h"

namespace varnel {

namespace {

// Reads through the library; x and y are whole.
struct LibraryReader {
    const Bitmap* bitmap;
    PixelLevels operator()(double x, double y) const {
        const std::optional<std::int32_t> column = PixelIndex(x);
        const std::optional<std::int32_t> row = PixelIndex(y);
        return column && row ? GetLevels(bitmap, *column, *row) : noLight;
    }
};

PixelLevels Rounded(const PixelLevels& blend, PixelFormat format) {
    std::array<std::uint8_t, BytesPerPixel(PixelFormat::BgraFloat)> pixel{};
    PutLevels(pixel.data(), blend, format);
    return LevelsAt(pixel.data(), format);
}

}  // namespace

PixelLevels SampleNearest(const Bitmap* bitmap, double x, double y) {
    return LibraryReader{bitmap}(Round(x), Round(y));
}

PixelLevels SampleLinearX(const Bitmap* bitmap, double x, double y) {
    return Rounded(BlendLinearX(LibraryReader{bitmap}, x, y), bitmap->Format());
}

PixelLevels SampleBilinear(const Bitmap* bitmap, double x, double y) {
    return Rounded(BlendBilinear(LibraryReader{bitmap}, x, y), bitmap->Format());
}

}  // namespace varnel
