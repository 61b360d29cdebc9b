// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The one place where reasons become text.
#pragma once

#include <QString>

#include "base/reason.h"

namespace varnel {

// In the language whose translation is installed; in English where none is, as in the programs for
// the console. Words of libraries and of the system stay as they are. Empty when all is well.
QString ErrorText(const Reason& reason);

// How many arguments the text of a code has places for. The code is one that there is.
int PlacesIn(ReasonCode code);

}  // namespace varnel
