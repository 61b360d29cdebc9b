// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/tiff_coder.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <mutex>
#include <span>
#include <utility>
#include <vector>

#include "base/ordered_pieces.h"
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
// Bytes of pixels that a thread codes at a time. Rows that are drawn for it cost a little more in
// small bands.
constexpr std::size_t blockBytes = 2 * 1024 * 1024;
constexpr std::size_t fewestBlocks = 16;  // of a large picture, so that no core has to wait long
constexpr std::size_t mostWaiting = 8;    // blocks, while one is being written

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
    // Even, as strips are coded two at a time.
    std::size_t StripsPerBlock() const {
        const std::size_t wanted = std::min(blockBytes / StripBytes(), Strips() / fewestBlocks);
        return std::max<std::size_t>(wanted / 2 * 2, 2);
    }
    // Of a block's strips, counted from the bottom row.
    LineRange RowsOf(std::size_t firstStrip) const {
        const std::size_t top = firstStrip * layout.rowsPerStrip;
        const std::size_t end = std::min(top + StripsPerBlock() * layout.rowsPerStrip, height);
        return {static_cast<int>(height - end), static_cast<int>(height - 1 - top)};
    }
};

std::span<const std::uint8_t> StripOf(const Picture& picture, const Bitmap& there,
                                      std::size_t strip, TiffRows& rows, std::uint8_t* out) {
    const std::size_t count = picture.RowsIn(strip);
    for (std::size_t n = 0; n < count; ++n) {
        const std::size_t fromTop = strip * picture.layout.rowsPerStrip + n;
        const auto y = static_cast<int>(picture.height - 1 - fromTop);
        rows.Put(there.ScanLine(y).data(), out + n * picture.RowBytes());
    }
    return {out, count * picture.RowBytes()};
}

// The codes of a block's strips, and the memory for them, used again and again.
struct Block {
    std::unique_ptr<std::uint8_t[]> memory{};
    std::vector<LzwStrip> strips{};
};

// From the rows that are there.
void EncodeBlock(const Picture& picture, const Bitmap& there, std::size_t firstStrip,
                 Block& block) {
    const std::size_t largest = picture.StripBytes();
    const std::unique_ptr<StripCoder> coder =
        NewStripCoder(picture.layout.compression, picture.level);
    const std::size_t room = coder->Room(largest);
    if (!block.memory) {
        block.strips.resize(picture.StripsPerBlock());
        block.memory = std::make_unique_for_overwrite<std::uint8_t[]>(block.strips.size() * room);
    }
    const auto pixels = std::make_unique_for_overwrite<std::uint8_t[]>(2 * largest);
    TiffRows rows(picture.bitmap->Format(), picture.width, picture.layout.predictor,
                  picture.bigEndian);
    for (std::size_t n = 0; n < block.strips.size(); n += 2) {
        for (std::size_t k = n; k < n + 2; ++k) {
            LzwStrip& strip = block.strips[k];
            strip = {{}, block.memory.get() + k * room, 0};
            if (firstStrip + k < picture.Strips()) {
                strip.bytes =
                    StripOf(picture, there, firstStrip + k, rows, pixels.get() + (k - n) * largest);
            }
        }
        coder->Encode(block.strips[n], block.strips[n + 1]);
    }
}

// False when the file could not take one.
bool AppendBlock(TiffFile& file, const Block& block) {
    return std::ranges::all_of(block.strips, [&file](const LzwStrip& strip) {
        return strip.bytes.empty() ||
               (strip.length > 0 && file.Append({strip.codes, strip.length}));
    });
}

// Blocks that wait to be used again. Several threads may ask at once.
class SpareBlocks {
  public:
    std::unique_ptr<Block> Take() {
        const std::scoped_lock lock(mutex_);
        if (blocks_.empty()) {
            return std::make_unique<Block>();
        }
        std::unique_ptr<Block> block = std::move(blocks_.back());
        blocks_.pop_back();
        return block;
    }
    void GiveBack(std::unique_ptr<Block> block) {
        const std::scoped_lock lock(mutex_);
        blocks_.push_back(std::move(block));
    }

  private:
    std::mutex mutex_;
    std::vector<std::unique_ptr<Block>> blocks_;
};

bool EncodeStrips(TiffFile& file, const Picture& picture, const EncodeOptions& options) {
    using BlockHandle = std::unique_ptr<Block>;
    const std::size_t perBlock = picture.StripsPerBlock();
    const std::size_t blocks = (picture.Strips() + perBlock - 1) / perBlock;
    SpareBlocks spare;
    OrderedPieces<BlockHandle> inOrder(
        [&](BlockHandle block) {
            const bool ok = AppendBlock(file, *block);
            spare.GiveBack(std::move(block));
            return ok;
        },
        mostWaiting);
    options.Run(static_cast<int>(blocks), [&](int n) {
        if (inOrder.Failed()) {
            return;
        }
        const auto place = static_cast<std::size_t>(n);
        const std::size_t first = place * perBlock;
        BlockHandle block = spare.Take();
        options.WithRows(*picture.bitmap, picture.RowsOf(first),
                         [&](const Bitmap& there) { EncodeBlock(picture, there, first, *block); });
        inOrder.Put(place, std::move(block));
    });
    return !inOrder.Failed();
}

}  // namespace

EncodedBitmap EncodeTiff(const Bitmap* bitmap, const OutputEncoding& encoding,
                         const EncodeOptions& options) {
    const TiffMessages messages;
    const WrittenMetadata metadata = MetadataForTiff(*bitmap);
    const Picture picture(bitmap, encoding, metadata.exif.startsWith('M'));
    TiffFile file(metadata, static_cast<qint64>(picture.height * picture.RowBytes()),
                  options.largest, options.sink);
    if (!file.Describe(*bitmap, picture.layout) || !EncodeStrips(file, picture, options) ||
        !file.Finish()) {
        return {
            {},
            file.Error().isEmpty() ? messages.Added(ReasonCode::CannotBeEncoded) : file.Error()};
    }
    if (options.sink != nullptr) {
        return {{}, {}, Joined(metadata.notes)};
    }
    file.Bytes().squeeze();
    return {std::move(file.Bytes()), {}, Joined(metadata.notes)};
}

}  // namespace varnel
