// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG XL files by libjxl.
#include <jxl/decode.h>

#include <cstring>
#include <utility>

#include "base/released_by.h"
#include "decoder/formats/readers/direct_reader.h"
#include "decoder/formats/readers/file_bytes.h"
#include "decoder/formats/readers/sane_sample.h"
#include "remap/image/library_messages.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

using Decoder = std::unique_ptr<JxlDecoder, ReleasedBy<JxlDecoderDestroy>>;

// At the file's beginning, waiting for these events; null when there is no memory.
Decoder Started(const FileBytes& bytes, int events, bool keepOrientation) {
    Decoder decoder(JxlDecoderCreate(nullptr));
    if (!decoder) {
        throw std::bad_alloc();
    }
    JxlDecoderSubscribeEvents(decoder.get(), events);
    JxlDecoderSetKeepOrientation(decoder.get(), keepOrientation ? JXL_TRUE : JXL_FALSE);
    JxlDecoderSetUnpremultiplyAlpha(decoder.get(), JXL_TRUE);
    JxlDecoderSetInput(decoder.get(), bytes.Bytes(), static_cast<std::size_t>(bytes.Length()));
    JxlDecoderCloseInput(decoder.get());
    return decoder;
}

JxlDataType TypeOf(SampleKind samples) {
    return samples == SampleKind::Float  ? JXL_TYPE_FLOAT
           : samples == SampleKind::Word ? JXL_TYPE_UINT16
                                         : JXL_TYPE_UINT8;
}

template <class Sample>
void CopyPixels(const std::uint8_t* from, std::size_t samples, std::size_t count,
                std::uint8_t* to) {
    for (std::size_t n = 0; n < count; ++n) {
        for (std::size_t place = 0; place < samples; ++place) {
            const auto sample = SampleAt<Sample>(from, place == 3 ? 3 : 2 - place);
            if constexpr (std::is_same_v<Sample, float>) {
                PutSample(to, place, SaneFloat(sample));
            } else {
                PutSample(to, place, sample);
            }
        }
        from += samples * sizeof(Sample);
        to += samples * sizeof(Sample);
    }
}

class JxlReader : public DirectReader {
  public:
    explicit JxlReader(const PictureFile& file) : bytes_(file.File()) {}

    // False when that cannot be, for which there is a message.
    bool ReadHeader() {
        const Decoder decoder = Started(bytes_, JXL_DEC_BASIC_INFO, true);
        const bool isRead = bytes_.Bytes() != nullptr &&
                            JxlDecoderProcessInput(decoder.get()) == JXL_DEC_BASIC_INFO &&
                            JxlDecoderGetBasicInfo(decoder.get(), &info_) == JXL_DEC_SUCCESS;
        if (!isRead) {
            AddLibraryMessage(QStringLiteral("Corrupt header of the JPEG XL file"));
        }
        return isRead;
    }

    StatedSize Size() const override {
        const StatedSize stored{info_.xsize, info_.ysize};
        return SwapsSides(Orientation()) ? StatedSize{stored.height, stored.width} : stored;
    }
    PixelFormat Format() const override {
        const SampleKind samples = info_.exponent_bits_per_sample != 0 ? SampleKind::Float
                                   : info_.bits_per_sample > 8         ? SampleKind::Word
                                                                       : SampleKind::Byte;
        return PixelFormatOf(samples, info_.alpha_bits > 0);
    }
    bool IsOnlyWay() const override { return true; }
    int Orientation() const override { return info_.orientation; }

    std::optional<BitmapMetadata> Read(PixelRows rows) override {
        rows_ = rows;
        const Decoder decoder = Started(bytes_, JXL_DEC_COLOR_ENCODING | JXL_DEC_FULL_IMAGE, false);
        std::memset(rows.bottom, 0, rows.pitch * static_cast<std::size_t>(Size().height));
        BitmapMetadata metadata;
        for (;;) {
            switch (JxlDecoderProcessInput(decoder.get())) {
                case JXL_DEC_COLOR_ENCODING:
                    metadata.colourProfile = Profile(decoder.get());
                    break;
                case JXL_DEC_NEED_IMAGE_OUT_BUFFER:
                    if (!AskForPixels(decoder.get())) {
                        return std::nullopt;
                    }
                    break;
                case JXL_DEC_FULL_IMAGE:
                    return metadata;
                case JXL_DEC_NEED_MORE_INPUT:
                    AddLibraryMessage(QStringLiteral("Premature end of the JPEG XL data"));
                    return JxlDecoderFlushImage(decoder.get()) == JXL_DEC_SUCCESS
                               ? std::optional(metadata)
                               : std::nullopt;
                default:
                    AddLibraryMessage(QStringLiteral("Corrupt JPEG XL data"));
                    return std::nullopt;
            }
        }
    }

  private:
    std::uint32_t Samples() const { return HasAlpha(rows_.format) ? 4 : 3; }

    bool AskForPixels(JxlDecoder* decoder) {
        const JxlPixelFormat format{Samples(), TypeOf(SampleKindOf(rows_.format)),
                                    JXL_NATIVE_ENDIAN, 0};
        return JxlDecoderSetImageOutCallback(decoder, &format, &TakePixels, this) ==
               JXL_DEC_SUCCESS;
    }
    // Some of a row; rows count from the top.
    static void TakePixels(void* reader, std::size_t x, std::size_t y, std::size_t count,
                           const void* pixels) {
        static_cast<JxlReader*>(reader)->Put(x, y, count, static_cast<const std::uint8_t*>(pixels));
    }
    void Put(std::size_t x, std::size_t y, std::size_t count, const std::uint8_t* from) {
        const auto row = static_cast<std::size_t>(Size().height) - 1 - y;
        auto* const to = reinterpret_cast<std::uint8_t*>(rows_.bottom) + row * rows_.pitch +
                         x * BytesPerPixel(rows_.format);
        WithSample(SampleKindOf(rows_.format),
                   [&](auto kind) { CopyPixels<decltype(kind)>(from, Samples(), count, to); });
    }

    static QByteArray Profile(const JxlDecoder* decoder) {
        std::size_t length = 0;
        constexpr JxlColorProfileTarget pixels = JXL_COLOR_PROFILE_TARGET_DATA;
        if (JxlDecoderGetICCProfileSize(decoder, nullptr, pixels, &length) != JXL_DEC_SUCCESS) {
            return {};
        }
        QByteArray profile(static_cast<qsizetype>(length), '\0');
        const bool isThere =
            JxlDecoderGetColorAsICCProfile(decoder, nullptr, pixels,
                                           reinterpret_cast<std::uint8_t*>(profile.data()),
                                           length) == JXL_DEC_SUCCESS;
        return isThere ? profile : QByteArray();
    }

    FileBytes bytes_;
    JxlBasicInfo info_{};
    PixelRows rows_;
};

}  // namespace

std::unique_ptr<DirectReader> NewJxlReader(const PictureFile& file) {
    auto reader = std::make_unique<JxlReader>(file);
    return reader->ReadHeader() ? std::move(reader) : nullptr;
}

}  // namespace varnel
