// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A process that decodes photos for another one, of whatever types it has readers for.
#pragma once

#include <cstdint>
#include <cstdio>
#include <optional>

#include "decoder/metadata/read_metadata.h"
#include "decoder/request/loaded_picture.h"
#include "decoder/request/read_request.h"
#include "decoder/request/row_pieces.h"

namespace varnel {

struct PhotoReaders {
    // Has the libraries open what they would open later.
    void (*prepare)();
    // The picture, as DecodePicture does it; of a request for the facts alone, that it is there.
    // Nothing for what the process has no reader for: that is left to another program.
    std::optional<LoadedPicture> (*picture)(std::FILE* photo, const ReadRequest& request,
                                            std::uint64_t memory, const PixelPlace& place);
    FileMetadata (*metadata)(std::FILE* photo, const MetadataRequest& request);
};

// Prepares, gives up all rights that decoding does not need, and serves one photo after the other
// until the parent is gone; then the process ends.
[[noreturn]] void ServePhotos(const PhotoReaders& readers);

}  // namespace varnel
