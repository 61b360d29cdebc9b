// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/image_circle_geometry.h"

namespace varnel {

ImageCircleGeometry MeasureCircle(const CircleView& view) {
    ImageCircleGeometry circle;
    circle.source = view.source.size;
    circle.output = view.output.size;
    circle.sourceCentre = view.source.Centre();
    // The loops are those of the frame that is specified, however much of it is cut away.
    const PixelSize inner = view.output.Inner();
    const CentreAndExtents extents = ImageCentre(inner, view.output.shift);
    const CentreAndExtents onResult = view.output.Extents();
    circle.outputCentre = {onResult.cx, onResult.cy};
    circle.shown = view.output.InnerOnResult();
    circle.scale = view.output.scale;
    circle.outputShiftY = view.output.shift.y;
    circle.outputUpperHalf = inner.height - inner.height / 2;
    circle.radius = view.source.CircleRadius(view.effect);
    circle.lastColumn = extents.left;
    circle.lastRow = extents.top;
    return circle;
}

}  // namespace varnel
