// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/request/file_metadata.h"

#include <vector>

namespace varnel {

namespace {

// Texts of a PNG file in which programs keep EXIF and the like.
bool IsMetadataInText(const QByteArray& key) {
    return key.startsWith("Raw profile type") || key.startsWith("XML:");
}

// Of what the image library reads, comments stay.
void DropLibraryTags(FIBITMAP* bitmap) {
    for (int model = FIMD_COMMENTS + 1; model <= FIMD_EXIF_RAW; ++model) {
        FreeImage_SetMetadata(static_cast<FREE_IMAGE_MDMODEL>(model), bitmap, nullptr, nullptr);
    }
    std::vector<QByteArray> dropped;
    FITAG* tag = nullptr;
    if (FIMETADATA* const search = FreeImage_FindFirstMetadata(FIMD_COMMENTS, bitmap, &tag)) {
        do {
            if (const QByteArray key = FreeImage_GetTagKey(tag); IsMetadataInText(key)) {
                dropped.push_back(key);
            }
        } while (FreeImage_FindNextMetadata(search, &tag) == TRUE);
        FreeImage_FindCloseMetadata(search);
    }
    for (const QByteArray& key : dropped) {
        FreeImage_SetMetadata(FIMD_COMMENTS, bitmap, key.constData(), nullptr);
    }
    // The library's writers die of a list that was emptied tag by tag.
    if (FreeImage_GetMetadataCount(FIMD_COMMENTS, bitmap) == 0) {
        FreeImage_SetMetadata(FIMD_COMMENTS, bitmap, nullptr, nullptr);
    }
}

}  // namespace

FileMetadata UnreadMetadata() {
    FileMetadata nothing;
    nothing.metadata.notes.append(ReasonCode::MetadataUnreadable);
    return nothing;
}

void GiveMetadata(const FileMetadata& metadata, FIBITMAP* bitmap) {
    DropLibraryTags(bitmap);
    SetMetadata(bitmap, metadata.metadata);
    if (metadata.colourProfile.isEmpty() || FreeImage_GetICCProfile(bitmap)->data != nullptr) {
        return;
    }
    // The library copies the bytes; its parameter only lacks a const.
    QByteArray profile = metadata.colourProfile;
    FreeImage_CreateICCProfile(bitmap, profile.data(), static_cast<long>(profile.size()));
}

}  // namespace varnel
