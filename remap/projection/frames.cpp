// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/frames.h"

#include "base/rounding.h"

namespace varnel {

namespace {

CentreShift Scaled(const CentreShift& shift, double scale) {
    return {Int(shift.x * scale), Int(shift.y * scale)};
}

}  // namespace

PixelPosition SourceFrame::Centre() const {
    CheckShift(shift);
    return {CLng(size.width / 2 + shift.x, "OfsetX"), CLng(size.height / 2 + shift.y, "OfsetY")};
}

// R = 50 * side / ratio * 100 / effect, the side being the width of a landscape frame and the
// height of an upright one; single precision at the end only.
float SourceFrame::CircleRadius(float effect) const {
    const std::int32_t side = landscape ? size.width : size.height;
    const std::int32_t fiftySides = CLng(50.0 * side, ReasonCode::PictureSide);
    return ToSingle(fiftySides / NonZero(static_cast<double>(ratio), "Ratio") * 100.0 /
                        NonZero(static_cast<double>(effect), "EffectVarnel"),
                    ReasonCode::CircleRadius);
}

OutputFrame OutputFrame::Fitted(const SourceFrame& source) const {
    if (inner.width == 0) {
        return *this;
    }
    const double fit = inner.height == Whole().height
                           ? inner.height / static_cast<double>(source.size.height)
                           : inner.width / static_cast<double>(source.size.width);
    return {size, Scaled(source.shift, fit), fit, whole, corner, inner};
}

PixelWindow OutputFrame::InnerOnResult() const {
    if (inner.width == 0) {
        return {};
    }
    const PixelSize frame = Whole();
    const std::int32_t left = frame.width / 2 - inner.width / 2 - corner.x;
    const std::int32_t bottom = frame.height / 2 - inner.height / 2 - corner.y;
    return {left, bottom, left + inner.width, bottom + inner.height};
}

CentreShift OutputFrame::ShiftOnResult() const {
    const PixelSize frame = Whole();
    return {shift.x + frame.width / 2 - corner.x - size.width / 2,
            shift.y + frame.height / 2 - corner.y - size.height / 2};
}

CentreAndExtents OutputFrame::Extents() const {
    return ImageCentre(size, ShiftOnResult());
}

OutputFrame SameAs(const SourceFrame& source) {
    return {source.size, source.shift};
}

OutputFrame Resized(const SourceFrame& source, PixelSize size) {
    const double scale = size.width / static_cast<double>(source.size.width);
    return {size, Scaled(source.shift, scale), scale};
}

}  // namespace varnel
