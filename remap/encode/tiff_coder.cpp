// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/tiff_coder.h"

#include <tiff.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "remap/encode/freeimage_encoder.h"
#include "remap/encode/lzw_coder.h"
#include "remap/encode/tiff_directory.h"

namespace varnel {

namespace {

// Bytes of pixels in a strip, if a row is not longer. The table is full after some 10 kB, so that
// longer strips would gain nothing more.
constexpr std::size_t stripBytes = 128 * 1024;
constexpr std::size_t stripsPerBlock = 4;
// The strips of so many bytes of pixels are held beside the file that they are then appended to.
constexpr std::size_t bytesAtOnce = 16 * 1024 * 1024;

// The pixels of a bitmap as TIFF has them: from the top row down, red first.
struct Picture {
    const Bitmap* bitmap;
    std::size_t width;
    std::size_t height;
    std::size_t rowsPerStrip;

    explicit Picture(const Bitmap* source)
        : bitmap(source),
          width(static_cast<std::size_t>(source->Size().width)),
          height(static_cast<std::size_t>(source->Size().height)) {
        rowsPerStrip = std::clamp<std::size_t>(stripBytes / RowBytes(), 1, height);
    }

    std::size_t RowBytes() const { return 3 * width; }
    std::size_t Strips() const { return (height + rowsPerStrip - 1) / rowsPerStrip; }
    std::size_t RowsIn(std::size_t strip) const {
        return std::min(rowsPerStrip, height - strip * rowsPerStrip);
    }
};

// Each pixel of a row less the one before it.
void Difference(const std::uint8_t* row, std::size_t width, std::uint8_t* out) {
    std::uint8_t before[3] = {};
    for (std::size_t x = 0; x < width; ++x, row += 3, out += 3) {
        const std::uint8_t red = row[FI_RGBA_RED];
        const std::uint8_t green = row[FI_RGBA_GREEN];
        const std::uint8_t blue = row[FI_RGBA_BLUE];
        out[0] = static_cast<std::uint8_t>(red - before[0]);
        out[1] = static_cast<std::uint8_t>(green - before[1]);
        out[2] = static_cast<std::uint8_t>(blue - before[2]);
        before[0] = red;
        before[1] = green;
        before[2] = blue;
    }
}

std::span<const std::uint8_t> DifferencesOf(const Picture& picture, std::size_t strip,
                                            std::uint8_t* out) {
    const std::size_t rows = picture.RowsIn(strip);
    for (std::size_t n = 0; n < rows; ++n) {
        const std::size_t fromTop = strip * picture.rowsPerStrip + n;
        const auto y = static_cast<int>(picture.height - 1 - fromTop);
        Difference(picture.bitmap->ScanLine(y).data(), picture.width, out + n * picture.RowBytes());
    }
    return {out, rows * picture.RowBytes()};
}

// The codes of a block's strips, and the memory for them, used again and again.
struct Block {
    std::unique_ptr<std::uint8_t[]> memory;
    std::array<LzwStrip, stripsPerBlock> strips;
};

void EncodeBlock(const Picture& picture, std::size_t firstStrip, Block& block) {
    const std::size_t largest = picture.rowsPerStrip * picture.RowBytes();
    if (!block.memory) {
        block.memory =
            std::make_unique_for_overwrite<std::uint8_t[]>(stripsPerBlock * LargestLzw(largest));
    }
    const auto pixels = std::make_unique_for_overwrite<std::uint8_t[]>(2 * largest);
    LzwEncoder encoder;
    for (std::size_t n = 0; n < stripsPerBlock; n += 2) {
        for (std::size_t k = n; k < n + 2; ++k) {
            LzwStrip& strip = block.strips[k];
            strip = {{}, block.memory.get() + k * LargestLzw(largest), 0};
            if (firstStrip + k < picture.Strips()) {
                strip.bytes =
                    DifferencesOf(picture, firstStrip + k, pixels.get() + (k - n) * largest);
            }
        }
        encoder.Encode(block.strips[n], block.strips[n + 1]);
    }
}

struct StripTable {
    std::vector<std::uint32_t> offsets;
    std::vector<std::uint32_t> lengths;
};

bool AppendStrips(QByteArray& file, const Block& block, StripTable& table) {
    for (const LzwStrip& strip : block.strips) {
        const auto length = static_cast<qint64>(strip.length);
        if (file.size() + length > largestFile) {
            return false;
        }
        if (length > 0) {
            table.offsets.push_back(static_cast<std::uint32_t>(file.size()));
            table.lengths.push_back(static_cast<std::uint32_t>(length));
            file.append(reinterpret_cast<const char*>(strip.codes), length);
        }
    }
    return true;
}

// None when the file passes 4 GB.
std::optional<StripTable> EncodeStrips(QByteArray& file, const Picture& picture,
                                       BlockRunner& runner) {
    const std::size_t blocks = (picture.Strips() + stripsPerBlock - 1) / stripsPerBlock;
    const std::size_t blockBytes = stripsPerBlock * picture.rowsPerStrip * picture.RowBytes();
    std::vector<Block> memory(std::clamp<std::size_t>(bytesAtOnce / blockBytes, 1, blocks));
    StripTable table;
    for (std::size_t first = 0; first < blocks; first += memory.size()) {
        const std::size_t count = std::min(memory.size(), blocks - first);
        runner.Run(static_cast<int>(count), [&](int n) {
            const auto block = static_cast<std::size_t>(n);
            EncodeBlock(picture, (first + block) * stripsPerBlock, memory[block]);
        });
        for (std::size_t n = 0; n < count; ++n) {
            if (!AppendStrips(file, memory[n], table)) {
                return std::nullopt;
            }
        }
    }
    return table;
}

// The library's directory for the bitmap, if it is one for pixels as they are coded here.
std::optional<TiffDirectory> DirectoryFor(const Bitmap* bitmap) {
    const BitmapHandle sample = MetadataSample(bitmap);
    std::optional<TiffDirectory> directory =
        ReadTiff(LibraryFile(FIF_TIFF, sample.get(), TIFF_LZW).bytes);
    const struct {
        TiffTag tag;
        std::vector<std::uint32_t> numbers;
    } needed[] = {
        {TiffTag::ImageWidth, {static_cast<std::uint32_t>(sample->Size().width)}},
        {TiffTag::ImageLength, {static_cast<std::uint32_t>(sample->Size().height)}},
        {TiffTag::BitsPerSample, {8, 8, 8}},
        {TiffTag::Compression, {COMPRESSION_LZW}},
        {TiffTag::PhotometricInterpretation, {PHOTOMETRIC_RGB}},
        {TiffTag::FillOrder, {FILLORDER_MSB2LSB}},
        {TiffTag::SamplesPerPixel, {3}},
        {TiffTag::PlanarConfiguration, {PLANARCONFIG_CONTIG}},
        {TiffTag::Predictor, {PREDICTOR_HORIZONTAL}},
        {TiffTag::SampleFormat, {SAMPLEFORMAT_UINT, SAMPLEFORMAT_UINT, SAMPLEFORMAT_UINT}},
    };
    for (const auto& [tag, numbers] : needed) {
        if (directory && directory->Numbers(tag) != numbers) {
            return std::nullopt;
        }
    }
    if (directory && directory->Find(TiffTag::RowsPerStrip) == nullptr) {
        return std::nullopt;
    }
    return directory;
}

// Photoshop writes IPTC as whole numbers of four bytes, and readers have come to expect that. The
// image library overruns its memory when it turns them round in a big-endian file, so there they
// are wrapped in another tag that holds them, too.
void AddIptc(TiffDirectory& directory, const WrittenMetadata& metadata) {
    if (metadata.exif.startsWith('M')) {
        const QByteArray resource = IptcResource(metadata.iptc);
        AddField(directory, {TIFFTAG_PHOTOSHOP, TIFF_BYTE,
                             static_cast<std::uint32_t>(resource.size()), resource});
        return;
    }
    const auto numbers = static_cast<std::uint32_t>((metadata.iptc.size() + 3) / 4);
    AddField(directory, {TIFFTAG_RICHTIFFIPTC, TIFF_LONG, numbers,
                         metadata.iptc.leftJustified(4 * qsizetype{numbers}, '\0')});
}

void AddMetadata(TiffDirectory& directory, const WrittenMetadata& metadata) {
    if (!metadata.xmp.isEmpty()) {
        AddField(directory, {TIFFTAG_XMLPACKET, TIFF_BYTE,
                             static_cast<std::uint32_t>(metadata.xmp.size()), metadata.xmp});
    }
    if (!metadata.iptc.isEmpty()) {
        AddIptc(directory, metadata);
    }
    if (!metadata.exif.isEmpty()) {
        AddEntries(directory, metadata.entries, metadata.exif);
    }
}

}  // namespace

std::optional<QByteArray> EncodeTiffLzw(const Bitmap* bitmap, BlockRunner& runner,
                                        const WrittenMetadata& metadata) {
    if (bitmap->Format() != PixelFormat::Bgr8) {
        return std::nullopt;
    }
    std::optional<TiffDirectory> directory = DirectoryFor(bitmap);
    if (!directory) {
        return std::nullopt;
    }
    const Picture picture(bitmap);
    const QByteArray start = metadata.exif.isEmpty() ? TiffHeader() : metadata.exif;
    QByteArray file;
    // Rarely reached, and what is not reached takes no memory.
    file.reserve(start.size() + static_cast<qint64>(picture.height * picture.RowBytes()));
    file += start;
    const std::optional<StripTable> strips = EncodeStrips(file, picture, runner);
    if (!strips) {
        return std::nullopt;
    }
    const auto number = [](std::size_t n) { return std::array{static_cast<std::uint32_t>(n)}; };
    directory->SetNumbers(TiffTag::ImageWidth, number(picture.width));
    directory->SetNumbers(TiffTag::ImageLength, number(picture.height));
    directory->SetNumbers(TiffTag::RowsPerStrip, number(picture.rowsPerStrip));
    directory->SetNumbers(TiffTag::StripOffsets, strips->offsets);
    directory->SetNumbers(TiffTag::StripByteCounts, strips->lengths);
    AddMetadata(*directory, metadata);
    const auto place = AppendDirectory(file, std::move(*directory));
    if (!place) {
        return std::nullopt;
    }
    SetDirectory(file, *place);
    file.squeeze();
    return file;
}

}  // namespace varnel
