// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A decoder that gets ready while the program does: loading its libraries takes it longer than all
// that the program does until it asks for its first photo. Throws std::bad_alloc only.
#pragma once

#include <memory>

#include "decoder/process/picture_reader.h"

namespace varnel {

// To be called as early as can be with what main was given. Null where no word ends like the name
// of a JPEG photo, which is what a new decoder is for; then no photo may be read at all.
std::unique_ptr<PictureReader> EarlyReader(int argc, const char* const* argv);

}  // namespace varnel
