// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Floating-point colour brought to what a screen shows.
#pragma once

#include "decoder/formats/sample_rows.h"
#include "remap/image/bitmap.h"

namespace varnel {

// A 24-bit picture of a picture of three or four floats a pixel, taken as linear light; the fourth
// is dropped. Samples that are negative or no number count as dark.
// A picture within 0 to 1, but for one pixel in a thousand, gets the screen's curve only. Any other
// is first exposed to a middle grey and its lights compressed, by E. Reinhard, M. Stark, P. Shirley
// and J. Ferwerda, "Photographic tone reproduction for digital images", 2002, equation 4, with the
// brightest thousandth as white.
// Throws std::bad_alloc.
BitmapHandle ToneMapped(const SampleRows& rows);

}  // namespace varnel
