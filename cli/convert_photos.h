// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The photos of one command, one after the other. Throws std::bad_alloc only.
#pragma once

#include "cli/choose_gear.h"
#include "cli/options/options.h"
#include "cli/report/console.h"
#include "state/settings/general_settings.h"

namespace varnel {

// Converts every photo that the options name. The name of each written file goes to out; a photo
// that fails is reported on err and the others are done. Returns the exit code.
int ConvertPhotos(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                  const Console& console);

}  // namespace varnel
