// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How far one lens is from another in the pictures that come of it. Throws std::bad_alloc.
#pragma once

#include "remap/analysis/straighten/lens_view.h"

namespace varnel {

// The largest bend, in pixels, of straight lines that the one lens drew and that are laid out by
// the other, in a rectilinear view of 6000 x 4000 pixels and 110 degrees across: its four edges,
// and lines half way to them.
double ViewBend(const LensView& drawn, const LensView& used);

}  // namespace varnel
