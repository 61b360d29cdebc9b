// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/readers/raw_reader.h"

#include <libraw/libraw.h>

#include <algorithm>
#include <limits>
#include <new>
#include <vector>

#include "decoder/formats/profiles/raw_profile.h"
#include "decoder/formats/readers/file_bytes.h"
#include "remap/image/library_messages.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

// True when the step was done.
bool Succeeded(int error) {
    if (error == LIBRAW_UNSUFFICIENT_MEMORY) {
        throw std::bad_alloc();
    }
    if (error != LIBRAW_SUCCESS) {
        AddLibraryMessage(QString::fromLocal8Bit(libraw_strerror(error)));
    }
    return error == LIBRAW_SUCCESS;
}

void Configure(libraw_output_params_t& wanted, const RawDevelopment& development,
               SampleKind samples) {
    constexpr int adaptiveHomogeneity = 3;
    wanted.use_camera_wb = 1;
    wanted.no_auto_bright = 1;
    wanted.highlight = 0;
    wanted.user_qual = adaptiveHomogeneity;
    wanted.half_size = development.isQuick ? 1 : 0;
    wanted.output_bps = BitsPerSample(samples);
    wanted.gamm[0] = 1.0 / 2.4;
    wanted.gamm[1] = 12.92;
    wanted.output_color = 1;  // sRGB
    if (development.profile == RawProfile::AdobeRgb) {
        wanted.output_color = 2;
        wanted.gamm[0] = 256.0 / 563.0;
        wanted.gamm[1] = 0.0;
    } else if (development.profile == RawProfile::Rec2020) {
        wanted.output_color = 4;  // ROMM RGB, in linear light: coded later
        wanted.output_bps = 16;
        wanted.gamm[0] = wanted.gamm[1] = 1.0;
    }
}

// The file, as far as its headers, by a library of its own: some questions can only be asked once.
class OpenRaw {
  public:
    OpenRaw(const FileBytes& bytes, const RawDevelopment& development, SampleKind samples)
        : raw_(std::make_unique<LibRaw>(LIBRAW_OPTIONS_NONE)) {
        // Without that a cut file would pass as sound. Places within the file are of no interest:
        // some cameras' files that are whole have odd ones.
        raw_->set_dataerror_handler(
            [](void* /*data*/, const char* /*file*/, auto place) {
                if (place < 0) {
                    AddLibraryMessage(QStringLiteral("Premature end of the raw data"));
                }
            },
            nullptr);
        Configure(raw_->imgdata.params, development, samples);
        // The library takes the buffer without const and only reads it.
        isOpen_ = bytes.Bytes() != nullptr &&
                  Succeeded(raw_->open_buffer(const_cast<uchar*>(bytes.Bytes()),
                                              static_cast<std::size_t>(bytes.Length())));
    }
    bool IsOpen() const { return isOpen_; }
    LibRaw& Library() { return *raw_; }

  private:
    std::unique_ptr<LibRaw> raw_;  // it is large
    bool isOpen_ = false;
};

int OrientationOfFlip(int flip) {
    switch (flip) {
        case 3:
            return 3;
        case 5:
            return 8;
        case 6:
            return 6;
        default:
            return 1;
    }
}

class LibRawReader : public RawReader {
  public:
    LibRawReader(const PictureFile& file, const RawDevelopment& development, SampleKind samples)
        : bytes_(file.File()), development_(development), samples_(samples) {}

    // False when that cannot be, for which there is a message.
    bool ReadHeader() {
        OpenRaw header(bytes_, development_, samples_);
        if (!header.IsOpen()) {
            return false;
        }
        const libraw_image_sizes_t& sizes = header.Library().imgdata.sizes;
        const std::int64_t sensor = std::int64_t{sizes.raw_width} * sizes.raw_height;
        const std::int64_t used = std::int64_t{sizes.width} * sizes.height;
        if (!Succeeded(header.Library().adjust_sizes_info_only())) {
            return false;
        }
        size_ = {sizes.iwidth, sizes.iheight};
        orientation_ = OrientationOfFlip(sizes.flip);
        // Masked rows and columns, or a part of the sensor.
        constexpr std::int64_t mostUnused = 1 << 24;
        return sensor <= 4 * used + mostUnused;
    }

    StatedSize Size() const override { return size_; }
    PixelFormat Format() const override { return PixelFormatOf(samples_, false); }
    bool IsOnlyWay() const override { return true; }
    int Orientation() const override { return orientation_; }

    std::optional<BitmapMetadata> Read(PixelRows rows) override {
        OpenRaw raw(bytes_, development_, samples_);
        if (!raw.IsOpen() || !Succeeded(raw.Library().unpack()) ||
            !Succeeded(raw.Library().dcraw_process()) || !Copy(raw.Library(), rows)) {
            return std::nullopt;
        }
        BitmapMetadata metadata;
        metadata.colourProfile = ProfileOf(development_.profile);
        return metadata;
    }

