// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert without its process: what the program does with its arguments. Throws
// std::bad_alloc only.
#pragma once

#include <QStringList>

#include "cli/report/console.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Returns the exit code. The first argument is the program's name.
int RunConvert(const QStringList& arguments, SettingsStore& store, const Console& console);

// The same for a click on photos, which says nothing but a preset perhaps: what is not given is the
// gear that the photo tells, else the default one, else a guess; Rectilinear; beside the photo, and
// no file that is there is replaced.
int RunConvertForMenu(const QStringList& arguments, SettingsStore& store, const Console& console);

}  // namespace varnel
