// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The types of files that decoding treats in ways of their own.
#pragma once

namespace varnel {

enum class InputFormat {
    Unknown,  // no reader wants the file
    Bmp,
    Dds,
    Gif,
    Iff,
    J2k,
    Jp2,
    Jpeg,
    Png,
    Psd,
    Raw,  // of any camera
    Sgi,
    Tiff,
    WebP,
    Other,
};

}  // namespace varnel
