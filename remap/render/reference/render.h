// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections as plain loops through the library's calls for single pixels: slow and obviously
// right. Tests and benchmarks measure the engine by them; no program ships them.
#pragma once

#include "remap/projection/circle_rows.h"
#include "remap/projection/smooth_map.h"
#include "remap/projection/straight_rows.h"
#include "remap/render/render_session.h"

namespace varnel::reference {

// As the function of the same name in remap/render/render.h.
void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context);

// The loops of each kind of map, on a session that was made for it. They throw OverflowError.
void RenderSmooth(RenderSession& run, const SmoothMap& map);
void RenderStraightRows(RenderSession& run, const StraightRows& map);
void RenderCircleRows(RenderSession& run, const CircleRows& map);

}  // namespace varnel::reference
