// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps a settings file and its gears from being lost. Beside the file, "Varnel.conf", stands a
// copy of the last one that read well and had a gear, "Varnel.conf.copy". A damaged file is set
// aside as "Varnel.conf.damaged-2026-11-21T10-15-30" and the copy, or what can still be read, takes
// its place. A missing file is a first run: whoever wants to start afresh deletes it, and may
// delete the copy.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "state/settings/settings_text.h"

namespace varnel {

QString CopyOf(const QString& path);

// What is wrong with the gears; empty when each gear that is counted has its name.
Reason GearDamage(const SettingsValues& values);
bool HoldsGear(const SettingsValues& values);

// Makes the gears that are left in a damaged file ones that can be loaded: the count ends with the
// last one of which anything is left, each has a name, and one is the default.
void MendGears(SettingsValues& values);

// The settings file as it was found.
struct SettingsFile {
    bool exists = false;
    bool canBeRead = true;  // true for a missing one
    Reason reason;          // why it cannot be read
    QByteArray bytes;
    SettingsReading reading;
    QByteArray copyBytes;
    SettingsReading copy;

    bool IsWhole() const { return canBeRead && (!exists || reading.damage.isEmpty()); }
    // The copy holds what the file holds, or has to wait for a file with a gear.
    bool CopyIsFresh() const { return !exists || bytes == copyBytes || !HoldsGear(reading.values); }
    bool CopyServes() const { return copy.damage.isEmpty() && HoldsGear(copy.values); }
};
SettingsFile LookAtSettings(const QString& path);

// The values to go on with, and what the user has to be told.
struct RescuedSettings {
    SettingsValues values;
    Reason told;
    QString aside;  // the name under which the damaged file's bytes are safe; empty if they are not
    Reason mustStay;  // why the file must not be replaced, if it was tried to set it aside
};

// For a file that is not whole. Values that are already known serve where there is no copy. Without
// the right to write, or when that fails, the file stays as it is; it is only ever replaced once
// its bytes are safe under the dated name. To be called with the lock held if mayWrite.
RescuedSettings RescueSettings(const QString& path, const SettingsFile& file,
                               const SettingsValues& known, bool mayWrite, const QDateTime& now);

// Writes a settings file as a whole, for its owner only; returns the reason when it fails.
Reason WriteSettingsFile(const QString& path, const QByteArray& bytes);

}  // namespace varnel
