// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// JPEG XL files by libjxl. The settings' quality is that of libjxl's own program: a distance of 1,
// where nothing is seen to be lost, at 90, and no loss at all at 100.

#include <jxl/decode.h>
#include <jxl/encode.h>

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <new>
#include <thread>
#include <vector>

#include "base/released_by.h"
#include "remap/encode/coders/encoded_bitmap.h"
#include "remap/encode/metadata_writer.h"
#include "remap/image/levels/lcms_handles.h"
#include "remap/image/levels/transfer_curve.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

using Encoder = std::unique_ptr<JxlEncoder, ReleasedBy<JxlEncoderDestroy>>;

// The library's work on the blocks of a runner. It wants to know which of so many threads a block
// runs on, which the runner does not say, and exceptions must not pass through it.
class SharedWork {
  public:
    explicit SharedWork(const EncodeOptions& options) : options_(options) {
        constexpr unsigned most = 32;
        const unsigned cores = std::clamp(std::thread::hardware_concurrency(), 1U, most);
        for (std::size_t place = 0; place < (options.runner != nullptr ? cores : 1U); ++place) {
            free_.push_back(place);
        }
    }

    // To be given to the library with a pointer to this.
    static JxlParallelRunner Runner() {
        return [](void* work, void* library, JxlParallelRunInit init, JxlParallelRunFunction step,
                  std::uint32_t first, std::uint32_t end) {
            return static_cast<SharedWork*>(work)->Share(library, init, step, first, end);
        };
    }
    // What ended a block, if anything did.
    void Rethrow() const {
        if (error_) {
            std::rethrow_exception(error_);
        }
    }

  private:
    // All of it is done even when the runner gives up: the library ends the program where work that
    // it counts on is missing.
    JxlParallelRetCode Share(void* library, JxlParallelRunInit init, JxlParallelRunFunction step,
                             std::uint32_t first, std::uint32_t end) {
        if (const JxlParallelRetCode failed = init(library, free_.size()); failed != 0) {
            return failed;
        }
        std::vector<std::uint8_t> done;
        const auto work = [&](std::uint32_t n) {
            const std::size_t place = Take();
            step(library, first + n, place);
            GiveBack(place);
        };
        if (!error_) {
            try {
                done.resize(end - first);
                options_.Run(static_cast<int>(end - first), [&](int n) {
                    work(static_cast<std::uint32_t>(n));
                    done[static_cast<std::size_t>(n)] = 1;
                });
                return 0;
            } catch (...) {
                error_ = std::current_exception();
            }
        }
        for (std::uint32_t n = 0; n < end - first; ++n) {
            if (done.empty() || done[n] == 0) {
                work(n);
            }
        }
        return 0;
    }
    std::size_t Take() {
        std::unique_lock lock(mutex_);
        returned_.wait(lock, [this] { return !free_.empty(); });
        const std::size_t place = free_.back();
        free_.pop_back();
        return place;
    }
    void GiveBack(std::size_t place) {
        {
            const std::scoped_lock lock(mutex_);
            free_.push_back(place);  // it has been there: no memory is needed
        }
        returned_.notify_one();
    }

    const EncodeOptions& options_;
    std::mutex mutex_;
    std::condition_variable returned_;
    std::vector<std::size_t> free_;
    std::exception_ptr error_;
};

// From the top row, red first, as the library takes them.
template <class Sample>
void CopyRow(const std::uint8_t* from, std::size_t samples, std::int32_t width, std::uint8_t* to) {
    for (std::int32_t x = 0; x < width; ++x) {
        for (std::size_t n = 0; n < samples; ++n) {
            PutSample(to, n, SampleAt<Sample>(from, n < 3 ? 2 - n : n));
        }
        from += samples * sizeof(Sample);
        to += samples * sizeof(Sample);
    }
}

