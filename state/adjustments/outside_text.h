// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What stands outside the photo as text: "black", "transparent" or "#rrggbb". Throws nothing.
#pragma once

#include <QString>
#include <optional>

#include "state/records/outside_fill.h"

namespace varnel {

QString ToText(const OutsideFill& fill);
// Without regard to case; nothing for any other text.
std::optional<OutsideFill> OutsideFromText(const QString& text);

}  // namespace varnel
