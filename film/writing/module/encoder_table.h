// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The encoders for each codec, the best one first, and what their settings are called. Throws
// nothing.
#pragma once

#include <span>

#include "film/frames/frame_format.h"
#include "film/writing/film_writer.h"
#include "film/writing/module/av_headers.h"

namespace varnel {

struct Setting {
    const char* name;
    const char* value;
};

struct EncoderRow {
    FilmCodec codec;
    const char* name;    // the library's
    const char* speed;   // the option; null: it has none
    const char* speeds;  // what that takes, with spaces between; "0 to 8" for whole numbers
    int mostCrf;         // from 0 on; less than 0: it takes none
    bool copiesFrames;   // before it returns: it may read ours in place
    bool mustEnd;        // closed in the middle of a film it would wait for ever
    std::span<const Setting> settings;
};

std::span<const EncoderRow> EncoderRows();

// What it can be given without losing anything of a frame of that format, the nearest first to be
// found: more bits, colour at half its rows instead of a quarter, neutral colour beside grey. The
// format itself where the encoder takes it; empty where nothing fits.
std::optional<FrameFormat> FittingFormat(const AVCodec& encoder, const FrameFormat& format);

// Null where the installed library has none of the codec's.
const EncoderRow* FindEncoder(FilmCodec codec);

}  // namespace varnel
