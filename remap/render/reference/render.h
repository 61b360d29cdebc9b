// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The projections as plain loops through the library's calls for single pixels: slow and obviously
// right. Tests and benchmarks measure the engine by them; no program ships them.
#pragma once

#include "remap/render/render.h"

namespace varnel::reference {

// As the functions of the same names in remap/render.h.
void RenderVarnel(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                  RenderContext& context);
void RenderRectilinear(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                       RenderContext& context);
void RenderRectilinearRotated(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                              RenderContext& context);
void RenderEquidistance(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                        RenderContext& context);
void RenderHorizon(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                   RenderContext& context);

void Render(Projection projection, const ImageRecord& image, SizeKind kind,
            RenderProgress& progress, RenderContext& context);

}  // namespace varnel::reference
