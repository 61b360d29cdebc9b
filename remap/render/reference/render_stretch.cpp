// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/render/reference/render_stretch.h"

#include "base/rounding.h"
#include "remap/image/sampling.h"
#include "remap/render/render_session.h"

namespace varnel::reference {

void RenderStretch(const StretchCurve& curve, SizeKind kind, RenderProgress& progress,
                   RenderContext& context) {
    RenderSession run(kind, progress, context);
    const PixelSize size = run.SourceSize();
    const double centre = MiddleOf(size.width);
    // Rounded, because a hair below a whole column the right neighbour of the blend would be one
    // too far.
    const auto columnOf = [&](std::int32_t x, double factor) {
        return Round8(centre + (x - centre) * factor);
    };
    run.Begin(static_cast<float>(size.height));
    for (std::int32_t y = 0; y < size.height; ++y) {
        run.Advance(static_cast<float>(y));
        const double factor = curve.FactorAt(HeightOfRow(y, size.height));
        for (std::int32_t x = 0; x < size.width; ++x) {
            run.Write(x, y, SampleLinearX(run.Source(), columnOf(x, factor), y));
        }
    }
}

}  // namespace varnel::reference