    CameraPreview Preview() override {
        OpenRaw raw(bytes_, development_, samples_);
        if (!raw.IsOpen() || raw.Library().unpack_thumb() != LIBRAW_SUCCESS) {
            return {};
        }
        const libraw_thumbnail_t& preview = raw.Library().imgdata.thumbnail;
        if (preview.tformat == LIBRAW_THUMBNAIL_JPEG) {
            return {QByteArray(preview.thumb, static_cast<qsizetype>(preview.tlength)), nullptr};
        }
        return {{}, preview.tformat == LIBRAW_THUMBNAIL_BITMAP ? FromBitmap(preview) : nullptr};
    }

  private:
    // Red, green and blue from the top row on.
    static BitmapHandle FromBitmap(const libraw_thumbnail_t& preview) {
        const std::size_t pixels = std::size_t{preview.twidth} * preview.theight;
        if (pixels == 0 || preview.tcolors != 3 || preview.tlength < 3 * pixels) {
            return nullptr;
        }
        BitmapHandle bitmap = NewBitmap({preview.twidth, preview.theight});
        const auto* from = reinterpret_cast<const std::uint8_t*>(preview.thumb);
        for (int y = preview.theight - 1; y >= 0; --y) {
            const std::span<std::uint8_t> row = bitmap->ScanLine(y);
            for (std::size_t n = 0; n < row.size(); n += 3, from += 3) {
                std::reverse_copy(from, from + 3, &row[n]);
            }
        }
        return bitmap;
    }

    // The developed picture, if it is of the size that was stated.
    bool Copy(LibRaw& raw, PixelRows rows) {
        int width = 0;
        int height = 0;
        int colours = 0;
        int bits = 0;
        raw.get_mem_image_format(&width, &height, &colours, &bits);
        if (width != size_.width || height != size_.height || (colours != 1 && colours != 3)) {
            AddLibraryMessage(QStringLiteral("Unexpected size of the developed picture"));
            return false;
        }
        const std::size_t length = static_cast<std::size_t>(width) * colours * bits / 8;
        if (length * height > std::numeric_limits<int>::max()) {
            throw std::bad_alloc();  // the library counts bytes so
        }
        if (colours == 3 && bits == BitsPerSample(samples_)) {
            return CopyRows(raw, rows);
        }
        std::vector<std::uint8_t> picture(length * height);
        const bool isCopied =
            Succeeded(raw.copy_mem_image(picture.data(), static_cast<int>(length), 1));
        for (int y = 0; isCopied && y < height; ++y) {
            Convert(&picture[length * static_cast<std::size_t>(height - 1 - y)], colours, bits,
                    reinterpret_cast<std::uint8_t*>(rows.bottom) + rows.pitch * y);
        }
        return isCopied;
    }

    // The library goes from the top row downward.
    bool CopyRows(LibRaw& raw, PixelRows rows) {
        std::byte* const top = rows.bottom + rows.pitch * (size_.height - 1);
        if (!Succeeded(raw.copy_mem_image(top, -static_cast<int>(rows.pitch), 1))) {
            return false;
        }
        for (std::int64_t y = 0; y < size_.height && NeedsCoding(); ++y) {
            CodeAsRec2020({reinterpret_cast<std::uint16_t*>(rows.bottom + rows.pitch * y),
                           static_cast<std::size_t>(size_.width) * 3});
        }
        return true;
    }

    bool NeedsCoding() const { return development_.profile == RawProfile::Rec2020; }

    // A row of other samples than are wanted.
    void Convert(const std::uint8_t* from, int colours, int bits, std::uint8_t* to) {
        std::vector<std::uint16_t> words(static_cast<std::size_t>(size_.width) * 3);
        for (std::size_t n = 0; n < words.size(); ++n) {
            const std::size_t place = colours == 3 ? n : n / 3;
            words[n] = bits == 16 ? SampleAt<std::uint16_t>(from, place)
                                  : FromByte<std::uint16_t>(from[place]);
        }
        if (NeedsCoding()) {
            CodeAsRec2020(words);
        }
        for (std::size_t n = 0; n < words.size(); ++n) {
            samples_ == SampleKind::Word ? PutSample(to, n, words[n])
                                         : PutSample(to, n, ByteOf(words[n]));
        }
    }

    FileBytes bytes_;
    RawDevelopment development_;
    SampleKind samples_;
    StatedSize size_;
    int orientation_ = 1;
};

}  // namespace

std::unique_ptr<RawReader> NewRawReader(const PictureFile& file, const RawDevelopment& development,
                                        SampleKind samples) {
    auto reader = std::make_unique<LibRawReader>(file, development, samples);
    return reader->ReadHeader() ? std::move(reader) : nullptr;
}

}  // namespace varnel
