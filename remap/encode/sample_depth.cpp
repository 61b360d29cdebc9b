// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/sample_depth.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "remap/image/levels/srgb_curve.h"
#include "remap/image/levels/transfer_curve.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

constexpr int rowsPerBlock = 32;

// No number becomes 0.
float WithinRange(float sample) {
    return sample > 0.0F ? std::min(sample, 1.0F) : 0.0F;
}

template <class Whole>
constexpr float largest = static_cast<float>(std::numeric_limits<Whole>::max());

template <class Whole>
Whole Rounded(float sample) {
    const float above = sample * largest<Whole> + 0.5F;
    return static_cast<Whole>(above);
}

}  // namespace

// A sample of one kind as one of another.
class SampleConversion {
  public:
    // linear: floating-point samples are linear light.
    SampleConversion(SampleKind from, SampleKind to, bool linear) : linear_(linear) {
        if (linear && to == SampleKind::Float && from != to) {
            table_.resize(std::size_t{1} << BitsPerSample(from));
            const auto top = static_cast<float>(table_.size() - 1);
            for (std::size_t n = 0; n < table_.size(); ++n) {
                table_[n] = SrgbLight(static_cast<float>(n) / top);
            }
        }
    }

    // Alpha has no curve.
    template <class From, class To>
    To Of(From sample, bool isAlpha) const {
        if constexpr (std::is_same_v<From, To>) {
            return sample;
        } else if constexpr (std::is_same_v<From, float>) {
            const float within = WithinRange(sample);
            return Rounded<To>(linear_ && !isAlpha ? SrgbCoded(within) : within);
        } else if constexpr (std::is_same_v<To, float>) {
            return linear_ && !isAlpha ? table_[sample]
                                       : static_cast<float>(sample) / largest<From>;
        } else if constexpr (std::is_same_v<To, std::uint8_t>) {
            return ByteOf(sample);
        } else {
            return FromByte<To>(sample);
        }
    }

  private:
    const bool linear_;
    std::vector<float> table_;  // of all samples there are
};

namespace {

template <class From, class To>
void ConvertRow(const SampleConversion& conversion, const Bitmap& from, Bitmap& to, int y) {
    const std::size_t samples = HasAlpha(from.Format()) ? 4 : 3;
    const std::uint8_t* in = from.ScanLine(y).data();
    std::uint8_t* out = to.ScanLine(y).data();
    for (std::int32_t x = 0; x < from.Size().width; ++x) {
        for (std::size_t n = 0; n < samples; ++n) {
            PutSample(out, n, conversion.Of<From, To>(SampleAt<From>(in, n), n == 3));
        }
        in += samples * sizeof(From);
        out += samples * sizeof(To);
    }
}

void ConvertRows(const SampleConversion& conversion, const Bitmap& from, Bitmap& to,
                 LineRange rows) {
    for (int y = rows.first; y <= rows.last; ++y) {
        WithSample(SampleKindOf(from.Format()), [&](auto in) {
            WithSample(SampleKindOf(to.Format()), [&](auto out) {
                ConvertRow<decltype(in), decltype(out)>(conversion, from, to, y);
            });
        });
    }
}

SampleConversion ConversionOf(const Bitmap& bitmap, SampleKind samples) {
    return {SampleKindOf(bitmap.Format()), samples,
            AreLight(SampleKind::Float, bitmap.metadata.colourProfile)};
}

PixelFormat FormatIn(SampleKind samples, const Bitmap& bitmap) {
    return PixelFormatOf(samples, HasAlpha(bitmap.Format()));
}

}  // namespace

BitmapHandle InSamples(const Bitmap& bitmap, SampleKind samples, BlockRunner& runner) {
    const PixelSize size = bitmap.Size();
    BitmapHandle copy = NewBitmap(size, FormatIn(samples, bitmap));
    copy->metadata = bitmap.metadata;
    const SampleConversion conversion = ConversionOf(bitmap, samples);
    runner.Run((size.height + rowsPerBlock - 1) / rowsPerBlock, [&](int block) {
        const int first = block * rowsPerBlock;
        ConvertRows(conversion, bitmap, *copy,
                    {first, std::min(first + rowsPerBlock, size.height) - 1});
    });
    return copy;
}

RowsInSamples::RowsInSamples(RowSource& rows, const Bitmap& picture, SampleKind samples)
    : rows_(rows),
      picture_(picture),
      samples_(samples),
      conversion_(std::make_unique<SampleConversion>(ConversionOf(picture, samples))) {}

RowsInSamples::~RowsInSamples() = default;

BitmapHandle RowsInSamples::WithoutPixels() const {
    auto picture = std::make_unique<Bitmap>(FormatIn(samples_, picture_), picture_.Size(), nullptr);
    picture->metadata = picture_.metadata;
    return picture;
}

void RowsInSamples::WithRows(LineRange rows, const std::function<void(const Bitmap&)>& use) const {
    const PixelFormat format = FormatIn(samples_, picture_);
    const std::size_t pitch = RowPitch(picture_.Size().width, format);
    rows_.WithRows(rows, [&](const Bitmap& from) {
        std::vector<std::byte> memory(pitch * static_cast<std::size_t>(rows.Count()));
        // The bitmap begins before its only memory: all that reads it goes by rows.
        std::byte* const bottom =
            memory.data() - static_cast<std::ptrdiff_t>(pitch) * std::ptrdiff_t{rows.first};
        const BitmapHandle band = BitmapOver(bottom, picture_.Size(), format);
        band->metadata.colourProfile = picture_.metadata.colourProfile;
        ConvertRows(*conversion_, from, *band, rows);
        use(*band);
    });
}

}  // namespace varnel
