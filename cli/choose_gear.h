// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The gear that varnel-convert works with. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

#include "cli/options/options.h"
#include "remap/image/camera_info.h"
#include "state/records/gear_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

// The gears of the store; an empty table when there are none. The user is not asked to define one.
GearTable StoredGears(SettingsStore& store);

QStringList NamesOfGears(const GearTable& table);

// The default gear, the first one when the table has none of that name; nothing in an empty table.
std::optional<GearRecord> DefaultGear(const GearTable& table);

// The gear of a run.
struct GearChoice {
    std::optional<GearRecord> forAll;  // without it each photo gets its own
    GearTable table;                   // to find that in
    bool guesses = false;              // a typical fisheye stands in for what is not known
    bool anyLens = false;              // the lens is given apart: only cameras count
    bool advises = true;               // errors name the options that help
    std::optional<GearRecord> insteadOfGuess{};  // where the photo does not speak against it
};

// From the catalogues when a camera and a lens are given, each photo's own for the name "auto",
// else by name from the store, else the store's default gear. Otherwise one line that says what is
// missing and how to give it.
std::variant<GearChoice, QString> ChooseGear(const Options& options, SettingsStore& store);

// A photo's own gear is that of the table that took it, else one made of the catalogues' camera and
// lens. Otherwise nothing when the choice is to guess and the file names no lens that is none to
// guess for, or else the reason why there is none.
std::variant<std::optional<GearRecord>, QString> GearFor(const GearChoice& choice,
                                                         const CameraInfo& origin);

}  // namespace varnel
