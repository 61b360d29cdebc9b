// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-decoder: decodes photos of all types for the other programs, one after the other, until
// they end.
#include "decoder/formats/decode_picture.h"
#include "decoder/metadata/read_metadata.h"
#include "decoder/process/photo_server.h"

namespace varnel {

namespace {

void Prepare() {
    PrepareDecoding();
    PrepareMetadata();
}

std::optional<LoadedPicture> Picture(std::FILE* photo, const ReadRequest& request,
                                     std::uint64_t memory, const PixelPlace& place) {
    return request.kind == ReadKind::Facts ? LoadedPicture{LoadOutcome::Loaded, nullptr, {}, {}}
                                           : DecodePicture(photo, request, memory, place);
}

}  // namespace

}  // namespace varnel

int main() {
    varnel::ServePhotos({&varnel::Prepare, &varnel::Picture, &varnel::ReadMetadata});
}
