// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The types of files that decoding treats in ways of their own. Throws nothing.
#pragma once

namespace varnel {

enum class InputFormat {
    Unknown,  // no reader wants the file
    Bmp,
    Dds,
    Gif,
    Heif,  // HEIC and AVIF
    Iff,
    J2k,
    Jp2,
    Jpeg,
    Jxl,
    Png,
    Psd,
    Raw,  // of any camera
    Sgi,
    Tiff,
    WebP,
    Other,
};

// Types that are read past the image library, by readers that turn the pictures, whatever is asked.
constexpr bool ComesUpright(InputFormat format) {
    return format == InputFormat::Raw || format == InputFormat::Heif || format == InputFormat::Jxl;
}

}  // namespace varnel
