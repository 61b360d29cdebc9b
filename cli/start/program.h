// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert, the command-line twin of Varnel. Needs no display.
#pragma once

#include <memory>

#include "decoder/process/picture_reader.h"

namespace varnel {

// What main is for, with what it was given and the reader that gets ready meanwhile, if any.
// Returns the exit code, or ends by the signal that stopped it.
int RunProgram(int argc, char* argv[], std::unique_ptr<PictureReader> reader);

}  // namespace varnel
