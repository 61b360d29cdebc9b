// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/request/file_metadata.h"

namespace varnel {

FileMetadata UnreadMetadata() {
    FileMetadata nothing;
    nothing.metadata.notes.append(ReasonCode::MetadataUnreadable);
    return nothing;
}

void GiveMetadata(const FileMetadata& metadata, Bitmap& bitmap) {
    bitmap.metadata.photo = metadata.metadata;
    if (bitmap.metadata.colourProfile.isEmpty()) {
        bitmap.metadata.colourProfile = metadata.colourProfile;
    }
}

}  // namespace varnel
