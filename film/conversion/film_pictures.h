// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Single frames of a film, as pictures. Throws std::bad_alloc only.
#pragma once

#include <functional>
#include <variant>

#include "base/block_runner.h"
#include "film/reading/film_reader.h"
#include "remap/image/bitmap.h"

namespace varnel {

// The frame that is shown at that time, seconds from the first one: the last of all behind the end.
// With up to 8 or 16 bits, as frame_bitmap.h says; what the film says of its camera stands in the
// picture's metadata. Or why there is none.
std::variant<BitmapHandle, Reason> FilmFrameAt(FilmReader& reader, double seconds,
                                               BlockRunner& runner, bool eightBits);

// A frame that stands for the others: of five that are spread over the film, the one whose image
// circle is the middle one; one without a circle where most have none. 8 bits.
// Cancelled is the reason when goesOn, which is asked before each of them, says so.
std::variant<BitmapHandle, Reason> TypicalFrame(FilmReader& reader, BlockRunner& runner,
                                                const std::function<bool()>& goesOn = {});

// The camera that the film names; empty where it names none.
CameraInfo CameraOf(const FilmInfo& film);

}  // namespace varnel
