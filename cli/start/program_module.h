// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert in two pieces. Loading the libraries takes the program as long as its decoder
// takes to get ready, so it is a few lines that start the decoder, and a module with all the rest.
#pragma once

#include "decoder/process/decoder_start.h"

namespace varnel {

inline constexpr const char* programModule = "varnel-convert.so";
inline constexpr const char* programSymbol = "varnelConvert";

// What main was given and a varnel-jpeg-decoder, or none that could be started. Returns the exit
// code, or ends by the signal that stopped it.
using ProgramFunction = int(int argc, char** argv, const StartedDecoder* decoder);

}  // namespace varnel
