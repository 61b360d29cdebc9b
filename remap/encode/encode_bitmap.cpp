// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/encode_bitmap.h"

#include <limits>
#include <new>
#include <type_traits>

#include "remap/encode/linear_light.h"
#include "remap/encode/metadata_writer.h"
#include "remap/encode/output_format.h"
#include "remap/encode/sample_depth.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// The same pixels, where they lie.
Bitmap WithoutMetadata(const Bitmap& bitmap) {
    return {bitmap.Format(), bitmap.Size(), bitmap.SharedPixels()};
}

// With all that the bitmap has.
EncodedBitmap Encoded(const OutputEncoding& encoding, const Bitmap& bitmap,
                      const EncodeOptions& options) {
    try {
        EncodedBitmap file = FormatOf(encoding.type).encode(&bitmap, encoding, options);
        if (file.bytes.size() > options.largest) {
            return {{}, {ReasonCode::FileTooLarge, options.largest}};
        }
        if (file.reason.isEmpty()) {
            file.note = Joined({file.note, LostIn(encoding.type, bitmap)});
        }
        return file;
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    }
}

template <class Sample>
void PutOpaqueRow(const std::uint8_t* from, std::int32_t width, std::uint8_t* to) {
    for (std::int32_t x = 0; x < width; ++x) {
        const auto alpha = SampleAt<Sample>(from, 3);
        for (std::size_t n = 0; n < 3; ++n) {
            const auto sample = SampleAt<Sample>(from, n);
            if constexpr (std::is_same_v<Sample, float>) {
                PutSample(to, n, sample * alpha);
            } else {
                constexpr std::uint32_t full = std::numeric_limits<Sample>::max();
                PutSample(to, n,
                          static_cast<Sample>((std::uint64_t{sample} * alpha + full / 2) / full));
            }
        }
        from += 4 * sizeof(Sample);
        to += 3 * sizeof(Sample);
    }
}

// Black where the bitmap is transparent.
BitmapHandle Opaque(const Bitmap& bitmap) {
    const SampleKind samples = SampleKindOf(bitmap.Format());
    BitmapHandle opaque = NewBitmap(bitmap.Size(), PixelFormatOf(samples, false));
    opaque->metadata = bitmap.metadata;
    for (std::int32_t y = 0; y < bitmap.Size().height; ++y) {
        WithSample(samples, [&](auto kind) {
            PutOpaqueRow<decltype(kind)>(bitmap.ScanLine(y).data(), bitmap.Size().width,
                                         opaque->ScanLine(y).data());
        });
    }
    return opaque;
}

EncodedBitmap EncodedAsItIs(const OutputEncoding& encoding, const Bitmap& bitmap,
                            const EncodeOptions& options);

EncodedBitmap EncodedOpaque(const OutputEncoding& encoding, const Bitmap& bitmap,
                            const EncodeOptions& options) {
    try {
        const BitmapHandle opaque = Opaque(bitmap);
        EncodedBitmap file = EncodedAsItIs(encoding, *opaque, options);
        if (file.reason.isEmpty()) {
            const Reason lost(ReasonCode::TypeHoldsNoTransparency, ToText(encoding.type));
            file.note = Joined({lost, file.note});
        }
        return file;
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    }
}

EncodedBitmap EncodedAsItIs(const OutputEncoding& encoding, const Bitmap& bitmap,
                            const EncodeOptions& options) {
    if (HasAlpha(bitmap.Format()) && !FormatOf(encoding.type).holds.alpha) {
        return EncodedOpaque(encoding, bitmap, options);
    }
    EncodedBitmap whole = Encoded(encoding, bitmap, options);
    const bool isFilesFault = options.sink != nullptr && !options.sink->Error().isEmpty();
    if (whole.reason.isEmpty() || whole.reason.Is(ReasonCode::NotEnoughMemory) || isFilesFault) {
        return whole;
    }
    const struct {
        bool metadata;
        ReasonCode note;
    } attempts[] = {{true, ReasonCode::WithoutProfile}, {false, ReasonCode::WithoutMetadata}};
    for (const auto& attempt : attempts) {
        Bitmap less = WithoutMetadata(bitmap);
        if (attempt.metadata) {
            less.metadata = bitmap.metadata;
            less.metadata.colourProfile.clear();
        }
        EncodedBitmap encoded = Encoded(encoding, less, options);
        if (encoded.reason.isEmpty()) {
            encoded.note = Joined({{attempt.note, whole.reason}, encoded.note});
            return encoded;
        }
    }
    return whole;
}

// Why the file has fewer bits than the picture was wanted with.
Reason ReducedBits(OutputType type, SampleKind wanted, SampleKind samples) {
    return BitsPerSample(samples) >= BitsPerSample(wanted)
               ? Reason()
               : Reason(ReasonCode::TypeHoldsFewerBits, qint64{BitsPerSample(samples)},
                        ToText(type));
}

// Linear light where the type has nothing else.
bool IsToBeLinear(OutputType type, const Bitmap& bitmap) {
    return FormatOf(type).holds.leastBits > 16 && !bitmap.metadata.colourProfile.isEmpty();
}

EncodedBitmap EncodedIn(SampleKind samples, const OutputEncoding& encoding, const Bitmap& bitmap,
                        const EncodeOptions& options) {
    try {
        if (options.rows != nullptr) {
            RowsInSamples rows(*options.rows, bitmap, samples);
            EncodeOptions others = options;
            others.rows = &rows;
            return EncodedAsItIs(encoding, *rows.WithoutPixels(), others);
        }
        SerialRunner serial;
        BlockRunner& runner = options.runner != nullptr ? *options.runner : serial;
        BitmapHandle other = InSamples(bitmap, samples, runner);
        if (IsToBeLinear(encoding.type, bitmap)) {
            other = InLinearLight(*other, runner);
        }
        return EncodedAsItIs(encoding, *other, options);
    } catch (const std::bad_alloc&) {
        return {{}, ReasonCode::NotEnoughMemory};
    }
}

}  // namespace

EncodedBitmap EncodeBitmap(const OutputEncoding& encoding, const Bitmap* bitmap,
                           const EncodeOptions& options) {
    if (bitmap == nullptr) {
        return {{}, ReasonCode::NoPicture};
    }
    const SampleKind own = SampleKindOf(bitmap->Format());
    const SampleKind wanted = SamplesFor(encoding.depth, own);
    const SampleKind samples = SamplesIn(encoding.type, wanted);
    const bool isAsItIs = samples == own && !IsToBeLinear(encoding.type, *bitmap);
    EncodedBitmap file = isAsItIs ? EncodedAsItIs(encoding, *bitmap, options)
                                  : EncodedIn(samples, encoding, *bitmap, options);
    file.samples = samples;
    if (file.reason.isEmpty()) {
        file.note = Joined({ReducedBits(encoding.type, wanted, samples), file.note});
    }
    return file;
}

bool IsWorthPieces(PixelSize size) {
    constexpr std::int64_t fewest = 1'000'000;  // pixels
    return std::int64_t{size.width} * size.height >= fewest;
}

bool IsEncodedByRows(const OutputEncoding& encoding, PixelFormat format, PixelSize size) {
    const OutputFormat& type = FormatOf(encoding.type);
    return type.takesRows && (type.holds.alpha || !HasAlpha(format)) && IsWorthPieces(size);
}

}  // namespace varnel
