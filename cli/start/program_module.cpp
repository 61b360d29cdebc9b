// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert.so: see the header.
#include "cli/start/program_module.h"

#include "cli/start/program.h"
#include "decoder/process/decoder_reader.h"

extern "C" __attribute__((visibility("default"))) int varnelConvert(
    int argc, char** argv, const varnel::StartedDecoder* decoder) {
    return varnel::RunProgram(
        argc, argv,
        decoder->id > 0 ? std::make_unique<varnel::DecoderReader>(varnel::ReaderOptions(), *decoder)
                        : nullptr);
}
