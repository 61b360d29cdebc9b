// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos read by the image library. Nothing else here knows which library that is.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>

#include "decoder/formats/input_format.h"
#include "decoder/formats/picture_file.h"
#include "decoder/formats/readers/stated_size.h"
#include "decoder/formats/sample_rows.h"
#include "remap/image/bitmap.h"

namespace varnel {

// A picture as the library decoded it, of any depth; or none.
class LibraryPicture {
  public:
    // bitmap is the library's and is given back with this.
    explicit LibraryPicture(std::shared_ptr<void> bitmap) : bitmap_(std::move(bitmap)) {}

    bool Exists() const { return bitmap_ != nullptr; }
    bool HasPixels() const;
    // The rest is for a picture that exists.
    StatedSize Size() const;
    // Resolution, colour profile and comments. Throws std::bad_alloc.
    BitmapMetadata Metadata() const;
    // Three or four floats a pixel, red first; nothing for pictures of any other kind.
    std::optional<SampleRows> FloatColours() const;
    // Four inks of 8 or 16 bits a pixel, the largest number is full ink; nothing for other kinds
    // and without a picture.
    std::optional<SampleRows> Inks() const;
    // In 24 bits, without metadata; the picture is gone then. Empty when the pixels are no picture
    // (complex numbers). Throws std::bad_alloc.
    BitmapHandle To24Bits();
    // What keeps the picture's own samples; of a header it may have more than the pixels will.
    PixelFormat OwnFormat() const;
    // Likewise in its own format. What has no format of its own comes in 24 bits, and alpha that is
    // 0 everywhere counts as none. Floating-point samples that are no number become 0, infinite
    // ones 1e9.
    BitmapHandle InOwnFormat();

  private:
    std::shared_ptr<void> bitmap_;
};

// Every function that reads throws whatever the library's readers throw.
class LibraryReader {
  public:
    // Finds the type by the contents, never by a name. The file has to outlive the reader.
    explicit LibraryReader(const PictureFile& file);

    InputFormat Format() const { return format_; }
    // Without its pixels; none where the type does not allow that.
    LibraryPicture Header() const;
    LibraryPicture Whole() const;
    // With its inks as they are; none for types without inks.
    LibraryPicture WithInks() const;
    // Quickly decoded, of at least that many pixels along the longer side where the photo has them.
    // None for other types than JPEG.
    LibraryPicture Preview(int longerSide) const;

  private:
    LibraryPicture Load(int flags) const;

    const PictureFile& file_;
    int type_;  // the library's number
    InputFormat format_;
};

}  // namespace varnel
