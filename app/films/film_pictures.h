// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films where photos are read: one of their frames stands for them. Throws std::bad_alloc.
#pragma once

#include <memory>

#include "decoder/process/picture_reader.h"

namespace varnel {

enum class StandIn {
    First,   // the first frame that can be decoded
    Typical  // where whole pictures are asked for, the one that TypicalFrame chooses
};

// A reader that reads films' frames itself and has all else read by the other one.
std::unique_ptr<PictureReader> WithFilms(std::unique_ptr<PictureReader> photos, StandIn frame);

}  // namespace varnel