std::vector<std::uint8_t> TopFirst(const Bitmap& bitmap, const EncodeOptions& options) {
    constexpr std::int32_t rowsPerBlock = 32;
    const PixelSize size = bitmap.Size();
    const std::size_t samples = HasAlpha(bitmap.Format()) ? 4 : 3;
    const std::size_t rowBytes =
        static_cast<std::size_t>(size.width) * BytesPerPixel(bitmap.Format());
    std::vector<std::uint8_t> pixels(rowBytes * static_cast<std::size_t>(size.height));
    options.Run((size.height + rowsPerBlock - 1) / rowsPerBlock, [&](int block) {
        const std::int32_t first = block * rowsPerBlock;
        for (std::int32_t y = first; y < std::min(first + rowsPerBlock, size.height); ++y) {
            const std::uint8_t* const from = bitmap.ScanLine(size.height - 1 - y).data();
            std::uint8_t* const to = pixels.data() + rowBytes * static_cast<std::size_t>(y);
            WithSample(SampleKindOf(bitmap.Format()),
                       [&](auto kind) { CopyRow<decltype(kind)>(from, samples, size.width, to); });
        }
    });
    return pixels;
}

// With loss, files have colours of the library's own, and from these readers make what the
// profile stands for. They can for a profile that the format states by a few numbers; for others
// they would make sRGB, which may hold less.
bool IsStatedByNumbers(QByteArrayView file) {
    const std::unique_ptr<JxlDecoder, ReleasedBy<JxlDecoderDestroy>> decoder(
        JxlDecoderCreate(nullptr));
    if (!decoder) {
        throw std::bad_alloc();
    }
    JxlDecoderSubscribeEvents(decoder.get(), JXL_DEC_COLOR_ENCODING);
    JxlDecoderSetInput(decoder.get(), reinterpret_cast<const std::uint8_t*>(file.data()),
                       static_cast<std::size_t>(file.size()));
    JxlDecoderCloseInput(decoder.get());
    return JxlDecoderProcessInput(decoder.get()) == JXL_DEC_COLOR_ENCODING &&
           JxlDecoderGetColorAsEncodedProfile(decoder.get(), nullptr,
                                              JXL_COLOR_PROFILE_TARGET_ORIGINAL,
                                              nullptr) == JXL_DEC_SUCCESS;
}

// How the colours are coded.
enum class Colours { Own, PhotosWithLoss, PhotosWithoutLoss };

JxlBasicInfo InfoOf(const Bitmap& bitmap, Colours colours) {
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = static_cast<std::uint32_t>(bitmap.Size().width);
    info.ysize = static_cast<std::uint32_t>(bitmap.Size().height);
    info.bits_per_sample = static_cast<std::uint32_t>(BitsPerSample(bitmap.Format()));
    const bool isFloat = SampleKindOf(bitmap.Format()) == SampleKind::Float;
    info.exponent_bits_per_sample = isFloat ? 8 : 0;
    if (HasAlpha(bitmap.Format())) {
        info.num_extra_channels = 1;
        info.alpha_bits = info.bits_per_sample;
        info.alpha_exponent_bits = info.exponent_bits_per_sample;
    }
    info.uses_original_profile = colours == Colours::Own ? JXL_FALSE : JXL_TRUE;
    return info;
}

// The library's work on one file; the steps are false when it fails.
class FileCoder {
  public:
    FileCoder(const Bitmap& bitmap, int quality, Colours colours, const EncodeOptions& options)
        : bitmap_(bitmap),
          quality_(quality),
          colours_(colours),
          options_(options),
          work_(options),
          encoder_(JxlEncoderCreate(nullptr)) {
        if (!encoder_) {
            throw std::bad_alloc();
        }
    }

    // Throws what the runner throws, and std::bad_alloc.
    EncodedBitmap Encode(const WrittenMetadata& metadata) {
        const bool done = Begin() && AddColours() && AddBoxes(metadata) && AddPixels();
        EncodedBitmap file = done ? Written() : EncodedBitmap{{}, ReasonCode::CannotBeEncoded};
        work_.Rethrow();
        if (JxlEncoderGetError(encoder_.get()) == JXL_ENC_ERR_OOM) {
            throw std::bad_alloc();
        }
        return file;
    }

