// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The reason that an exception stands for. The one place where a lack of memory becomes one. Throws
// nothing but what Attempt lets pass.
#pragma once

#include <exception>

#include "base/reason.h"

namespace varnel {

// A RunTimeError gives its code and value, std::bad_alloc NotEnoughMemory, any other exception the
// text of its what().
Reason ReasonFor(const std::exception& error);

// Does the work, which may fail because of a number or for lack of memory. Returns an empty reason
// when it was done, else why not; what the work had begun is left as its destructors leave it.
// Throws what the work throws if that is no std::exception.
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
