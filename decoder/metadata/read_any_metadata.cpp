// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/formats/library_reader.h"
#include "decoder/metadata/read_metadata.h"

namespace varnel {

FileMetadata ReadMetadata(std::FILE* file, const MetadataRequest& request) {
    try {
        const PictureFile picture(file);
        return ReadMetadata({file, LibraryReader(picture).Format(), &HeifBlocks}, request);
    } catch (...) {  // whatever the readers throw
        return UnreadMetadata();
    }
}

}  // namespace varnel
