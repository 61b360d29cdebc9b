// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/tiff_coder.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <utility>
#include <vector>

#include "remap/encode/coders/lzw_coder.h"
#include "remap/encode/coders/tiff_file.h"
#include "remap/image/library_messages.h"

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

    std::size_t RowBytes() const { return width * BytesPerPixel(bitmap->Format()); }
    std::size_t Strips() const { return (height + rowsPerStrip - 1) / rowsPerStrip; }
    std::size_t RowsIn(std::size_t strip) const {
        return std::min(rowsPerStrip, height - strip * rowsPerStrip);
    }
};

// Each pixel of a row less the one before it.
template <int pixelBytes>
void Difference(const std::uint8_t* row, std::size_t width, std::uint8_t* out) {
    std::uint8_t before[pixelBytes] = {};
    for (std::size_t x = 0; x < width; ++x, row += pixelBytes, out += pixelBytes) {
        if constexpr (pixelBytes == 4) {
            out[3] = static_cast<std::uint8_t>(row[3] - before[3]);
            before[3] = row[3];
        }
        const std::uint8_t red = row[2];
        const std::uint8_t green = row[1];
        const std::uint8_t blue = row[0];
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
    const auto difference = HasAlpha(picture.bitmap->Format()) ? &Difference<4> : &Difference<3>;
    const std::size_t rows = picture.RowsIn(strip);
    for (std::size_t n = 0; n < rows; ++n) {
        const std::size_t fromTop = strip * picture.rowsPerStrip + n;
        const auto y = static_cast<int>(picture.height - 1 - fromTop);
        difference(picture.bitmap->ScanLine(y).data(), picture.width, out + n * picture.RowBytes());
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

// False when the file could not take one.
bool EncodeStrips(TiffFile& file, const Picture& picture, const EncodeOptions& options) {
    const std::size_t blocks = (picture.Strips() + stripsPerBlock - 1) / stripsPerBlock;
    const std::size_t blockBytes = stripsPerBlock * picture.rowsPerStrip * picture.RowBytes();
    std::vector<Block> memory(std::clamp<std::size_t>(bytesAtOnce / blockBytes, 1, blocks));
    for (std::size_t first = 0; first < blocks; first += memory.size()) {
        const std::size_t count = std::min(memory.size(), blocks - first);
        options.Run(static_cast<int>(count), [&](int n) {
            const auto block = static_cast<std::size_t>(n);
            EncodeBlock(picture, (first + block) * stripsPerBlock, memory[block]);
        });
        for (std::size_t n = 0; n < stripsPerBlock * count; ++n) {
            const LzwStrip& strip = memory[n / stripsPerBlock].strips[n % stripsPerBlock];
            if (strip.length > 0 && !file.Append({strip.codes, strip.length})) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

EncodedBitmap EncodeTiff(const Bitmap* bitmap, const OutputEncoding& /*encoding*/,
                         const EncodeOptions& options) {
    const LibraryMessages messages;
    const WrittenMetadata metadata = MetadataForTiff(*bitmap);
    const Picture picture(bitmap);
    TiffFile file(metadata, static_cast<qint64>(picture.height * picture.RowBytes()),
                  options.largest);
    if (!file.Describe(*bitmap, static_cast<std::uint32_t>(picture.rowsPerStrip)) ||
        !EncodeStrips(file, picture, options) || !file.Finish()) {
        return {
            {},
            file.Error().isEmpty() ? messages.Added(ReasonCode::CannotBeEncoded) : file.Error()};
    }
    file.Bytes().squeeze();
    return {std::move(file.Bytes()), {}, Joined(metadata.notes)};
}

}  // namespace varnel
