// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A TIFF file's directory of tags, read from a small file that the image library wrote and written
// with some of the tags changed. Reads little-endian files only; writes what the new file begins
// as.
#pragma once

#include <QByteArray>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace varnel {

enum class TiffTag : std::uint16_t {
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    PhotometricInterpretation = 262,
    FillOrder = 266,
    StripOffsets = 273,
    SamplesPerPixel = 277,
    RowsPerStrip = 278,
    StripByteCounts = 279,
    PlanarConfiguration = 284,
    Predictor = 317,
    SubIFDs = 330,
    SampleFormat = 339,
};

struct TiffField {
    std::uint16_t tag;
    std::uint16_t type;
    std::uint32_t count;
    QByteArray value;  // little-endian
    // The value is the last four bytes of an entry in the new file's byte order, perhaps a place.
    bool isEntry = false;
};

struct TiffDirectory {
    std::vector<TiffField> fields;       // in order of their tags
    std::vector<QByteArray> strips;      // the picture's, coded
    std::vector<TiffDirectory> smaller;  // at most one: the thumbnail

    TiffField* Find(TiffTag tag);
    const TiffField* Find(TiffTag tag) const;
    // The unsigned whole numbers of a tag; none when it is missing or of another type.
    std::vector<std::uint32_t> Numbers(TiffTag tag) const;
    // Changes a tag that is there: to SHORT where all the numbers fit, else to LONG.
    void SetNumbers(TiffTag tag, std::span<const std::uint32_t> numbers);
};

// The only picture of the file, with its thumbnail. None for a file with anything else in it that
// is found by its place in the file: it could not be moved.
std::optional<TiffDirectory> ReadTiff(const QByteArray& file);

// Adds the entries whose tags the directory does not have, and takes the resolution from them. They
// are of the directory of a file that begins with the block, in the block's byte order; those that
// point elsewhere are left out.
void AddEntries(TiffDirectory& directory, const QByteArray& entries, const QByteArray& block);
// In its place among the others.
void AddField(TiffDirectory& directory, TiffField field);

// What a little-endian file begins with. Where the directory is comes last, by SetDirectory.
QByteArray TiffHeader();
void SetDirectory(QByteArray& file, std::uint32_t place);

// Appends the directory, its values and its thumbnail, but not its own strips. Returns its place;
// none when the file would pass 4 GB. The values get the byte order that the file begins with.
std::optional<std::uint32_t> AppendDirectory(QByteArray& file, TiffDirectory directory);

}  // namespace varnel
