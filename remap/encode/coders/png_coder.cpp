// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The picture is cut into bands of rows, and each band becomes an IDAT chunk: filtered, compressed
// and summed without its neighbours, so that joining them is appending. Looking back into the band
// before would save a thousandth of the file.

#include "remap/encode/coders/png_coder.h"

#include <libdeflate.h>
#include <zlib.h>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "base/ordered_pieces.h"
#include "remap/encode/coders/deflate/deflate_matches.h"
#include "remap/encode/coders/deflate/deflate_runs.h"
#include "remap/encode/coders/file_bytes.h"
#include "remap/encode/coders/png_filter.h"
#include "remap/encode/coders/png_head.h"
#include "remap/encode/thumbnail.h"

namespace varnel {

namespace {

constexpr std::int64_t bandBytes = 512 * 1024;  // filtered

// Filtered photos are noise and runs, in which little but runs is found in reasonable time. Where
// both are tried, each band becomes what is smaller.
struct Method {
    bool runs;
    int matches;  // libdeflate's level, 0: not tried
};
constexpr Method runs{true, 0};
constexpr Method matches{false, 5};

// Where a level is asked for. In noise runs are found better than by the lower levels.
constexpr std::array<Method, OutputEncoding::mostLevel> ofLevel{{{true, 0},
                                                                 {true, 1},
                                                                 {true, 2},
                                                                 {true, 3},
                                                                 {true, 5},
                                                                 {true, 6},
                                                                 {true, 8},
                                                                 {true, 10},
                                                                 {true, 12}}};

// Grey and enlarged photos repeat themselves in other ways as well. Of five photos, four came by
// runs to at most 1.078 times the size that matches give and to 1.1 times libpng's; the grey one
// to 1.77 and 1.6.
constexpr double runsMayGrow = 1.075;
constexpr int probes = 16;
constexpr std::int64_t probeBytes = 64 * 1024;  // of each band that is probed

constexpr std::uint8_t streamStart[] = {0x78, 0x01};  // of zlib: a window of 32 kB, fast

struct Band {
    QByteArray chunk;
    uLong sum = 0;  // Adler-32 of the filtered bytes
    qint64 length = 0;
};

class BandCoder {
  public:
    BandCoder(const Bitmap* bitmap, const EncodeOptions& options)
        : bitmap_(bitmap),
          options_(options),
          size_(SizeOf(bitmap)),
          rowBytes_(static_cast<std::size_t>(size_.width) * BytesPerPixel(bitmap->Format())),
          bandRows_(RowsIn(bandBytes)),
          bands_((size_.height + bandRows_ - 1) / bandRows_) {
        if (options.rows != nullptr) {
            sampler_.emplace(size_);
        }
    }

    int Bands() const { return bands_; }
    void Choose(int level);
    // A band without bytes could not be coded.
    Band Code(int n);
    // Of bands that are all coded, from rows that came and went; else none.
    BitmapHandle Thumbnail() const { return sampler_ ? sampler_->Thumbnail() : nullptr; }

  private:
    std::int32_t RowsIn(std::int64_t bytes) const {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(bytes / (1 + std::int64_t(rowBytes_)), 1, size_.height));
    }
    std::vector<std::uint8_t> Filtered(std::int32_t top, std::int32_t rows,
                                       ThumbnailSampler* sampler) const;

