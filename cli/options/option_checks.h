// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What options of the commands beside plain conversion go together.
#pragma once

#include "cli/options/options.h"

namespace varnel {

// Throws UsageError where a command lacks something or an option does not go with it.
void CheckCommand(const Options& options);

}  // namespace varnel
