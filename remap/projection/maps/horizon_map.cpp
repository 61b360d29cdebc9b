// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "remap/projection/maps/horizon_map.h"

#include <cmath>

#include "base/rounding.h"

namespace varnel {

namespace {

double ColumnAngle(int column, std::int32_t halfWidth) {
    if (column == 0) {
        return static_cast<double>(-Pi / 2.0F);
    }
    const double pi = static_cast<double>(Pi);
    return pi * column / NonZero(halfWidth, ReasonCode::HalfPictureWidth) + 1.5 * pi;
}

}  // namespace

HorizonMap::HorizonMap(const CircleView& view)
    : rows_(MeasureCircle(view)),
      rowDivisor_(CLng(static_cast<double>(Pi) * rows_.upperHalf / view.source.width,
                       ReasonCode::RowDivisor)),
      // With a vertical shift the covered rows are lopsided: the lower bound is |dY| - Hc.
      firstRadius_(CLng(std::fabs(rows_.shiftY) - rows_.upperHalf, "OfsetY")) {
    NonZero(rowDivisor_, ReasonCode::RowDivisorOfWidePicture);
}

double HorizonMap::Angle(int column) const {
    return ColumnAngle(column, rows_.halfWidth);
}

SourceOffset HorizonMap::At(int column, int radius) const {
    const double theta = Angle(column);
    return {radius * std::cos(theta), radius * std::sin(theta)};
}

std::int32_t HorizonMap::OutputRow(int radius) const {
    const double step = static_cast<double>(-radius) / rowDivisor_;
    return CLng(step + rows_.centreY, ReasonCode::OutputRow);
}

}  // namespace varnel
