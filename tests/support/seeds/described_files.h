// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Picture files around blocks of metadata that may hold any bytes: what belongs to the pixels is
// sound and can be reached whatever they hold.
#pragma once

#include <QByteArray>
#include <functional>

namespace varnel::testing {

struct MetadataBlocks {
    QByteArray exif;         // with the mark of six bytes that stands before it in JPEG files
    QByteArray xmp;          // a packet
    QByteArray iptc;         // records
    QByteArray profile;      // ICC
    bool bigEndian = false;  // the EXIF block was made so
    // Type, count and place or value of a metadata entry of a TIFF file's directory, 10 bytes.
    std::function<void(QByteArray&)> spoilEntry = {};
};

// What a photo has, EXIF with a maker's note.
MetadataBlocks SoundBlocks(bool bigEndian);

// The seeds' picture (in grey in a TIFF file) with these blocks.
QByteArray DescribedJpeg(const MetadataBlocks& blocks);
QByteArray DescribedPng(const MetadataBlocks& blocks);
QByteArray DescribedTiff(const MetadataBlocks& blocks);
QByteArray DescribedWebp(const MetadataBlocks& blocks);

struct DescribedKind {
    const char* type;
    QByteArray (*file)(const MetadataBlocks&);
};
inline constexpr DescribedKind describedKinds[] = {{"jpeg", &DescribedJpeg},
                                                   {"png", &DescribedPng},
                                                   {"tiff", &DescribedTiff},
                                                   {"webp", &DescribedWebp}};

}  // namespace varnel::testing
