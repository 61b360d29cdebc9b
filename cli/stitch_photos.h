// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel-convert --stitch: two opposite circles, in one photo or in two, as one picture of the
// whole sphere. Throws std::bad_alloc only.
#pragma once

#include "cli/choose_gear.h"
#include "cli/options/options.h"
#include "cli/report/console.h"
#include "state/settings/general_settings.h"

namespace varnel {

// The first circle looks ahead. Reports as ConvertPhotos; returns the exit code.
int StitchPhotos(const Options& options, const GearChoice& gears, const GeneralSettings& settings,
                 const Console& console);

}  // namespace varnel