    const Bitmap* const bitmap_;
    const EncodeOptions& options_;
    const PixelSize size_;
    const std::size_t rowBytes_;
    const std::int32_t bandRows_;
    const int bands_;
    Method method_ = runs;
    std::optional<ThumbnailSampler> sampler_;
};

// top counts from the picture's top row.
std::vector<std::uint8_t> BandCoder::Filtered(std::int32_t top, std::int32_t rows,
                                              ThumbnailSampler* sampler) const {
    const std::int32_t end = std::min(top + rows, size_.height);
    const std::int32_t above = std::max(top - 1, 0);
    std::vector<std::uint8_t> filtered;
    filtered.reserve(static_cast<std::size_t>(end - top) * (1 + rowBytes_));
    options_.WithRows(
        *bitmap_, {size_.height - end, size_.height - 1 - above}, [&](const Bitmap& there) {
            const auto row = [&](std::int32_t y) { return ScanLine(&there, size_.height - 1 - y); };
            PngFilter filter(rowBytes_, top > 0 ? row(above) : std::span<const std::uint8_t>(),
                             there.Format());
            for (std::int32_t y = top; y < end; ++y) {
                const auto bytes = filter.Next(row(y));
                filtered.insert(filtered.end(), bytes.begin(), bytes.end());
            }
            if (sampler != nullptr) {
                sampler->Take(there, {size_.height - end, size_.height - 1 - top});
            }
        });
    return filtered;
}

// Appends the bytes to what is there already, to be followed by others unless they are the last
// ones; false when a library fails.
bool Deflate(std::span<const std::uint8_t> bytes, Method method, bool last,
             std::vector<std::uint8_t>& target) {
    const std::size_t before = target.size();
    if (method.runs) {
        DeflateRuns(bytes, last, target);
    }
    if (method.matches == 0) {
        return true;
    }
    std::vector<std::uint8_t> other(target.begin(),
                                    target.begin() + static_cast<std::ptrdiff_t>(before));
    if (!DeflateMatches(bytes, method.matches, last, other)) {
        return false;
    }
    if (!method.runs || other.size() < target.size()) {
        target.swap(other);
    }
    return true;
}

// Without a level by pieces of bands all over the picture.
void BandCoder::Choose(int level) {
    if (level != OutputEncoding::usualLevel) {
        method_ = ofLevel[static_cast<std::size_t>(level) - 1];
        return;
    }
    const int step = (bands_ + probes - 1) / probes;
    const int pieces = (bands_ + step - 1) / step;
    std::vector<std::pair<std::size_t, std::size_t>> sizes(static_cast<std::size_t>(pieces));
    options_.Run(pieces, [&](int n) {
        const std::vector<std::uint8_t> piece =
            Filtered(n * step * bandRows_, RowsIn(probeBytes), nullptr);
        std::vector<std::uint8_t> byRuns;
        std::vector<std::uint8_t> byMatches;
        Deflate(piece, runs, true, byRuns);
        Deflate(piece, matches, true, byMatches);
        sizes[static_cast<std::size_t>(n)] = {byRuns.size(), byMatches.size()};
    });
    double byRuns = 0.0;
    double byMatches = 0.0;
    for (const auto& [runsSize, matchesSize] : sizes) {
        byRuns += static_cast<double>(runsSize);
        byMatches += static_cast<double>(matchesSize);
    }
    method_ = byRuns > runsMayGrow * byMatches ? matches : runs;
}

Band BandCoder::Code(int n) {
    const std::vector<std::uint8_t> filtered =
        Filtered(n * bandRows_, bandRows_, sampler_ ? &*sampler_ : nullptr);
    const auto start =
        n == 0 ? std::span<const std::uint8_t>(streamStart) : std::span<const std::uint8_t>();
    std::vector<std::uint8_t> chunk(static_cast<std::size_t>(pngChunkStart) + start.size());
    std::ranges::copy(start, chunk.begin() + pngChunkStart);
    if (!Deflate(filtered, method_, n == bands_ - 1, chunk)) {
        return {};
    }
    const auto dataLength = static_cast<qsizetype>(chunk.size()) - pngChunkStart;
    chunk.resize(chunk.size() + pngChunkEnd);
    SealPngChunk(reinterpret_cast<char*>(chunk.data()), dataLength, "IDAT");
    return {QByteArray(reinterpret_cast<const char*>(chunk.data()),
                       static_cast<qsizetype>(chunk.size())),
            libdeflate_adler32(1, filtered.data(), filtered.size()),
            static_cast<qint64>(filtered.size())};
}

// What ends the compressed bytes, in a chunk of its own.
QByteArray SumChunk(uLong sum) {
    QByteArray chunk(pngChunkStart + 4 + pngChunkEnd, '\0');
    qToBigEndian<quint32>(static_cast<quint32>(sum), chunk.data() + pngChunkStart);
    SealPngChunk(chunk.data(), 4, "IDAT");
    return chunk;
}

QByteArray EndChunk() {
    QByteArray chunk(pngChunkStart + pngChunkEnd, '\0');
    SealPngChunk(chunk.data(), 0, "IEND");
    return chunk;
}

constexpr std::size_t mostWaiting = 32;  // bands, while one is being written

// Each band goes into the file as soon as those before it are in it. False when one could not be
// coded or had no place.
bool AddBands(BandCoder& coder, const EncodeOptions& options, FileBytes& file) {
    uLong sum = adler32(0, nullptr, 0);
    OrderedPieces<Band> inOrder(
        [&](const Band& band) {
            sum = adler32_combine(sum, band.sum, static_cast<z_off_t>(band.length));
            return !band.chunk.isEmpty() && file.Add(band.chunk);
        },
        mostWaiting);
    options.Run(coder.Bands(), [&](int n) {
        if (!inOrder.Failed()) {
            inOrder.Put(static_cast<std::size_t>(n), coder.Code(n));
        }
    });
    return !inOrder.Failed() && file.Add(SumChunk(sum));
}

}  // namespace

EncodedBitmap EncodePng(const Bitmap* bitmap, const OutputEncoding& encoding,
                        const EncodeOptions& options) {
    // The head has a thumbnail. Where the pixels are yet to come, one just as long keeps its place.
    const BitmapHandle early = options.rows != nullptr ? NewBitmap({1, 1}) : nullptr;
    const WrittenMetadata metadata = MetadataForPng(*bitmap, early.get());
    const PngHead head = PngHeadFor(*bitmap, metadata);
    if (!head.error.isEmpty()) {
        return {{}, head.error};
    }
    BandCoder coder(bitmap, options);
    coder.Choose(encoding.level);
    FileBytes file(options);
    bool ok = file.Add(head.bytes) && AddBands(coder, options, file) && file.Add(EndChunk());
    if (const BitmapHandle thumbnail = coder.Thumbnail(); ok && thumbnail) {
        ok = file.PutAtStart(PngHeadFor(*bitmap, MetadataForPng(*bitmap, thumbnail.get())).bytes);
    }
    if (!ok) {
        return {{}, file.Error().isEmpty() ? Reason(ReasonCode::CannotBeEncoded) : file.Error()};
    }
    return {std::move(file.Bytes()), {}, Joined(metadata.notes)};
}

}  // namespace varnel
