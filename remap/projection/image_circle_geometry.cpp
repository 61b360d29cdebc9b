// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/image_circle_geometry.h"

#include <cmath>

#include "base/rounding.h"

namespace varnel {

ImageCircleGeometry MeasureCircle(const CircleView& view) {
    const CentreShift shift = ShiftInPixels(view.source, view.offsetX, view.offsetY);
    CheckShift(shift);
    ImageCircleGeometry rows;
    rows.halfWidth = view.source.width / 2;
    rows.upperHalf = view.source.height - view.source.height / 2;
    rows.shiftX = shift.x;
    rows.shiftY = shift.y;
    rows.centreX = CLng(rows.halfWidth + shift.x, "OfsetX");
    rows.centreY = CLng(view.source.height / 2 + shift.y, "OfsetY");
    const std::int32_t side = view.landscape ? view.source.width : view.source.height;
    const std::int32_t fiftySides = CLng(50.0 * side, ReasonCode::PictureSide);
    rows.radius = ToSingle(fiftySides / NonZero(static_cast<double>(view.ratio), "Ratio") * 100.0 /
                               NonZero(static_cast<double>(view.effect), "EffectVarnel"),
                           ReasonCode::CircleRadius);
    rows.lastColumn = CLng(std::fabs(shift.x) + rows.halfWidth, "OfsetX");
    rows.lastRow = CLng(std::fabs(shift.y) + rows.upperHalf, "OfsetY");
    return rows;
}

}  // namespace varnel
