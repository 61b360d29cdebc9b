// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The libraries' errors as text. Throws std::bad_alloc only.
#pragma once

#include <QString>

namespace varnel {

// From now on the libraries print nothing; their last error is kept for AvErrorText.
void CatchAvLog();

// Of a negative result, with what the library said about it.
QString AvErrorText(int error);

}  // namespace varnel
