// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What --preset stands for. Throws std::bad_alloc only.
#pragma once

#include <QString>

#include "cli/options/options.h"
#include "state/settings/general_settings.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Takes what the preset holds into the options, where they leave it open, and into the settings,
// which stand behind the options of the output. One line that says what is wrong, or an empty text.
QString TakePreset(const SettingsStore& store, Options& options, GeneralSettings& settings);

}  // namespace varnel
