// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/library_samples.h"

#include <array>
#include <new>
#include <optional>

#include "decoder/formats/readers/sane_sample.h"
#include "remap/image/freeimage_bitmap.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

using Places = std::array<std::size_t, 4>;
constexpr Places greyOnly{0, 0, 0, 0};
constexpr Places redFirst{2, 1, 0, 3};
constexpr Places blueFirst{0, 1, 2, 3};

// Samples side by side as the library has them.
struct Layout {
    PixelFormat format;
    std::size_t samples;  // a pixel
    Places places;        // of blue, green, red and alpha among them
};

std::optional<Layout> LayoutOf(FREE_IMAGE_TYPE type) {
    switch (type) {
        case FIT_UINT16:
            return Layout{PixelFormat::Bgr16, 1, greyOnly};
        case FIT_RGB16:
            return Layout{PixelFormat::Bgr16, 3, redFirst};
        case FIT_RGBA16:
            return Layout{PixelFormat::Bgra16, 4, redFirst};
        case FIT_FLOAT:
        case FIT_DOUBLE:
            return Layout{PixelFormat::BgrFloat, 1, greyOnly};
        case FIT_RGBF:
            return Layout{PixelFormat::BgrFloat, 3, redFirst};
        case FIT_RGBAF:
            return Layout{PixelFormat::BgraFloat, 4, redFirst};
        default:
            return std::nullopt;
    }
}

template <class To, class From>
To Sample(From sample) {
    if constexpr (std::is_floating_point_v<From>) {
        return SaneFloat(sample);
    } else {
        return sample;
    }
}

// One row of pixels; To is a sample of the layout's format.
template <class To, class From>
void CopyRow(const BYTE* from, const Layout& layout, std::span<std::uint8_t> row) {
    const std::size_t count = HasAlpha(layout.format) ? 4 : 3;
    for (std::size_t x = 0; x < row.size(); x += BytesPerPixel(layout.format)) {
        for (std::size_t place = 0; place < count; ++place) {
            PutSample(&row[x], place, Sample<To>(SampleAt<From>(from, layout.places[place])));
        }
        from += layout.samples * sizeof(From);
    }
}

template <class To, class From>
BitmapHandle Copied(FIBITMAP* bitmap, const Layout& layout) {
    BitmapHandle result = NewBitmap(SizeOf(bitmap), layout.format);
    for (int y = 0; y < result->Size().height; ++y) {
        CopyRow<To, From>(FreeImage_GetScanLine(bitmap, y), layout, result->ScanLine(y));
    }
    return result;
}

bool HasAnyAlpha(FIBITMAP* bitmap) {
    const PixelSize size = SizeOf(bitmap);
    for (int y = 0; y < size.height; ++y) {
        const BYTE* pixel = FreeImage_GetScanLine(bitmap, y) + FI_RGBA_ALPHA;
        for (int x = 0; x < size.width; ++x, pixel += 4) {
            if (*pixel != 0) {
                return true;
            }
        }
    }
    return false;
}

// Of any picture with a palette or 8 bits a sample.
BitmapHandle WithAlpha8(FIBITMAP* bitmap) {
    if (FreeImage_IsTransparent(bitmap) != TRUE || FreeImage_GetColorType(bitmap) == FIC_CMYK) {
        return nullptr;
    }
    const LibraryBitmap converted(FreeImage_ConvertTo32Bits(bitmap));
    if (!converted) {
        throw std::bad_alloc();
    }
    return HasAnyAlpha(converted.get()) ? Copied<std::uint8_t, std::uint8_t>(
                                              converted.get(), {PixelFormat::Bgra8, 4, blueFirst})
                                        : nullptr;
}

}  // namespace

PixelFormat FormatOfSamples(FIBITMAP* bitmap) {
    const FREE_IMAGE_TYPE type = FreeImage_GetImageType(bitmap);
    if (const std::optional<Layout> layout = LayoutOf(type)) {
        return layout->format;
    }
    return type == FIT_BITMAP && FreeImage_GetBPP(bitmap) == 32 ? PixelFormat::Bgra8
                                                                : PixelFormat::Bgr8;
}

BitmapHandle OwnSamples(FIBITMAP* bitmap) {
    const FREE_IMAGE_TYPE type = FreeImage_GetImageType(bitmap);
    const std::optional<Layout> layout = LayoutOf(type);
    if (!layout) {
        return type == FIT_BITMAP ? WithAlpha8(bitmap) : nullptr;
    }
    if (type == FIT_DOUBLE) {
        return Copied<float, double>(bitmap, *layout);
    }
    return SampleKindOf(layout->format) == SampleKind::Word
               ? Copied<std::uint16_t, std::uint16_t>(bitmap, *layout)
               : Copied<float, float>(bitmap, *layout);
}

}  // namespace varnel
