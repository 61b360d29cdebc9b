// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos read past the image library, each by the library of its type: in the depth of the file,
// straight to where the pixels are wanted.
#pragma once

#include <memory>
#include <optional>

#include "decoder/formats/picture_file.h"
#include "decoder/formats/readers/stated_size.h"
#include "remap/image/bitmap.h"
#include "remap/image/exif_orientation.h"

namespace varnel {

// One photo, whose header has been read.
class DirectReader {
  public:
    virtual ~DirectReader() = default;
    // Of the picture that comes.
    virtual StatedSize Size() const = 0;
    virtual PixelFormat Format() const = 0;
    // Whether the image library cannot read such a photo at all.
    virtual bool IsOnlyWay() const = 0;
    // What of the picture's turn the reader undoes, as EXIF counts.
    virtual int Orientation() const { return 1; }
    // A small picture that the file has beside, in 24 bits and without metadata; or none. Throws
    // std::bad_alloc.
    virtual BitmapHandle Small() { return nullptr; }
    // Fills the rows, which are of that size and format, and returns resolution, colour profile and
    // comments. What is missing or wrong gives a message as of the image library, and stays black.
    // Nothing when no picture came. Throws std::bad_alloc.
    virtual std::optional<BitmapMetadata> Read(PixelRows rows) = 0;
};

// Null for kinds of TIFF that are left to the image library: palettes, inks, luma and chroma, grey
// of less than 8 bits. Integers of up to 8 bits come as bytes, longer ones as 16 bits; floating
// point as it is, but for samples that are no number or infinite. The file has to outlive the
// reader, which needs the messages' collector. Throws std::bad_alloc.
std::unique_ptr<DirectReader> NewTiffReader(const PictureFile& file);

// Of every kind of PNG, in 8 or 16 bits. Null, after a message, when its header is not sound. The
// file has to outlive the reader, which needs the messages' collector. Throws std::bad_alloc.
std::unique_ptr<DirectReader> NewPngReader(const PictureFile& file);

}  // namespace varnel
