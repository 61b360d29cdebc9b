// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// TIFF files by libtiff.
#include <tiffio.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "decoder/formats/readers/direct_reader.h"
#include "decoder/formats/readers/tiff_samples.h"
#include "remap/image/pixel_access.h"

namespace varnel {

namespace {

const PictureFile& FileOf(thandle_t handle) {
    return *static_cast<const PictureFile*>(handle);
}

tmsize_t ReadBytes(thandle_t handle, void* buffer, tmsize_t count) {
    return FileOf(handle).Fill(buffer, 1, static_cast<unsigned>(count));
}

tmsize_t WriteNothing(thandle_t /*handle*/, void* /*buffer*/, tmsize_t /*count*/) {
    return 0;
}

toff_t Seek(thandle_t handle, toff_t offset, int origin) {
    std::FILE* const file = FileOf(handle).File();
    const bool sought = std::fseek(file, static_cast<long>(offset), origin) == 0;
    return sought ? static_cast<toff_t>(std::ftell(file)) : std::numeric_limits<toff_t>::max();
}

int LeaveOpen(thandle_t /*handle*/) {
    return 0;
}

toff_t LengthOf(thandle_t handle) {
    return static_cast<toff_t>(FileOf(handle).Length());
}

struct TiffCloser {
    void operator()(TIFF* tiff) const { TIFFClose(tiff); }
};
using TiffHandle = std::unique_ptr<TIFF, TiffCloser>;

// Not mapped into memory: some bytes are not to be seen as they are.
TiffHandle Opened(const PictureFile& file) {
    std::rewind(file.File());
    return TiffHandle(TIFFClientOpen("photo", "rm", const_cast<PictureFile*>(&file), &ReadBytes,
                                     &WriteNothing, &Seek, &LeaveOpen, &LengthOf, nullptr,
                                     nullptr));
}

template <class Number>
Number FieldOf(TIFF* tiff, std::uint32_t tag) {
    Number number = 0;
    TIFFGetFieldDefaulted(tiff, tag, &number);
    return number;
}

enum class AlphaKind { None, Apart, Multiplied };

// Of the first sample beyond the colours.
AlphaKind AlphaOf(TIFF* tiff, int samples, int colours) {
    std::uint16_t count = 0;
    const std::uint16_t* kinds = nullptr;
    if (samples <= colours || TIFFGetField(tiff, TIFFTAG_EXTRASAMPLES, &count, &kinds) != 1 ||
        count == 0) {
        return AlphaKind::None;
    }
    return kinds[0] == EXTRASAMPLE_UNASSALPHA   ? AlphaKind::Apart
           : kinds[0] == EXTRASAMPLE_ASSOCALPHA ? AlphaKind::Multiplied
                                                : AlphaKind::None;
}

// What the pixels are made of.
struct Layout {
    TiffSampleKind sample;
    int samples;  // a pixel
    int colours;  // 1 grey, 3 red, green and blue
    AlphaKind alpha;
    bool planes;  // one sample after the other

