// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-jpeg-decoder: as varnel-decoder, but for ordinary JPEG photos only. It has none of the
// other types' libraries to load, so it starts in a fraction of the time, and damaged photos meet
// less code.
#include <new>

#include "decoder/formats/readers/ordinary_jpeg.h"
#include "decoder/metadata/read_metadata.h"
#include "decoder/process/photo_server.h"

namespace varnel {

namespace {

std::optional<LoadedPicture> Picture(std::FILE* photo, const ReadRequest& request,
                                     std::uint64_t memory, const PixelPlace& place) {
    if (request.kind == ReadKind::Facts) {
        return IsJpeg(PictureFile(photo))
                   ? std::optional(LoadedPicture{LoadOutcome::Loaded, nullptr, {}, {}})
                   : std::nullopt;
    }
    const LibraryMessages messages;
    try {
        return DecodeOrdinaryJpeg(photo, request, memory, place, messages);
    } catch (const std::bad_alloc&) {
        return LoadedPicture::Refused(ReasonCode::NotEnoughMemory);
    }
}

FileMetadata Metadata(std::FILE* photo, const MetadataRequest& request) {
    return ReadMetadata({photo, InputFormat::Jpeg}, request);
}

}  // namespace

}  // namespace varnel

int main() {
    varnel::ServePhotos({&varnel::PrepareMetadata, &varnel::Picture, &varnel::Metadata});
}
