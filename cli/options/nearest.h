// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What is asked when a name is not known. Throws std::bad_alloc only.
#pragma once

#include <QString>

#include "base/nearest_name.h"

namespace varnel {

// "WHAT; did you mean "NEAREST"? REST", without the middle when nothing is near.
QString AskIfMeant(const QString& what, const QString& nearest, const QString& rest);

}  // namespace varnel