  private:
    bool Begin() {
        const JxlBasicInfo info = InfoOf(bitmap_, colours_);
        return Done(JxlEncoderSetParallelRunner(encoder_.get(), SharedWork::Runner(), &work_)) &&
               Done(JxlEncoderUseBoxes(encoder_.get())) &&
               Done(JxlEncoderSetBasicInfo(encoder_.get(), &info)) && AddAlpha(info);
    }
    bool AddAlpha(const JxlBasicInfo& info) {
        if (info.num_extra_channels == 0) {
            return true;
        }
        JxlExtraChannelInfo alpha;
        JxlEncoderInitExtraChannelInfo(JXL_CHANNEL_ALPHA, &alpha);
        alpha.bits_per_sample = info.alpha_bits;
        alpha.exponent_bits_per_sample = info.alpha_exponent_bits;
        return Done(JxlEncoderSetExtraChannelInfo(encoder_.get(), 0, &alpha));
    }
    bool AddColours() {
        const QByteArray& profile = bitmap_.metadata.colourProfile;
        if (!profile.isEmpty()) {
            return Done(JxlEncoderSetICCProfile(
                encoder_.get(), reinterpret_cast<const std::uint8_t*>(profile.constData()),
                static_cast<std::size_t>(profile.size())));
        }
        JxlColorEncoding colours;
        if (AreLight(SampleKindOf(bitmap_.Format()), profile)) {
            JxlColorEncodingSetToLinearSRGB(&colours, JXL_FALSE);
        } else {
            JxlColorEncodingSetToSRGB(&colours, JXL_FALSE);
        }
        return Done(JxlEncoderSetColorEncoding(encoder_.get(), &colours));
    }
    bool AddBoxes(const WrittenMetadata& metadata) {
        const QByteArray place(4, '\0');  // where the TIFF header of EXIF begins
        return AddBox("Exif", metadata.exif.isEmpty() ? QByteArray() : place + metadata.exif) &&
               AddBox("xml ", metadata.xmp);
    }
    bool AddBox(const char* type, const QByteArray& contents) {
        return contents.isEmpty() ||
               Done(JxlEncoderAddBox(encoder_.get(), type,
                                     reinterpret_cast<const std::uint8_t*>(contents.constData()),
                                     static_cast<std::size_t>(contents.size()), JXL_FALSE));
    }
    bool AddPixels() {
        JxlEncoderFrameSettings* const settings =
            JxlEncoderFrameSettingsCreate(encoder_.get(), nullptr);
        const bool lossless = colours_ == Colours::PhotosWithoutLoss;
        const std::vector<std::uint8_t> pixels = TopFirst(bitmap_, options_);
        const SampleKind samples = SampleKindOf(bitmap_.Format());
        const JxlPixelFormat format{HasAlpha(bitmap_.Format()) ? 4U : 3U,
                                    samples == SampleKind::Float  ? JXL_TYPE_FLOAT
                                    : samples == SampleKind::Word ? JXL_TYPE_UINT16
                                                                  : JXL_TYPE_UINT8,
                                    JXL_NATIVE_ENDIAN, 0};
        const bool done =
            Done(JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_EFFORT,
                                                  lossless ? losslessEffort : usualEffort)) &&
            Done(JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_MODULAR,
                                                  colours_ == Colours::PhotosWithLoss ? 1 : -1)) &&
            Done(lossless ? JxlEncoderSetFrameLossless(settings, JXL_TRUE)
                          : JxlEncoderSetFrameDistance(settings, Distance())) &&
            Done(JxlEncoderAddImageFrame(settings, &format, pixels.data(), pixels.size()));
        JxlEncoderCloseInput(encoder_.get());
        return done;
    }
    // As libjxl's own program has it.
    float Distance() const {
        constexpr float most = 15.0F;
        const auto quality = static_cast<float>(quality_);
        const float distance = quality >= 30.0F
                                   ? 0.1F + (100.0F - quality) * 0.09F
                                   : 6.4F + std::pow(2.5F, (30.0F - quality) / 5.0F) / 6.25F;
        return std::min(distance, most);
    }

    EncodedBitmap Written() {
        constexpr qsizetype leastRoom = 1 << 16;
        EncodedBitmap file;
        for (qsizetype length = 0;;) {
            file.bytes.resize(std::max(2 * length, leastRoom));
            auto* next = reinterpret_cast<std::uint8_t*>(file.bytes.data()) + length;
            auto room = static_cast<std::size_t>(file.bytes.size() - length);
            const JxlEncoderStatus status = JxlEncoderProcessOutput(encoder_.get(), &next, &room);
            length = file.bytes.size() - static_cast<qsizetype>(room);
            if (status == JXL_ENC_SUCCESS) {
                file.bytes.resize(length);
                return file;
            }
            if (status != JXL_ENC_NEED_MORE_OUTPUT) {
                return {{}, ReasonCode::CannotBeEncoded};
            }
            if (length > options_.largest) {
                return {{}, {ReasonCode::FileTooLarge, options_.largest}};
            }
        }
    }

    static bool Done(JxlEncoderStatus status) { return status == JXL_ENC_SUCCESS; }

    static constexpr int usualEffort = 5;
    static constexpr int losslessEffort = 3;

    const Bitmap& bitmap_;
    const int quality_;
    const Colours colours_;
    const EncodeOptions& options_;
    SharedWork work_;
    Encoder encoder_;
};

