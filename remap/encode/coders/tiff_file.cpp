// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/encode/coders/tiff_file.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <map>

#include "remap/image/ifd_reader.h"

namespace varnel {

namespace {

constexpr qsizetype directoryPlace = 4;  // in the header: where the first directory is
constexpr qsizetype inlineBytes = 4;     // a value as short as that stands in its entry

MemoryFile& FileOf(thandle_t handle) {
    return *static_cast<MemoryFile*>(handle);
}

tmsize_t ReadBytes(thandle_t handle, void* bytes, tmsize_t length) {
    return FileOf(handle).Read(bytes, length);
}

tmsize_t WriteBytes(thandle_t handle, void* bytes, tmsize_t length) {
    return FileOf(handle).Write(bytes, length) ? length : 0;
}

toff_t SeekTo(thandle_t handle, toff_t offset, int origin) {
    return FileOf(handle).Seek(static_cast<qint64>(offset), origin)
               ? static_cast<toff_t>(FileOf(handle).Position())
               : static_cast<toff_t>(-1);
}

int Close(thandle_t /*handle*/) {
    return 0;
}

toff_t Length(thandle_t handle) {
    return static_cast<toff_t>(FileOf(handle).Length());
}

template <class Number>
void Append(QByteArray& bytes, Number number, bool bigEndian) {
    number = bigEndian ? qToBigEndian(number) : qToLittleEndian(number);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

using Entries = TiffFile::Entries;

// From a place on, no more than that.
QByteArray BytesIn(MemoryFile& file, qint64 place, qint64 most) {
    QByteArray bytes(std::min(most, std::max<qint64>(file.Length() - place, 0)), '\0');
    file.Seek(place, SEEK_SET);
    bytes.truncate(file.Read(bytes.data(), bytes.size()));
    return bytes;
}

IfdReader ReaderOf(MemoryFile& file) {
    return IfdReader(IfdReader::Source{
        file.Length(), [&file](qint64 place, qint64 most) { return BytesIn(file, place, most); }});
}

Entries EntriesOf(MemoryFile& file, const IfdReader& reader) {
    Entries entries;
    for (const IfdEntry& entry : reader.Directory(reader.First()).entries) {
        entries[entry.tag] = BytesIn(file, entry.place, reader.EntryBytes());
    }
    return entries;
}

// Adds those whose tags the file does not have, and takes the resolution from them. What does not
// lie in the block that the file begins with is left out.
void AddEntries(Entries& entries, const WrittenMetadata& metadata) {
    constexpr std::array<std::uint16_t, 3> ofResolution{TIFFTAG_XRESOLUTION, TIFFTAG_YRESOLUTION,
                                                        TIFFTAG_RESOLUTIONUNIT};
    const IfdReader block(metadata.exif);
    for (const IfdEntry& entry : block.Entries(metadata.entries)) {
        const auto length = entry.count * static_cast<std::uint64_t>(TiffTypeBytes(entry.type));
        const bool isHere = length <= inlineBytes || block.Holds(entry.valuePlace, length);
        const bool isWanted = !entries.contains(entry.tag) ||
                              std::ranges::find(ofResolution, entry.tag) != ofResolution.end();
        if (length > 0 && isHere && isWanted) {
            entries[entry.tag] = metadata.entries.mid(entry.place, block.EntryBytes());
        }
    }
}

// libtiff keeps fractions as floating-point numbers and ends texts at their first zero byte, so the
// photo's entries are not given to it but copied as they are into a directory that takes the place
// of its own. They hold, because their values lie in the block that the file begins with.
QByteArray DirectoryOf(const Entries& entries, bool bigEndian) {
    QByteArray bytes;
    Append(bytes, static_cast<quint16>(entries.size()), bigEndian);
    for (const auto& [tag, entry] : entries) {
        bytes += entry;
    }
    Append(bytes, quint32{0}, bigEndian);  // no directory after this one
    return bytes;
}

std::uint32_t CompressionTag(TiffCompression compression) {
    switch (compression) {
        case TiffCompression::Deflate:
            return COMPRESSION_ADOBE_DEFLATE;
        case TiffCompression::Zstd:
            return COMPRESSION_ZSTD;
        case TiffCompression::None:
            return COMPRESSION_NONE;
        case TiffCompression::Usual:
        case TiffCompression::Lzw:
            break;
    }
    return COMPRESSION_LZW;
}

std::uint32_t SampleFormatTag(PixelFormat format) {
    return SampleKindOf(format) == SampleKind::Float ? SAMPLEFORMAT_IEEEFP : SAMPLEFORMAT_UINT;
}

double DotsPerInch(std::uint32_t dotsPerMetre) {
    constexpr double metresPerInch = 0.0254;
    return std::floor(0.5 + metresPerInch * dotsPerMetre);
}

}  // namespace

TiffFile::TiffFile(const WrittenMetadata& metadata, qint64 expected, qint64 largest, FileSink* sink)
    : metadata_(metadata), file_(largest, sink) {
    QByteArray start = metadata.exif;
    std::fill_n(start.begin(), start.isEmpty() ? 0 : directoryPlace + 4, '\0');
    std::copy_n(metadata.exif.begin(), start.isEmpty() ? 0 : directoryPlace, start.begin());
    // Rarely reached, and what is not reached takes no memory.
    file_.Bytes().reserve(std::min(start.size() + (sink == nullptr ? expected : 0), largest));
    file_.Write(start.constData(), start.size());
    file_.Seek(0, SEEK_SET);
    const char* const mode = start.isEmpty() ? "wl" : "a";
    tiff_.reset(TIFFClientOpen("memory", mode, &file_, &ReadBytes, &WriteBytes, &SeekTo, &Close,
                               &Length, nullptr, nullptr));
}

bool TiffFile::Describe(const Bitmap& bitmap, const TiffLayout& layout) {
    TIFF* const tiff = tiff_.get();
    if (tiff == nullptr) {
        return false;
    }
    const struct {
        std::uint32_t tag;
        std::uint32_t number;
    } numbers[] = {
        {TIFFTAG_SUBFILETYPE, 0},
        {TIFFTAG_IMAGEWIDTH, static_cast<std::uint32_t>(bitmap.Size().width)},
        {TIFFTAG_IMAGELENGTH, static_cast<std::uint32_t>(bitmap.Size().height)},
        {TIFFTAG_BITSPERSAMPLE, static_cast<std::uint32_t>(BitsPerSample(bitmap.Format()))},
        {TIFFTAG_COMPRESSION, CompressionTag(layout.compression)},
        {TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB},
        {TIFFTAG_FILLORDER, FILLORDER_MSB2LSB},
        {TIFFTAG_ORIENTATION, ORIENTATION_TOPLEFT},
        {TIFFTAG_SAMPLESPERPIXEL, HasAlpha(bitmap.Format()) ? 4U : 3U},
        {TIFFTAG_ROWSPERSTRIP, layout.rowsPerStrip},
        {TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG},
        {TIFFTAG_RESOLUTIONUNIT, RESUNIT_INCH},
        {TIFFTAG_SAMPLEFORMAT, SampleFormatTag(bitmap.Format())}};
    const auto set = [tiff](const auto& row) {
        return TIFFSetField(tiff, row.tag, row.number) == 1;
    };
    return std::ranges::all_of(numbers, set) && SetPredictor(layout) &&
           SetAlpha(HasAlpha(bitmap.Format())) &&
           TIFFSetField(tiff, TIFFTAG_XRESOLUTION, DotsPerInch(bitmap.metadata.dotsPerMetreX)) ==
               1 &&
           TIFFSetField(tiff, TIFFTAG_YRESOLUTION, DotsPerInch(bitmap.metadata.dotsPerMetreY)) ==
               1 &&
           SetBlock(TIFFTAG_ICCPROFILE, bitmap.metadata.colourProfile) &&
           SetBlock(TIFFTAG_XMLPACKET, metadata_.xmp) &&
           SetBlock(TIFFTAG_PHOTOSHOP, PhotoshopBlock());
}

// Photoshop writes IPTC as whole numbers of four bytes, and readers have come to expect that. The
// image library overruns its memory when it turns them round in a big-endian file, so there they
// are wrapped in another tag that holds them, too.
QByteArray TiffFile::PhotoshopBlock() const {
    const bool isBigEndian = metadata_.exif.startsWith('M');
    return isBigEndian && !metadata_.iptc.isEmpty() ? IptcResource(metadata_.iptc) : QByteArray();
}

// Files that are not compressed have no such tag.
bool TiffFile::SetPredictor(const TiffLayout& layout) {
    return layout.compression == TiffCompression::None ||
           TIFFSetField(tiff_.get(), TIFFTAG_PREDICTOR,
                        static_cast<std::uint32_t>(layout.predictor)) == 1;
}

// Not multiplied into the colours.
bool TiffFile::SetAlpha(bool isThere) {
    const std::uint16_t alpha = EXTRASAMPLE_UNASSALPHA;
    return !isThere || TIFFSetField(tiff_.get(), TIFFTAG_EXTRASAMPLES, 1, &alpha) == 1;
}

bool TiffFile::SetBlock(std::uint32_t tag, const QByteArray& block) {
    return block.isEmpty() ||
           TIFFSetField(tiff_.get(), tag, static_cast<std::uint32_t>(block.size()),
                        block.constData()) == 1;
}

bool TiffFile::Append(std::span<const std::uint8_t> strip) {
    file_.BeginMiddle();
    // libtiff's parameter only lacks a const.
    const tmsize_t written =
        TIFFWriteRawStrip(tiff_.get(), strips_++, const_cast<std::uint8_t*>(strip.data()),
                          static_cast<tmsize_t>(strip.size()));
    file_.EndMiddle();
    return written == static_cast<tmsize_t>(strip.size());
}

bool TiffFile::AppendEven(const QByteArray& bytes, quint32& place) {
    place = static_cast<quint32>((file_.Length() + 1) / 2 * 2);
    return file_.Seek(place, SEEK_SET) && file_.Write(bytes.constData(), bytes.size());
}

// libtiff would write them as bytes.
bool TiffFile::AppendIptc(Entries& entries) {
    if (metadata_.iptc.isEmpty() || metadata_.exif.startsWith('M')) {
        return true;
    }
    constexpr quint32 fewest = 2;  // that do not stand in the entry itself; no record is shorter
    const auto count = std::max(static_cast<quint32>((metadata_.iptc.size() + 3) / 4), fewest);
    quint32 place = 0;
    const bool isWritten =
        AppendEven(metadata_.iptc.leftJustified(4 * qsizetype{count}, '\0'), place);
    QByteArray entry;
    varnel::Append(entry, quint16{TIFFTAG_RICHTIFFIPTC}, false);
    varnel::Append(entry, quint16{TIFF_LONG}, false);
    varnel::Append(entry, count, false);
    varnel::Append(entry, place, false);
    entries[TIFFTAG_RICHTIFFIPTC] = entry;
    return isWritten;
}

bool TiffFile::Finish() {
    const bool isWritten = TIFFWriteDirectory(tiff_.get()) == 1;
    tiff_.reset();
    return isWritten && file_.Error().isEmpty() && AddPhotosEntries() && file_.Finish();
}

bool TiffFile::AddPhotosEntries() {
    if (metadata_.entries.isEmpty() && metadata_.iptc.isEmpty()) {
        return true;
    }
    const IfdReader reader = ReaderOf(file_);
    const bool isBigEndian = reader.IsBigEndian();
    Entries entries = EntriesOf(file_, reader);
    AddEntries(entries, metadata_);
    quint32 place = 0;
    if (!AppendIptc(entries) || !AppendEven(DirectoryOf(entries, isBigEndian), place)) {
        return false;
    }
    QByteArray number;
    varnel::Append(number, place, isBigEndian);
    return file_.Seek(directoryPlace, SEEK_SET) && file_.Write(number.constData(), number.size());
}

}  // namespace varnel
