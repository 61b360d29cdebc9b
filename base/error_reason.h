// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What was thrown, as a reason.
#pragma once

#include <exception>

#include "base/reason.h"

namespace varnel {

// Of a RunTimeError, of std::bad_alloc, of anything else in its own words.
Reason ReasonFor(const std::exception& error);

}  // namespace varnel
