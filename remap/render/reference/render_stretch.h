// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The stretch as plain loops through the library's calls for single pixels. Throws std::bad_alloc
// and what the progress throws.
#pragma once

#include "remap/render/stretch.h"

namespace varnel::reference {

// As the function of the same name in remap/render/stretch.h.
void RenderStretch(const StretchCurve& curve, SizeKind kind, RenderProgress& progress,
                   RenderContext& context);

}  // namespace varnel::reference
