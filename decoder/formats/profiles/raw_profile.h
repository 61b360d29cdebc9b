// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The colour spaces that raw photos are developed into. Throws std::bad_alloc.
#pragma once

#include <QByteArray>
#include <span>

#include "decoder/request/read_request.h"

namespace varnel {

// The ICC profile of a picture that is developed into them, always the same bytes; empty for sRGB,
// which pictures without a profile are taken for.
QByteArray ProfileOf(RawProfile profile);

// Rows of pixels, blue, green and red of 16 bits each, from linear light by the primaries of ROMM
// RGB to Rec. 2020, coded by the curve of sRGB.
void CodeAsRec2020(std::span<std::uint16_t> samples);

}  // namespace varnel
