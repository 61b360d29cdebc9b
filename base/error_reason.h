// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What was thrown, as a reason. The one place where a lack of memory becomes one.
#pragma once

#include <exception>

#include "base/reason.h"

namespace varnel {

// Of a RunTimeError, of std::bad_alloc, of anything else in its own words.
Reason ReasonFor(const std::exception& error);

// Does the work, which may fail for a number or for want of memory. Empty when it could be done,
// else why not; what the work had begun is left as its destructors leave it. What is no
// std::exception passes.
template <class Work>
Reason Attempt(const Work& work) {
    try {
        work();
        return {};
    } catch (const std::exception& error) {
        return ReasonFor(error);
    }
}

}  // namespace varnel
