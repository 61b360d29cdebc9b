// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the machine could not give, in words: no exception may pass from a slot into Qt's event
// loop.
#pragma once

#include <QString>
#include <new>
#include <system_error>

namespace varnel {

enum class Scarce { Memory, Threads };

// A sentence in the window's language.
QString ShortageText(Scarce what);

// Does the work. Empty when it could be done, else what was short; what the work had begun is left
// as its destructors leave it. Other exceptions pass.
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
