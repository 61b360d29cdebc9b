// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/horizon_map.h"

#include "base/rounding.h"

namespace varnel {

namespace {

std::int32_t RowDivisorOf(PixelSize photo) {
    const std::int32_t upperHalf = photo.height - photo.height / 2;
    return CLng(static_cast<double>(Pi) * upperHalf / photo.width, ReasonCode::RowDivisor);
}

}  // namespace

HorizonMap::HorizonMap(const CircleView& view)
    : CircleRows(view),
      halfWidth_(view.source.size.width / 2 * view.output.scale),
      rowDivisor_(RowDivisorOf(view.source.size)) {
    NonZero(rowDivisor_, ReasonCode::RowDivisorOfWidePicture);
}

double HorizonMap::Angle(int column) const {
    if (column == 0) {
        return static_cast<double>(-Pi / 2.0F);
    }
    const double pi = static_cast<double>(Pi);
    return pi * column / NonZero(halfWidth_, ReasonCode::HalfPictureWidth) + 1.5 * pi;
}

std::int32_t HorizonMap::OutputRow(int radius) const {
    const double step = static_cast<double>(-radius) / rowDivisor_;
    return CLng(step + Circle().outputCentre.y, ReasonCode::OutputRow);
}

}  // namespace varnel
