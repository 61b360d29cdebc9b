// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The start of varnel up to the point where a window is needed, if one is. Throws std::bad_alloc
// only.
#pragma once

#include <QDate>
#include <QStringList>
#include <variant>

#include "cli/report/console.h"
#include "state/settings/settings_store.h"

namespace varnel {

// The arguments of main as texts from the local encoding, before any application object exists.
QStringList ArgumentTexts(int count, const char* const* arguments);

// The files that the window is to open with (none are fine), or the exit code of a start that needs
// no window and is done: a conversion, help, version, a wrong command line.
std::variant<QStringList, int> StartOnConsole(const QStringList& arguments, SettingsStore& store,
                                              QDate today, const Console& console);

}  // namespace varnel
