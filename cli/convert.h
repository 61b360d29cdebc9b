// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert without its process: what the program does with its arguments.
#pragma once

#include <QStringList>
#include <ostream>

#include "state/settings_store.h"

namespace varnel {

inline constexpr int exitAllWritten = 0;
inline constexpr int exitSomeFailed = 1;
inline constexpr int exitUsage = 2;

struct Console {
    std::ostream& out;  // names of written files, lists, help
    std::ostream& err;  // what went wrong, one line each
    bool bar = false;   // draw a progress bar on err
};

// Returns the exit code. The first argument is the program's name.
int RunConvert(const QStringList& arguments, SettingsStore& store, const Console& console);

}  // namespace varnel
