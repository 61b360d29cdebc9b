// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What a container says about its film, as plain values. Throws std::bad_alloc.
#pragma once

#include "film/frames/film_info.h"
#include "film/reading/process/frame_turn.h"
#include "film/reading/process/libav.h"

namespace varnel {

// All but the frames' format, the start and the aspect; the picture stream is that of the index.
FilmInfo FactsOf(const AVFormatContext& container, int picture);

// How frames are to be turned to be upright.
FrameTurn TurnOf(const AVStream& stream);

// What the first frame adds: sample aspect, and light levels that only pictures say.
void AddFactsOf(AVFrame& frame, const FrameTurn& turn, AVFormatContext& container, FilmInfo& film);

FilmPacket PacketOf(const AVPacket& packet);

}  // namespace varnel
