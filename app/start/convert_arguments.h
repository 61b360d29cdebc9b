// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The conversion of "varnel FILE...", which needs no display. Throws std::bad_alloc only.
#pragma once

#include <QDate>
#include <QStringList>

#include "cli/report/console.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Each file with the default gear into the Varnel projection, at full size, beside the photo under
// the proposed name with the extension of the stored file type. An existing file is replaced, a
// photo of the command never. The update reminder and all messages go to err, the names of the
// written files to out. Returns the exit code.
int ConvertArguments(const QStringList& files, SettingsStore& store, QDate today,
                     const Console& console);

}  // namespace varnel
