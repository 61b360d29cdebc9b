// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Films where photos are read: their first frame stands for them. Throws std::bad_alloc.
#pragma once

#include <memory>

#include "decoder/process/picture_reader.h"

namespace varnel {

// A reader that reads films' first frames itself and has all else read by the other one.
std::unique_ptr<PictureReader> WithFilms(std::unique_ptr<PictureReader> photos);

}  // namespace varnel
