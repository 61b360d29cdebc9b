// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What options of the commands beside plain conversion go together.
#pragma once

#include "cli/options/options.h"

namespace varnel {

// Throws UsageError where a command lacks something or an option does not go with it.
void CheckCommand(const Options& options);
// What becomes of files that lie there is said once. Throws UsageError.
void CheckOlderFiles(const Options& options);
// What does not go together of the options of films. Throws UsageError.
void CheckFilm(const Options& options);

}  // namespace varnel
