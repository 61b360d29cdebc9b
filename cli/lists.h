// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The lists that varnel-convert prints. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

#include "cli/options/options.h"
#include "state/settings/settings_store.h"

namespace varnel {

// One entry a line: cameras and lenses as BRAND/MODEL, ready for --camera and --lens, all or those
// of one brand; gears by name; with the option for JSON objects. Otherwise one line that says why
// not.
std::variant<QStringList, QString> ListFor(const Options& options, SettingsStore& store);

}  // namespace varnel
