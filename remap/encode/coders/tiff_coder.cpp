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

#include "remap/encode/coders/strip_coder.h"
#include "remap/encode/coders/tiff_file.h"
#include "remap/encode/coders/tiff_rows.h"
#include "remap/image/library_messages.h"

namespace varnel {

namespace {

// Bytes of pixels in a strip, if a row is not longer. LZW's table is full after some 10 kB, so that
// longer strips would gain nothing more; the others gain a little up to here.
constexpr std::size_t lzwStripBytes = 128 * 1024;
constexpr std::size_t otherStripBytes = 512 * 1024;
constexpr std::size_t stripsPerBlock = 4;
// The strips of so many bytes of pixels are held beside the file that they are then appended to.
constexpr std::size_t bytesAtOnce = 16 * 1024 * 1024;

TiffLayout LayoutFor(const OutputEncoding& encoding, SampleKind samples) {
    const TiffCompression compression = CompressionFor(encoding, samples);
    return {.compression = compression,
            .predictor =
                compression == TiffCompression::None ? TiffPredictor::None : PredictorFor(samples)};
}

// The pixels of a bitmap as TIFF has them: from the top row down.
struct Picture {
    const Bitmap* bitmap;
    TiffLayout layout;
    int level;
    bool bigEndian;
    std::size_t width;
    std::size_t height;

    Picture(const Bitmap* source, const OutputEncoding& encoding, bool highFirst)
        : bitmap(source),
          layout(LayoutFor(encoding, SampleKindOf(source->Format()))),
          level(encoding.level),
          bigEndian(highFirst),
          width(static_cast<std::size_t>(source->Size().width)),
          height(static_cast<std::size_t>(source->Size().height)) {
        const std::size_t stripBytes =
            layout.compression == TiffCompression::Lzw ? lzwStripBytes : otherStripBytes;
        layout.rowsPerStrip =
            static_cast<std::uint32_t>(std::clamp<std::size_t>(stripBytes / RowBytes(), 1, height));
    }

    std::size_t RowBytes() const { return width * BytesPerPixel(bitmap->Format()); }
    std::size_t StripBytes() const { return layout.rowsPerStrip * RowBytes(); }
    std::size_t Strips() const { return (height + layout.rowsPerStrip - 1) / layout.rowsPerStrip; }
    std::size_t RowsIn(std::size_t strip) const {
        return std::min<std::size_t>(layout.rowsPerStrip, height - strip * layout.rowsPerStrip);
    }
};

std::span<const std::uint8_t> StripOf(const Picture& picture, std::size_t strip, TiffRows& rows,
                                      std::uint8_t* out) {
    const std::size_t count = picture.RowsIn(strip);
    for (std::size_t n = 0; n < count; ++n) {
        const std::size_t fromTop = strip * picture.layout.rowsPerStrip + n;
        const auto y = static_cast<int>(picture.height - 1 - fromTop);
        rows.Put(picture.bitmap->ScanLine(y).data(), out + n * picture.RowBytes());
    }
    return {out, count * picture.RowBytes()};
}

// The codes of a block's strips, and the memory for them, used again and again.
struct Block {
    std::unique_ptr<std::uint8_t[]> memory;
    std::array<LzwStrip, stripsPerBlock> strips;
};

void EncodeBlock(const Picture& picture, std::size_t firstStrip, Block& block) {
    const std::size_t largest = picture.StripBytes();
    const std::unique_ptr<StripCoder> coder =
        NewStripCoder(picture.layout.compression, picture.level);
    const std::size_t room = coder->Room(largest);
    if (!block.memory) {
        block.memory = std::make_unique_for_overwrite<std::uint8_t[]>(stripsPerBlock * room);
    }
    const auto pixels = std::make_unique_for_overwrite<std::uint8_t[]>(2 * largest);
    TiffRows rows(picture.bitmap->Format(), picture.width, picture.layout.predictor,
                  picture.bigEndian);
    for (std::size_t n = 0; n < stripsPerBlock; n += 2) {
        for (std::size_t k = n; k < n + 2; ++k) {
            LzwStrip& strip = block.strips[k];
            strip = {{}, block.memory.get() + k * room, 0};
            if (firstStrip + k < picture.Strips()) {
                strip.bytes =
                    StripOf(picture, firstStrip + k, rows, pixels.get() + (k - n) * largest);
            }
        }
        coder->Encode(block.strips[n], block.strips[n + 1]);
    }
}

// False when the file could not take one.
bool EncodeStrips(TiffFile& file, const Picture& picture, const EncodeOptions& options) {
    const std::size_t blocks = (picture.Strips() + stripsPerBlock - 1) / stripsPerBlock;
    const std::size_t blockBytes = stripsPerBlock * picture.StripBytes();
    std::vector<Block> memory(std::clamp<std::size_t>(bytesAtOnce / blockBytes, 1, blocks));
    for (std::size_t first = 0; first < blocks; first += memory.size()) {
        const std::size_t count = std::min(memory.size(), blocks - first);
        options.Run(static_cast<int>(count), [&](int n) {
            const auto block = static_cast<std::size_t>(n);
            EncodeBlock(picture, (first + block) * stripsPerBlock, memory[block]);
        });
        for (std::size_t n = 0; n < stripsPerBlock * count; ++n) {
            const LzwStrip& strip = memory[n / stripsPerBlock].strips[n % stripsPerBlock];
            if (!strip.bytes.empty() &&
                (strip.length == 0 || !file.Append({strip.codes, strip.length}))) {
                return false;
            }
        }
    }
    return true;
}

}  // namespace

EncodedBitmap EncodeTiff(const Bitmap* bitmap, const OutputEncoding& encoding,
                         const EncodeOptions& options) {
    const TiffMessages messages;
    const WrittenMetadata metadata = MetadataForTiff(*bitmap);
    const Picture picture(bitmap, encoding, metadata.exif.startsWith('M'));
    TiffFile file(metadata, static_cast<qint64>(picture.height * picture.RowBytes()),
                  options.largest);
    if (!file.Describe(*bitmap, picture.layout) || !EncodeStrips(file, picture, options) ||
        !file.Finish()) {
        return {
            {},
            file.Error().isEmpty() ? messages.Added(ReasonCode::CannotBeEncoded) : file.Error()};
    }
    file.Bytes().squeeze();
    return {std::move(file.Bytes()), {}, Joined(metadata.notes)};
}

}  // namespace varnel
