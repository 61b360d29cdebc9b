// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lenses that are curves: from files, and those of the user's own folder. Throws std::bad_alloc
// only.
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

#include "cli/options/options.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Reads the lens that --lens-file names, in any format that can be imported, into the options.
// Empty, or one line that says why it cannot be used.
QString TakeLensFile(Options& options);

// Adds the lenses of a file to the user's own; a line for each, ready for --lens, or one that says
// why there is none.
std::variant<QStringList, QString> ImportOwnLenses(const Options& options, SettingsStore& store);

// Writes the lens that --lens or --lens-file names; a line that names the file, or one that says
// why there is none.
std::variant<QStringList, QString> ExportOwnLens(const Options& options,
                                                 const SettingsStore& store);

// Brands whose lenses are curves: "My lenses" and "lensfun", whose data are read when asked for.
bool IsCurveBrand(const QString& brand);
QStringList CurveModels(const SettingsStore& store, const QString& brand);
// None for a name that the brand does not have.
LensReference CurveOf(const SettingsStore& store, const CatalogueName& lens);

}  // namespace varnel
