// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/early_reader.h"

#include "cli/start/names_jpeg.h"

namespace varnel {

std::unique_ptr<PictureReader> EarlyReader(int argc, const char* const* argv) {
    return NamesJpeg(argc, argv) ? NewPictureReader() : nullptr;
}

}  // namespace varnel
