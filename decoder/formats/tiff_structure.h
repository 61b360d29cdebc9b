// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Directories of TIFF files and of the raw files that are built like them, looked at without the
// library: where their data lies by their own numbers, against where the file ends. Places are
// bytes from the start of the file. Throws std::bad_alloc only.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "decoder/formats/picture_file.h"

namespace varnel {

struct TiffStructure {
    bool isCut = false;          // a directory, a value or pixel data lies beyond the file's end
    bool isMetadataCut = false;  // that is so of the metadata
    bool isDng = false;          // a raw photo; as a plain TIFF it would show a thumbnail
    int orientation = 1;         // of the first directory, as EXIF counts
    std::int64_t orientationPlace = 0;  // of its lowest byte; 0 when there is none
    // Lowest bytes of the numbers of tags that the library must not see.
    std::vector<std::int64_t> deadlyTags{};    // crashes it: it swaps four times the bytes
    std::vector<std::int64_t> metadataTags{};  // is read by others, and later
    QByteArray colourProfile;                  // of the first directory
};

// Nothing when the file does not begin like a TIFF.
std::optional<TiffStructure> TiffFactsOf(const PictureFile& file);

}  // namespace varnel
