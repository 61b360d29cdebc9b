// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert --measure-lens: a lens file from photos. Throws std::bad_alloc only.
#pragma once

#include "cli/options/options.h"
#include "cli/report/console.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Measures the lens that took the photos of the options and writes it. What was found goes to out,
// what went wrong to err; nothing is written unless the lens does better than what is known of it.
// Returns the exit code.
int RunMeasureLens(const Options& options, SettingsStore& store, const Console& console);

}  // namespace varnel
