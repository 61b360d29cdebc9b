// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The four projections. Their numbers are stored in records and are the indices of the option
// buttons; their texts stand in file names and on the command line.
#pragma once

#include <QString>
#include <QStringView>
#include <array>
#include <cstdint>
#include <optional>

namespace varnel {

enum class Projection : std::int16_t { Varnel = 0, Rectilinear = 1, Equidistance = 2, Horizon = 3 };

inline constexpr std::array allProjections{Projection::Varnel, Projection::Rectilinear,
                                           Projection::Equidistance, Projection::Horizon};

// "Varnel", "Rectilinear", "Equidistance" or "Horizon".
QString ToText(Projection projection);
// Without regard to case; nothing for any other text.
std::optional<Projection> ProjectionFromText(QStringView text);
// 0, 1 and 2 by their number; every other number means Horizon.
Projection ProjectionFromIndex(int index);

}  // namespace varnel
