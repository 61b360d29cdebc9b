// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-picture-library.so: see the header.
#include "remap/encode/coders/picture_library.h"

extern "C" __attribute__((visibility("default"))) const varnel::PictureLibrary*
varnelPictureLibrary() {
    static constexpr varnel::PictureLibrary library{
        &varnel::EncodeBmp,     &varnel::EncodeExr,     &varnel::EncodeHdr,
#ifdef VARNEL_JXL
        &varnel::EncodeJxl,
#else
        nullptr,
#endif
        &varnel::RescaledByBox, &varnel::IsPictureName, &varnel::LibraryVersion,
        &varnel::LibraryNotice};
    return &library;
}
