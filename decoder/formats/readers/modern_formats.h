// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The types of phones and of the web that the image library does not know. Each is read where its
// library was there when Varnel was built. Throws std::bad_alloc.
#pragma once

#include "decoder/formats/input_format.h"
#include "decoder/formats/readers/direct_reader.h"

namespace varnel {

// By the contents: Heif or Jxl; Unknown for all others and for what cannot be read here.
InputFormat ModernFormatOf(const PictureFile& file);

// A reader for a file of such a type; null, after a message, when it cannot be read. Pictures come
// upright. The file has to outlive the reader, which needs the messages' collector.
std::unique_ptr<DirectReader> NewModernReader(InputFormat format, const PictureFile& file);

struct MetadataBlocks {
    QByteArray exif;  // from its TIFF header on
    QByteArray xmp;
};
// What a Heif file says besides its pixels; empty when it says nothing or cannot be read.
MetadataBlocks HeifBlocks(const PictureFile& file);

// Has the libraries open now what they would open later.
void PrepareModernReaders();

}  // namespace varnel