    PixelFormat Format() const {
        const SampleKind kind = sample.isFloat     ? SampleKind::Float
                                : sample.bits == 8 ? SampleKind::Byte
                                                   : SampleKind::Word;
        return PixelFormatOf(kind, alpha != AlphaKind::None);
    }
};

bool IsReadable(const TiffSampleKind& kind, std::uint16_t format) {
    const int bits = kind.bits;
    return kind.isFloat ? bits == 16 || bits == 32 || bits == 64
                        : (format == SAMPLEFORMAT_UINT || format == SAMPLEFORMAT_VOID) &&
                              bits >= 8 && bits <= 32;
}

std::optional<Layout> LayoutOf(TIFF* tiff) {
    const auto photometric = FieldOf<std::uint16_t>(tiff, TIFFTAG_PHOTOMETRIC);
    const auto format = FieldOf<std::uint16_t>(tiff, TIFFTAG_SAMPLEFORMAT);
    const bool isColour = photometric == PHOTOMETRIC_RGB;
    const bool isGrey = photometric == PHOTOMETRIC_MINISBLACK ||  //
                        photometric == PHOTOMETRIC_MINISWHITE;
    Layout layout{};
    layout.sample.bits = FieldOf<std::uint16_t>(tiff, TIFFTAG_BITSPERSAMPLE);
    layout.sample.isFloat = format == SAMPLEFORMAT_IEEEFP;
    layout.sample.whiteIsZero = photometric == PHOTOMETRIC_MINISWHITE;
    layout.samples = FieldOf<std::uint16_t>(tiff, TIFFTAG_SAMPLESPERPIXEL);
    layout.colours = isColour ? 3 : 1;
    layout.planes = FieldOf<std::uint16_t>(tiff, TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE;
    constexpr int mostSamples = 16;
    if ((!isColour && !isGrey) || !IsReadable(layout.sample, format) ||
        layout.samples < layout.colours || layout.samples > mostSamples ||
        (layout.sample.whiteIsZero && layout.samples > 1)) {
        return std::nullopt;
    }
    layout.alpha = AlphaOf(tiff, layout.samples, layout.colours);
    return layout;
}

// The parts that a picture is coded in: strips as wide as the picture, or tiles.
struct Parts {
    std::int64_t width;
    std::int64_t height;
    std::int64_t bytes;     // of one, decoded
    std::int64_t rowBytes;  // of one of its rows
    bool tiles;
};

Parts PartsOf(TIFF* tiff, const StatedSize& size) {
    if (TIFFIsTiled(tiff) != 0) {
        return {FieldOf<std::uint32_t>(tiff, TIFFTAG_TILEWIDTH),
                FieldOf<std::uint32_t>(tiff, TIFFTAG_TILELENGTH), TIFFTileSize(tiff),
                TIFFTileRowSize(tiff), true};
    }
    const auto rows =
        std::min<std::int64_t>(FieldOf<std::uint32_t>(tiff, TIFFTAG_ROWSPERSTRIP), size.height);
    return {size.width, rows, TIFFStripSize(tiff), TIFFScanlineSize(tiff), false};
}

// Colours that were multiplied by alpha, as they were before.
template <class Sample>
void Divide(std::uint8_t* pixel) {
    const auto alpha = static_cast<double>(SampleAt<Sample>(pixel, 3));
    constexpr bool isFloat = std::is_same_v<Sample, float>;
    constexpr double full = isFloat ? 1.0 : static_cast<double>(std::numeric_limits<Sample>::max());
    for (std::size_t place = 0; place < 3 && alpha > 0.0; ++place) {
        const double colour = static_cast<double>(SampleAt<Sample>(pixel, place)) / alpha * full;
        PutSample(pixel, place,
                  isFloat ? static_cast<Sample>(colour)
                          : static_cast<Sample>(std::min(std::round(colour), full)));
    }
}

class TiffReader : public DirectReader {
  public:
    TiffReader(TiffHandle tiff, const Layout& layout)
        : tiff_(std::move(tiff)),
          layout_(layout),
          size_{FieldOf<std::uint32_t>(tiff_.get(), TIFFTAG_IMAGEWIDTH),
                FieldOf<std::uint32_t>(tiff_.get(), TIFFTAG_IMAGELENGTH)} {}

    StatedSize Size() const override { return size_; }
    PixelFormat Format() const override { return layout_.Format(); }
    bool IsOnlyWay() const override {
        return !layout_.sample.isFloat && layout_.sample.bits % 8 != 0;
    }

    std::optional<BitmapMetadata> Read(PixelRows rows) override {
        parts_ = PartsOf(tiff_.get(), size_);
        // Of tiles more may be padding than picture, but not much more.
        constexpr std::int64_t padding = 1 << 24;  // bytes
        const std::int64_t most = size_.width * size_.height * 8 * layout_.samples + padding;
        if (parts_.width <= 0 || parts_.height <= 0 || parts_.rowBytes <= 0 ||
            parts_.bytes < parts_.rowBytes || parts_.bytes > most) {
            return std::nullopt;
        }
        rows_ = rows;
        WithSample(SampleKindOf(Format()), [this](auto kind) { ReadParts<decltype(kind)>(); });
        return Metadata();
    }

  private:
    template <class Sample>
    void ReadParts() {
        std::vector<std::uint8_t> part(static_cast<std::size_t>(parts_.bytes));
        const int planes = layout_.planes ? layout_.samples : 1;
        for (int plane = 0; plane < planes; ++plane) {
            if (layout_.planes && PlaceOf(plane) < 0) {
                continue;
            }
            for (std::int64_t y = 0; y < size_.height; y += parts_.height) {
                for (std::int64_t x = 0; x < size_.width; x += parts_.width) {
                    Decode(x, y, plane, part);
                    TakePart<Sample>(x, y, plane, part);
                }
            }
        }
        if (layout_.alpha == AlphaKind::Multiplied) {
            DivideAll<Sample>();
        }
    }

    // What is missing gives a message and stays 0.
    void Decode(std::int64_t x, std::int64_t y, int plane, std::vector<std::uint8_t>& part) {
        const auto column = static_cast<std::uint32_t>(x);
        const auto row = static_cast<std::uint32_t>(y);
        const auto sample = static_cast<std::uint16_t>(plane);
        std::ranges::fill(part, std::uint8_t{0});
        TIFF* const tiff = tiff_.get();
        if (parts_.tiles) {
            TIFFReadTile(tiff, part.data(), column, row, 0, sample);
        } else {
            TIFFReadEncodedStrip(tiff, TIFFComputeStrip(tiff, row, sample), part.data(),
                                 parts_.bytes);
        }
    }

    // Where in a pixel of ours a sample of the file belongs; negative: nowhere. Grey goes to all
    // colours.
    int PlaceOf(int sample) const {
        if (sample < layout_.colours) {
            return layout_.colours == 1 ? 0 : 2 - sample;
        }
        return sample == layout_.colours && layout_.alpha != AlphaKind::None ? 3 : -1;
    }

    template <class Sample>
    void TakePart(std::int64_t x, std::int64_t y, int plane,
                  const std::vector<std::uint8_t>& part) {
        const std::int64_t columns = std::min(parts_.width, size_.width - x);
        const std::int64_t rows = std::min(parts_.height, size_.height - y);
        const int first = layout_.planes ? plane : 0;
        const int samples = layout_.planes ? 1 : layout_.samples;
        std::vector<Sample> line(static_cast<std::size_t>(columns * samples));
        for (std::int64_t row = 0; row < rows; ++row) {
            TakeSamples(&part[static_cast<std::size_t>(row * parts_.rowBytes)], layout_.sample,
                        line.size(), line.data());
            std::uint8_t* const to = PixelAt(x, y + row);
            for (int sample = 0; sample < samples; ++sample) {
                Put(line.data() + sample, samples, PlaceOf(first + sample), to, columns);
            }
        }
    }

    // One sample of each pixel.
    template <class Sample>
    void Put(const Sample* from, int step, int place, std::uint8_t* to, std::int64_t columns) {
        const std::ptrdiff_t pixel = PixelStep(Format());
        const int copies = place == 0 && layout_.colours == 1 ? 3 : 1;
        for (std::int64_t n = 0; place >= 0 && n < columns; ++n, from += step, to += pixel) {
            for (int copy = 0; copy < copies; ++copy) {
                PutSample(to, static_cast<std::size_t>(place + copy), *from);
            }
        }
    }

    // The file's rows count from the top.
    std::uint8_t* PixelAt(std::int64_t x, std::int64_t y) const {
        return reinterpret_cast<std::uint8_t*>(rows_.bottom) +
               static_cast<std::size_t>(size_.height - 1 - y) * rows_.pitch +
               x * PixelStep(Format());
    }

    template <class Sample>
    void DivideAll() {
        for (std::int64_t y = 0; y < size_.height; ++y) {
            std::uint8_t* pixel = PixelAt(0, y);
            for (std::int64_t x = 0; x < size_.width; ++x, pixel += PixelStep(Format())) {
                Divide<Sample>(pixel);
            }
        }
    }

    // As the image library reads it: 300 dots an inch where the file has none. The colour profile
    // is read by others.
    BitmapMetadata Metadata() const {
        BitmapMetadata metadata;
        metadata.dotsPerMetreX = DotsPerMetre(TIFFTAG_XRESOLUTION);
        metadata.dotsPerMetreY = DotsPerMetre(TIFFTAG_YRESOLUTION);
        return metadata;
    }
    std::uint32_t DotsPerMetre(std::uint32_t tag) const {
        constexpr double metresPerInch = 0.0254;
        constexpr double perMetre = 100.0;  // centimetres
        constexpr double most = 1e9;
        float stated = 300.0F;
        TIFFGetField(tiff_.get(), tag, &stated);
        const bool isMetric =
            FieldOf<std::uint16_t>(tiff_.get(), TIFFTAG_RESOLUTIONUNIT) == RESUNIT_CENTIMETER;
        const double dots =
            static_cast<double>(stated) * (isMetric ? perMetre : 1.0 / metresPerInch);
        return dots >= 0.0 && dots < most ? static_cast<std::uint32_t>(std::lround(dots)) : 0U;
    }

    TiffHandle tiff_;
    Layout layout_;
    StatedSize size_;
    Parts parts_{};
    PixelRows rows_;
};

}  // namespace

std::unique_ptr<DirectReader> NewTiffReader(const PictureFile& file) {
    TiffHandle tiff = Opened(file);
    const std::optional<Layout> layout = tiff ? LayoutOf(tiff.get()) : std::nullopt;
    return layout ? std::make_unique<TiffReader>(std::move(tiff), *layout) : nullptr;
}

}  // namespace varnel
