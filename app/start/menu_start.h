// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The start from a file manager's menu: no window and no terminal, so the desktop tells how it
// ended. Throws std::bad_alloc only.
#pragma once

#include <QStringList>

#include "state/settings/settings_store.h"

namespace varnel {

bool IsForMenu(const QStringList& arguments);

// Converts the photos of the command line. At the end the desktop is notified of what was written,
// and what went wrong is shown in a box, where there is a display; both go to the console as well.
// Runs in one folder wait for each other, so that none takes the name of another's result. Returns
// the exit code.
int ConvertForMenu(int& argc, char** argv, SettingsStore& store);

}  // namespace varnel
