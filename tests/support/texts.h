// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

namespace varnel::testing {

inline QString Text(const char* text) {
    return QString::fromUtf8(text);
}

}  // namespace varnel::testing
