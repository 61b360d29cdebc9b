// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// PNG files by libpng.
#include <png.h>

#include <algorithm>
#include <bit>
#include <span>
#include <vector>

#include "decoder/formats/readers/direct_reader.h"
#include "remap/image/image_library.h"
#include "remap/image/library_messages.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// libpng's work. It reports an error through a call that must not return: nothing may be destroyed
// in the functions that set the way back.
class PngReading {
  public:
    explicit PngReading(const PictureFile& file)
        : file_(&file),
          png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, this, &GoBack, &Ignore)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {
        if (info_ == nullptr) {
            png_destroy_read_struct(&png_, nullptr, nullptr);
            throw std::bad_alloc();
        }
        png_set_read_fn(png_, this, &ReadBytes);
    }
    ~PngReading() { png_destroy_read_struct(&png_, &info_, nullptr); }
    PngReading(const PngReading&) = delete;
    PngReading& operator=(const PngReading&) = delete;

    // Until the first pixels. False, after a message, when the header is not sound.
    bool ReadHeader() {
        if (setjmp(png_jmpbuf(png_)) != 0) {
            return false;
        }
        std::rewind(file_->File());
        png_read_info(png_, info_);
        place_ = std::ftell(file_->File());
        return true;
    }
    // Rows of blue, green and red, and alpha where the file has any; the lines from the top.
    bool ReadRows(png_bytepp lines) {
        if (setjmp(png_jmpbuf(png_)) != 0) {
            return false;
        }
        std::fseek(file_->File(), place_, SEEK_SET);
        png_set_expand(png_);
        png_set_gray_to_rgb(png_);
        png_set_bgr(png_);
        if constexpr (std::endian::native == std::endian::little) {
            png_set_swap(png_);
        }
        // As the image library does: for a screen of 2.2.
        constexpr double screen = 2.2;
        double gamma = 0.0;
        if (png_get_gAMA(png_, info_, &gamma) != 0) {
            png_set_gamma(png_, screen, gamma);
        }
        png_read_image(png_, lines);
        png_read_end(png_, info_);  // texts may stand behind the pixels
        return true;
    }

    png_structp Png() const { return png_; }
    png_infop Info() const { return info_; }

  private:
    [[noreturn]] static void GoBack(png_structp png, png_const_charp message) {
        AddLibraryMessage(QString::fromLatin1(message));
        png_longjmp(png, 1);
    }
    static void Ignore(png_structp /*png*/, png_const_charp /*warning*/) {}
    static void ReadBytes(png_structp png, png_bytep bytes, png_size_t length) {
        const auto* const reading = static_cast<const PngReading*>(png_get_io_ptr(png));
        if (reading->file_->Fill(bytes, 1, static_cast<unsigned>(length)) != length) {
            png_error(png, "Read Error");
        }
    }

    const PictureFile* file_;
    png_structp png_;
    png_infop info_;
    long place_ = 0;  // of the first pixels in the file
};

class PngReader : public DirectReader {
  public:
    explicit PngReader(const PictureFile& file) : reading_(file) {}

    bool ReadHeader() { return reading_.ReadHeader(); }

    StatedSize Size() const override {
        return {png_get_image_width(reading_.Png(), reading_.Info()),
                png_get_image_height(reading_.Png(), reading_.Info())};
    }
    PixelFormat Format() const override {
        const png_structp png = reading_.Png();
        const png_infop info = reading_.Info();
        const bool hasAlpha = (png_get_color_type(png, info) & PNG_COLOR_MASK_ALPHA) != 0 ||
                              png_get_valid(png, info, PNG_INFO_tRNS) != 0;
        return PixelFormatOf(
            png_get_bit_depth(png, info) == 16 ? SampleKind::Word : SampleKind::Byte, hasAlpha);
    }
    bool IsOnlyWay() const override { return false; }

    std::optional<BitmapMetadata> Read(PixelRows rows) override {
        const auto height = static_cast<std::size_t>(Size().height);
        std::vector<png_bytep> lines(height);
        for (std::size_t y = 0; y < height; ++y) {
            lines[height - 1 - y] = reinterpret_cast<png_bytep>(rows.bottom + y * rows.pitch);
        }
        if (!reading_.ReadRows(lines.data())) {
            return std::nullopt;
        }
        if (rows.format == PixelFormat::Bgra8) {
            ShowAllOfNothing(lines);
        }
        return Metadata();
    }

  private:
    // Alpha that is 0 everywhere counts as none.
    void ShowAllOfNothing(const std::vector<png_bytep>& lines) const {
        const auto bytes = 4 * static_cast<std::size_t>(Size().width);
        const auto isShown = [bytes](const png_byte* line) {
            for (std::size_t n = 3; n < bytes; n += 4) {
                if (line[n] != 0) {
                    return true;
                }
            }
            return false;
        };
        if (std::ranges::any_of(lines, isShown)) {
            return;
        }
        for (png_byte* const line : lines) {
            for (std::size_t n = 3; n < bytes; n += 4) {
                line[n] = 255;
            }
        }
    }

    BitmapMetadata Metadata() const {
        const png_structp png = reading_.Png();
        const png_infop info = reading_.Info();
        BitmapMetadata metadata;
        png_uint_32 across = 0;
        png_uint_32 down = 0;
        int unit = PNG_RESOLUTION_UNKNOWN;
        if (png_get_pHYs(png, info, &across, &down, &unit) != 0 && unit == PNG_RESOLUTION_METER) {
            metadata.dotsPerMetreX = across;
            metadata.dotsPerMetreY = down;
        }
        png_charp name = nullptr;
        int compression = 0;
        png_bytep profile = nullptr;
        png_uint_32 length = 0;
        if (png_get_iCCP(png, info, &name, &compression, &profile, &length) != 0) {
            metadata.colourProfile =
                QByteArray(reinterpret_cast<const char*>(profile), static_cast<qsizetype>(length));
        }
        AddTexts(metadata);
        return metadata;
    }

    void AddTexts(BitmapMetadata& metadata) const {
        png_textp texts = nullptr;
        int count = 0;
        png_get_text(reading_.Png(), reading_.Info(), &texts, &count);
        for (const png_text& text : std::span(texts, static_cast<std::size_t>(count))) {
            const QByteArray key(text.key);
            if (!key.isEmpty() && !IsMetadataInText(key)) {
                metadata.comments.insert(key, text.text);
            }
        }
    }

    PngReading reading_;
};

}  // namespace

std::unique_ptr<DirectReader> NewPngReader(const PictureFile& file) {
    auto reader = std::make_unique<PngReader>(file);
    return reader->ReadHeader() ? std::move(reader) : nullptr;
}

}  // namespace varnel
