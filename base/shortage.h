// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lack of memory or threads as a message: no exception may pass from a slot into Qt's event loop.
#pragma once

#include <QString>
#include <new>
#include <system_error>

namespace varnel {

enum class Scarce { Memory, Threads };

// A sentence in the window's language. Throws nothing.
QString ShortageText(Scarce what);

// Does the work. Returns an empty text when it was done, else the message; what the work had begun
// is left as its destructors leave it. Throws what the work throws, except std::bad_alloc and
// std::system_error.
template <class Work>
QString Shortage(const Work& work) {
    try {
        work();
        return {};
    } catch (const std::bad_alloc&) {
        return ShortageText(Scarce::Memory);
    } catch (const std::system_error&) {
        return ShortageText(Scarce::Threads);
    }
}

}  // namespace varnel
