// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "library/caller_image.h"

#include <array>
#include <limits>
#include <utility>

#include "library/guard.h"
#include "remap/image/pixel_access.h"
#include "remap/projection/record_maps.h"

namespace varnel {

namespace {

std::size_t SampleBytes(varnel_sample sample) {
    return sample == VARNEL_UINT8 ? 1 : sample == VARNEL_UINT16 ? 2 : 4;
}

SampleKind KindOf(varnel_sample sample) {
    return sample == VARNEL_UINT8    ? SampleKind::Byte
           : sample == VARNEL_UINT16 ? SampleKind::Word
                                     : SampleKind::Float;
}

[[noreturn]] void Refuse(const char* name, const QString& why) {
    throw CallError(VARNEL_BAD_ARGUMENT, QString::fromLatin1(name) + QStringLiteral(": ") + why);
}

// The row of the bitmap's number, which counts from the bottom.
std::byte* RowOf(const varnel_image& image, int row) {
    return static_cast<std::byte*>(image.pixels) + (image.height - 1 - row) * image.row_bytes;
}

// Calls the function with a null pointer to the type of the samples.
template <class Function>
void WithSample(varnel_sample sample, const Function& function) {
    switch (sample) {
        case VARNEL_UINT8:
            return function(static_cast<std::uint8_t*>(nullptr));
        case VARNEL_UINT16:
            return function(static_cast<std::uint16_t*>(nullptr));
        case VARNEL_FLOAT:
            return function(static_cast<float*>(nullptr));
    }
}

// Grey to three colours and back; alpha, if there is any, is the last sample of both.
template <class Sample>
void Spread(const Sample* grey, Sample* pixels, int width, bool alpha) {
    for (int n = 0; n < width; ++n) {
        pixels[0] = pixels[1] = pixels[2] = grey[0];
        if (alpha) {
            pixels[3] = grey[1];
        }
        grey += alpha ? 2 : 1;
        pixels += alpha ? 4 : 3;
    }
}

template <class Sample>
void Gather(const Sample* pixels, Sample* grey, int width, bool alpha) {
    for (int n = 0; n < width; ++n) {
        grey[0] = pixels[1];
        if (alpha) {
            grey[1] = pixels[3];
        }
        grey += alpha ? 2 : 1;
        pixels += alpha ? 4 : 3;
    }
}

}  // namespace

void Check(const varnel_image* image, const char* name) {
    Given(image, name);
    if (image->pixels == nullptr) {
        Refuse(name, QStringLiteral("it has no pixels"));
    }
    if (image->width < 1 || image->height < 1 || image->width > largestResultSide ||
        image->height > largestResultSide) {
        Refuse(name, QStringLiteral("its sides are not 1 to %1 pixels").arg(largestResultSide));
    }
    if (image->channels < 1 || image->channels > 4) {
        Refuse(name, QStringLiteral("it has not 1 to 4 channels"));
    }
    if (image->sample < VARNEL_UINT8 || image->sample > VARNEL_FLOAT || image->order < VARNEL_RGB ||
        image->order > VARNEL_BGR) {
        Refuse(name, QStringLiteral("its samples or their order mean nothing"));
    }
    const std::size_t sample = SampleBytes(image->sample);
    const std::size_t least = static_cast<std::size_t>(image->width) * image->channels * sample;
    const auto given = static_cast<std::size_t>(image->row_bytes);
    const std::size_t row = image->row_bytes < 0 ? std::size_t{0} - given : given;
    const auto most = static_cast<std::size_t>(std::numeric_limits<std::ptrdiff_t>::max()) /
                      static_cast<std::size_t>(image->height);
    if (row % sample != 0 || (row < least && image->height > 1) || row > most) {
        Refuse(name,
               QStringLiteral("its row_bytes are too few, too many or no multiple of a sample"));
    }
    if (reinterpret_cast<std::uintptr_t>(image->pixels) % sample != 0) {
        Refuse(name, QStringLiteral("its pixels are not aligned for their samples"));
    }
}

bool IsInPlace(const varnel_image& image) {
    return image.channels >= 3;
}

PixelFormat FormatOf(const varnel_image& image) {
    return PixelFormatOf(KindOf(image.sample), image.channels % 2 == 0);
}

Bitmap Over(const varnel_image& image) {
    return {FormatOf(image),
            {image.width, image.height},
            std::shared_ptr<std::byte>(std::shared_ptr<void>(), RowOf(image, 0)),
            -image.row_bytes};
}

BitmapHandle Copied(const varnel_image& image) {
    BitmapHandle copy = NewBitmap({image.width, image.height}, FormatOf(image));
    const bool alpha = image.channels == 2;
    WithSample(image.sample, [&](auto* kind) {
        using Sample = std::remove_pointer_t<decltype(kind)>;
        for (int row = 0; row < image.height; ++row) {
            Spread(reinterpret_cast<const Sample*>(RowOf(image, row)),
                   reinterpret_cast<Sample*>(copy->ScanLine(row).data()), image.width, alpha);
        }
    });
    return copy;
}

void CopyBack(const Bitmap& bitmap, const varnel_image& image) {
    const bool alpha = image.channels == 2;
    WithSample(image.sample, [&](auto* kind) {
        using Sample = std::remove_pointer_t<decltype(kind)>;
        for (int row = 0; row < image.height; ++row) {
            Gather(reinterpret_cast<const Sample*>(bitmap.ScanLine(row).data()),
                   reinterpret_cast<Sample*>(RowOf(image, row)), image.width, alpha);
        }
    });
}

BitmapHandle ByteCopy(const varnel_image& image) {
    const BitmapHandle spread = IsInPlace(image) ? nullptr : Copied(image);
    const Bitmap source = spread ? *spread : Over(image);
    BitmapHandle copy = NewBitmap(source.Size());
    for (int row = 0; row < image.height; ++row) {
        const auto out = copy->ScanLine(row);
        CopyForScreen(&source, row, out.data());
        for (std::size_t n = 0; image.order == VARNEL_RGB && n < out.size(); n += 3) {
            std::swap(out[n], out[n + 2]);
        }
    }
    return copy;
}

}  // namespace varnel
