// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The lens of a photo, measured from the straight edges on it. Throws std::bad_alloc only.
#pragma once

#include "cli/conversion_records.h"
#include "remap/analysis/straighten/measure_lens.h"

namespace varnel {

// How to measure with what is known of a photo of that size: its record's lens has to be beaten,
// unless that is a guess itself.
MeasureOptions MeasureOptionsFor(const Options& options, const StartedRecord& started,
                                 PixelSize size);

// Gives the record the lens that makes the photo's edges straight, if they tell of a better one
// than its own; a note says what came of it.
void Straighten(const ConvertRequest& request, const Bitmap& photo, StartedRecord& started);

}  // namespace varnel
