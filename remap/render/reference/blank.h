// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the circle leaves black, pixel by pixel. Throws nothing.
#pragma once

#include "remap/projection/image_circle_geometry.h"
#include "remap/render/render_session.h"

namespace varnel {

// Black at the four mirror images of a position, column and row counted from the circle centre,
// rows upward; those off the result are left out.
inline void WriteBlackQuarters(const RenderSession& run, const ImageCircleGeometry& circle,
                               std::int32_t column, std::int32_t row) {
    const PixelPosition& centre = circle.outputCentre;
    run.Write(centre.x + column, centre.y + row, noLight);
    run.Write(centre.x - column, centre.y + row, noLight);
    run.Write(centre.x + column, centre.y - row, noLight);
    run.Write(centre.x - column, centre.y - row, noLight);
}

}  // namespace varnel
