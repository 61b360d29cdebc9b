// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Keeps a settings file and its gears from being lost. Beside the file, "Varnel.conf", there is a
// copy of the last one that was undamaged and had a gear, "Varnel.conf.copy". A damaged file is set
// aside as "Varnel.conf.damaged-2026-11-21T10-15-30" and replaced by the copy, or by what can still
// be read. A missing file is a first run: to start afresh the user deletes it, and may delete the
// copy. Throws nothing; errors are returned.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include "state/settings/settings_text.h"

namespace varnel {

// The path of the copy.
QString CopyOf(const QString& path);

// What is wrong with the gears; empty when each of the counted gears has its name.
Reason GearDamage(const SettingsValues& values);
// Whether there is a first gear and a default one.
bool HoldsGear(const SettingsValues& values);

// Makes the gears that are left in a damaged file loadable: the count ends with the last one of
// which anything is left, each has a name, and one is the default.
void RepairGears(SettingsValues& values);

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
    // The copy equals the file, or cannot be made because the file has no gear.
    bool CopyIsFresh() const { return !exists || bytes == copyBytes || !HoldsGear(reading.values); }
    bool CopyIsUsable() const { return copy.damage.isEmpty() && HoldsGear(copy.values); }
};
// Reads the file and its copy; changes nothing.
SettingsFile ReadSettingsFile(const QString& path);

// The values to go on with, and the message for the user.
struct RescuedSettings {
    SettingsValues values;
    Reason message;
    QString aside;  // the name under which the damaged file's bytes are safe; empty if they are not
    Reason mustStay;  // why the file could not be set aside and must not be replaced
};

// For a file that is not whole. Values that are already known are used where there is no copy. The
// file is replaced only after its bytes were written under the dated name; if mayWrite is false or
// writing fails it stays as it is. To be called with the lock held if mayWrite.
RescuedSettings RescueSettings(const QString& path, const SettingsFile& file,
                               const SettingsValues& known, bool mayWrite, const QDateTime& now);

// Writes a settings file as a whole, for its owner only; returns the reason if that fails, else an
// empty one.
Reason WriteSettingsFile(const QString& path, const QByteArray& bytes);

}  // namespace varnel
