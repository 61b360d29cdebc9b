// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What comes of reading a photo's metadata.
#pragma once

#include <QByteArray>

#include "remap/image/bitmap.h"

namespace varnel {

struct FileMetadata {
    PhotoMetadata metadata;
    QByteArray colourProfile;  // ICC, for red, green and blue; not of every type of file
};

// Of a file whose metadata were given up: a note that says so.
FileMetadata UnreadMetadata();

// Gives them to the picture of that file, which keeps a colour profile that it has. Throws nothing.
void GiveMetadata(const FileMetadata& metadata, Bitmap& bitmap);

}  // namespace varnel
