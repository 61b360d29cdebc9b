// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What to do about a file that failed. Each text follows the reason and begins with "; ", or is
// empty when the reason says enough. Throws std::bad_alloc only.
#pragma once

#include <QString>

#include "base/reason.h"

namespace varnel {

// A photo that could not be read.
QString PhotoAdvice(const QString& path);

// A result that could not be written, and the reason.
QString ResultAdvice(const QString& path, const Reason& reason);

}  // namespace varnel
