// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// --like: a picture that Varnel wrote as the start for others. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

#include "cli/options/options.h"

namespace varnel {

// Reads the picture that --like names, if any, and completes the options: the record to start from,
// its projection unless one was given, its photo when no file was. Lines about settings that were
// refused; or one line that says why the picture cannot be used.
std::variant<QStringList, QString> TakeLike(Options& options);

// Whether the options say which gear to take.
bool NamesGear(const Options& options);

}  // namespace varnel
