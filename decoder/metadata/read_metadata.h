// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a photo's file says besides its pixels. The library that parses it may crash or hang on a
// hostile file, so this belongs into a process of its own, and after the pixels are safe.
#pragma once

#include <cstdio>

#include "base/pixel_size.h"
#include "decoder/formats/input_format.h"
#include "decoder/formats/readers/modern_formats.h"
#include "decoder/request/file_metadata.h"
#include "decoder/request/loaded_picture.h"

namespace varnel {

struct MetadataRequest {
    PixelSize size{};     // of the picture as it was loaded, pixels; 0 x 0 when it was not
    int orientation = 1;  // that was undone on loading, as EXIF counts
    // Of the picture as it was loaded, where the file's EXIF does not state it.
    double dotsPerMetreX = 0.0;  // 0 for not known
    double dotsPerMetreY = 0.0;
    bool hasProfile = false;
};

// For a picture as it was loaded.
MetadataRequest WantedFor(const LoadedPicture& picture);

// An open file (position anywhere) whose type is known.
struct MetadataSource {
    std::FILE* file = nullptr;
    InputFormat format = InputFormat::Other;
    // What stands in a Heif file; not called for other types.
    MetadataBlocks (*heifBlocks)(const PictureFile& file) = nullptr;
};

// What is broken is left out and named in the notes; never throws.
FileMetadata ReadMetadata(const MetadataSource& source, const MetadataRequest& request);

// The same of a file of any type. In a source of its own, as it takes all libraries of pictures.
FileMetadata ReadMetadata(std::FILE* file, const MetadataRequest& request);

// Has the library open now what it would open later. To be called before a process gives up its
// rights to files.
void PrepareMetadata();

}  // namespace varnel