// libjxl 0.7 ends the program where it has taken a profile that lcms2 then makes no transform of:
// of other colours than red, green and blue, or with damaged tags.
bool CanBeConverted(const QByteArray& profile) {
    const ProfileHandle from = OpenProfile(profile);
    const ProfileHandle to(cmsCreate_sRGBProfile());
    if (!from || !to || cmsGetColorSpace(from.get()) != cmsSigRgbData) {
        return false;
    }
    constexpr std::array<cmsUInt32Number, 4> intents{
        INTENT_PERCEPTUAL, INTENT_RELATIVE_COLORIMETRIC, INTENT_SATURATION,
        INTENT_ABSOLUTE_COLORIMETRIC};
    return std::ranges::all_of(intents, [&](cmsUInt32Number intent) {
        return ColourTransform(cmsCreateTransform(from.get(), TYPE_RGB_FLT, to.get(), TYPE_RGB_FLT,
                                                  intent, cmsFLAGS_NOCACHE)) != nullptr;
    });
}

// Tried with a file of one pixel.
Colours ColoursFor(const Bitmap& bitmap, int quality) {
    if (quality >= 100) {
        return Colours::PhotosWithoutLoss;
    }
    const QByteArray& profile = bitmap.metadata.colourProfile;
    if (profile.isEmpty()) {
        return Colours::Own;
    }
    const BitmapHandle pixel = NewBitmap({1, 1});
    pixel->metadata.colourProfile = profile;
    const EncodeOptions alone;
    const EncodedBitmap file = FileCoder(*pixel, quality, Colours::Own, alone).Encode({});
    return IsStatedByNumbers(file.bytes) ? Colours::Own : Colours::PhotosWithLoss;
}

}  // namespace

EncodedBitmap EncodeJxl(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options) {
    const QByteArray& profile = bitmap->metadata.colourProfile;
    if (!profile.isEmpty() && !CanBeConverted(profile)) {
        return {{}, ReasonCode::CannotBeEncoded};
    }
    const WrittenMetadata metadata = MetadataForJxl(*bitmap);
    const Colours colours = ColoursFor(*bitmap, encoding.quality);
    EncodedBitmap file = FileCoder(*bitmap, encoding.quality, colours, options).Encode(metadata);
    file.note = Joined(metadata.notes);
    return file;
}

}  // namespace varnel
