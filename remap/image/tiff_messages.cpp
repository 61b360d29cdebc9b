// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Apart, so that libtiff is linked only where it is used.
#include <tiffio.h>

#include <array>
#include <cstdarg>
#include <cstdio>

#include "remap/image/library_messages.h"

namespace varnel {

namespace {

void KeepFromTiff(const char* /*module*/, const char* format, va_list arguments) {
    std::array<char, 512> text{};
    std::vsnprintf(text.data(), text.size(), format, arguments);
    AddLibraryMessage(QString::fromLocal8Bit(text.data()));
}

}  // namespace

TiffMessages::TiffMessages() {
    TIFFSetErrorHandler(&KeepFromTiff);
    TIFFSetWarningHandler(nullptr);
}

}  // namespace varnel
