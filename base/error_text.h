// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The one place where reasons become text. Throws nothing.
#pragma once

#include <QString>

#include "base/reason.h"

namespace varnel {

// In the language whose translation is installed; in English where none is, as in the programs for
// the console. Texts of libraries and of the system are not translated. Empty for an empty reason.
QString ErrorText(const Reason& reason);

// The number of arguments in the text of a code below ReasonCode::Count.
int ArgumentCount(ReasonCode code);

}  // namespace varnel
