// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Reading pictures back as the programs read photos.
#pragma once

#include "pipeline/photos/photo_loader.h"

namespace varnel::testing {

// A reader with its own decoder, kept for the whole test run: starting one takes a while.
inline PictureReader& Reader() {
    static const std::unique_ptr<PictureReader> reader = NewPictureReader();
    return *reader;
}

inline LoadedPicture LoadPicture(const QString& path) {
    return PhotoLoader(Reader()).Load(path);
}

}  // namespace varnel::testing
