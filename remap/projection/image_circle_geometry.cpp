// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/image_circle_geometry.h"

namespace varnel {

ImageCircleGeometry MeasureCircle(const CircleView& view) {
    ImageCircleGeometry circle;
    circle.source = view.source.size;
    circle.output = view.output.size;
    circle.sourceCentre = view.source.Centre();
    const CentreAndExtents extents = view.output.Extents();
    circle.outputCentre = {extents.cx, extents.cy};
    circle.scale = view.output.scale;
    circle.outputShiftY = view.output.shift.y;
    circle.outputUpperHalf = view.output.size.height - view.output.size.height / 2;
    circle.radius = view.source.CircleRadius(view.effect);
    circle.lastColumn = extents.left;
    circle.lastRow = extents.top;
    return circle;
}

}  // namespace varnel
