// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render.h"

#include <cmath>

#include "remap/projection/record_maps.h"
#include "remap/render/reference/quarter_loop.h"

namespace varnel::reference {

void RenderEquidistance(const ImageRecord& image, SizeKind kind, RenderProgress& progress,
                        RenderContext& context) {
    RenderSession run(kind, progress, context);
    const CentreAndExtents centre = ImageCentre(run.Size(), image.OfsetX, image.OfsetY);
    run.Begin(static_cast<float>(centre.left + 1));
    const EquidistanceMap map(EquidistanceViewOf(image, run.Size()));
    for (std::int32_t x = -centre.left; x <= 0; ++x) {
        // 16 bits, so that a frame of 65534 columns or more ends with an overflow.
        run.Advance(CInt(centre.left + x + 1, ReasonCode::ProgressValue));
        RenderQuarterColumn(run, map, centre, x);
    }
}

}  // namespace varnel::reference
