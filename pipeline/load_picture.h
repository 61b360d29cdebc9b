// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading a photo from its file: the one way by which any picture enters Varnel.
#pragma once

#include <QString>

#include "remap/bitmap.h"
#include "state/image_record.h"

namespace varnel {

enum class LoadOutcome {
    Loaded,
    Damaged,   // a picture came, but a part of it is missing or wrong
    NotLoaded  // no picture
};

struct LoadedPicture {
    LoadOutcome outcome = LoadOutcome::NotLoaded;
    BitmapHandle bitmap;  // 24 bits a pixel, with the file's metadata; empty when not loaded
    QString reason;  // what is wrong, in words, without the file's name; empty when all is well

    static LoadedPicture Refused(const QString& reason) {
        return {LoadOutcome::NotLoaded, nullptr, reason};
    }
};

// The file's type is taken from its contents. JPEG is decoded accurately and raw files are
// developed for display; every depth ends as 24 bits.
LoadedPicture LoadPicture(const QString& path);

// Sets Width, Height and Landscape of the record from the size of the full picture.
void TakeSize(PixelSize size, ImageRecord& image);

}  // namespace varnel
