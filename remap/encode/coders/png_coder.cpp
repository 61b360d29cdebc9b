// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The picture is cut into bands of rows, and each band becomes an IDAT chunk: filtered, compressed
// and summed without its neighbours, so that joining them is appending. Looking back into the band
// before would save a thousandth of the file.

#include "remap/encode/coders/png_coder.h"

#include <zlib.h>
#include <QtEndian>
#include <algorithm>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "remap/encode/coders/png_filter.h"
#include "remap/encode/coders/png_head.h"

namespace varnel {

namespace {

constexpr std::int64_t bandBytes = 512 * 1024;  // filtered

// Filtered photos are noise and runs, in which nothing but runs is found in reasonable time.
struct Method {
    int level;
    int strategy;
};
constexpr Method runs{1, Z_RLE};
constexpr Method matches{5, Z_FILTERED};

// Grey and enlarged photos repeat themselves in other ways as well. Over the size that matches
// give, photos whose files grew by up to 8 % over the library's had at most 1.04 by runs, those
// that grew by 10 % and more had 1.059 and more.
constexpr double runsMayGrow = 1.055;
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
    explicit BandCoder(const Bitmap* bitmap)
        : bitmap_(bitmap),
          size_(SizeOf(bitmap)),
          rowBytes_(bitmap->ScanLine(0).size()),
          bandRows_(RowsIn(bandBytes)),
          bands_((size_.height + bandRows_ - 1) / bandRows_) {}

    int Bands() const { return bands_; }
    void Choose(const EncodeOptions& options);
    // A band without bytes could not be coded.
    Band Code(int n) const;

  private:
    std::int32_t RowsIn(std::int64_t bytes) const {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(bytes / (1 + std::int64_t(rowBytes_)), 1, size_.height));
    }
    std::vector<std::uint8_t> Filtered(std::int32_t top, std::int32_t rows) const;

    const Bitmap* const bitmap_;
    const PixelSize size_;
    const std::size_t rowBytes_;
    const std::int32_t bandRows_;
    const int bands_;
    Method method_ = runs;
};

// top counts from the picture's top row.
std::vector<std::uint8_t> BandCoder::Filtered(std::int32_t top, std::int32_t rows) const {
    const auto row = [this](std::int32_t y) { return ScanLine(bitmap_, size_.height - 1 - y); };
    const std::int32_t end = std::min(top + rows, size_.height);
    std::vector<std::uint8_t> filtered;
    filtered.reserve(static_cast<std::size_t>(end - top) * (1 + rowBytes_));
    PngFilter filter(rowBytes_, top > 0 ? row(top - 1) : std::span<const std::uint8_t>(),
                     bitmap_->Format());
    for (std::int32_t y = top; y < end; ++y) {
        const auto bytes = filter.Next(row(y));
        filtered.insert(filtered.end(), bytes.begin(), bytes.end());
    }
    return filtered;
}

// Appends the bytes to what is there already, to be followed by others unless they are the last
// ones; false when zlib fails.
bool Deflate(std::vector<std::uint8_t>& bytes, Method method, bool last,
             std::vector<std::uint8_t>& target) {
    constexpr int rawDeflate = -15;
    constexpr int mostMemory = 9;
    constexpr std::size_t flushMark = 16;  // more than it takes
    z_stream stream{};
    if (deflateInit2(&stream, method.level, Z_DEFLATED, rawDeflate, mostMemory, method.strategy) !=
        Z_OK) {
        throw std::bad_alloc();
    }
    const std::size_t before = target.size();
    try {
        target.resize(before + deflateBound(&stream, bytes.size()) + flushMark);
    } catch (...) {
        deflateEnd(&stream);
        throw;
    }
    stream.next_in = bytes.data();
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = target.data() + before;
    stream.avail_out = static_cast<uInt>(target.size() - before);
    const int result = deflate(&stream, last ? Z_FINISH : Z_SYNC_FLUSH);
    const bool done = last ? result == Z_STREAM_END
                           : result == Z_OK && stream.avail_in == 0 && stream.avail_out > 0;
    target.resize(target.size() - stream.avail_out);
    deflateEnd(&stream);
    return done;
}

// By pieces of bands all over the picture.
void BandCoder::Choose(const EncodeOptions& options) {
    const int step = (bands_ + probes - 1) / probes;
    const int pieces = (bands_ + step - 1) / step;
    std::vector<std::pair<std::size_t, std::size_t>> sizes(static_cast<std::size_t>(pieces));
    options.Run(pieces, [&](int n) {
        std::vector<std::uint8_t> piece = Filtered(n * step * bandRows_, RowsIn(probeBytes));
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

Band BandCoder::Code(int n) const {
    std::vector<std::uint8_t> filtered = Filtered(n * bandRows_, bandRows_);
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
            adler32(adler32(0, nullptr, 0), filtered.data(), static_cast<uInt>(filtered.size())),
            static_cast<qint64>(filtered.size())};
}

// The checksum that ends the compressed bytes, in a chunk of its own.
QByteArray SumChunk(const std::vector<Band>& bands) {
    uLong sum = adler32(0, nullptr, 0);
    for (const Band& band : bands) {
        sum = adler32_combine(sum, band.sum, static_cast<z_off_t>(band.length));
    }
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

// Each band is let go once it is in the file.
QByteArray Joined(const QByteArray& head, std::vector<Band>& bands) {
    const QByteArray tail = SumChunk(bands) + EndChunk();
    qsizetype length = head.size() + tail.size();
    for (const Band& band : bands) {
        length += band.chunk.size();
    }
    QByteArray file;
    file.reserve(length);
    file += head;
    for (Band& band : bands) {
        file += band.chunk;
        band.chunk = QByteArray();
    }
    return file += tail;
}

}  // namespace

EncodedBitmap EncodePng(const Bitmap* bitmap, const OutputEncoding& /*encoding*/,
                        const EncodeOptions& options) {
    const WrittenMetadata metadata = MetadataForPng(*bitmap);
    const PngHead head = PngHeadFor(*bitmap, metadata);
    if (!head.error.isEmpty()) {
        return {{}, head.error};
    }
    BandCoder coder(bitmap);
    coder.Choose(options);
    std::vector<Band> bands(static_cast<std::size_t>(coder.Bands()));
    options.Run(coder.Bands(), [&](int n) { bands[static_cast<std::size_t>(n)] = coder.Code(n); });
    if (std::ranges::any_of(bands, [](const Band& band) { return band.chunk.isEmpty(); })) {
        return {{}, ReasonCode::CannotBeEncoded};
    }
    return {Joined(head.bytes, bands), {}, Joined(metadata.notes)};
}

}  // namespace varnel
