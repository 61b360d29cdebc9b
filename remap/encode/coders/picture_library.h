// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is done by the image library and libjxl. Both, and what they pull in, take longer to load
// than a small photo to convert, and most runs of the command line need neither: there they come
// with a module at the first call (late_picture_library.cpp); other programs are linked with them.
#pragma once

#include "remap/encode/output_format.h"
#include "remap/image/image_library.h"

namespace varnel {

EncodeFunction EncodeBmp, EncodeExr, EncodeHdr;
#ifdef VARNEL_JXL
EncodeFunction EncodeJxl;
#endif

// What the module gives out: the functions of these names.
struct PictureLibrary {
    EncodeFunction* encodeBmp;
    EncodeFunction* encodeExr;
    EncodeFunction* encodeHdr;
    EncodeFunction* encodeJxl;  // null where it was built without
    decltype(&RescaledByBox) rescaledByBox;
    decltype(&IsPictureName) isPictureName;
    decltype(&LibraryVersion) version;
    decltype(&LibraryNotice) notice;
};

// The module's one function; both are built together.
inline constexpr char pictureLibrarySymbol[] = "varnelPictureLibrary";
using GivePictureLibrary = const PictureLibrary* (*)();

}  // namespace varnel
