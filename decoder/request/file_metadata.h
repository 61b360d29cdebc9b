// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What comes of reading a photo's metadata.
#pragma once

#include <QByteArray>

#include "remap/image/photo_metadata.h"

namespace varnel {

struct FileMetadata {
    PhotoMetadata metadata;
    QByteArray colourProfile;  // ICC, for red, green and blue; not of every type of file
};

// Of a file whose metadata were given up: a note that says so.
FileMetadata UnreadMetadata();

// Gives them to the picture of that file. Throws std::bad_alloc.
void GiveMetadata(const FileMetadata& metadata, FIBITMAP* bitmap);

}  // namespace varnel
