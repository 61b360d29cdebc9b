// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear that varnel-convert works with.
#pragma once

#include <QString>
#include <optional>
#include <variant>

#include "cli/options.h"
#include "gear/gear_record.h"
#include "state/settings_store.h"

namespace varnel {

// The gears of the store; an empty table when there are none. Nobody is asked to define one.
GearTable StoredGears(SettingsStore& store);

// The default gear, the first one when the table has none of that name; nothing in an empty table.
std::optional<GearRecord> DefaultGear(const GearTable& table);

// From the catalogues when a camera and a lens are given, else by name from the store, else the
// store's default gear. Otherwise one line that says what is missing and how to give it.
std::variant<GearRecord, QString> ChooseGear(const Options& options, SettingsStore& store);

}  // namespace varnel
