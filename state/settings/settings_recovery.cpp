// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/settings_recovery.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <optional>

#include "files/atomic_file.h"
#include "state/settings/number_text.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

constexpr auto ownerOnly = QFileDevice::ReadOwner | QFileDevice::WriteOwner;
constexpr int mostNames = 1000;  // of damaged files within one second

const QString* FindGear(const SettingsValues& values, QLatin1StringView name, int n) {
    return values.Find(setting::Gear, setting::ItemKey(name, n));
}

std::optional<int> CountedGears(const SettingsValues& values) {
    const QString* const count = values.Find(setting::Gear, setting::NumGear);
    return count == nullptr ? std::nullopt : WholeFromText(*count);
}

// A key of a gear, or one about all gears, in another section: the title of theirs is lost.
bool IsStrayGear(const SettingsValues::Name& name) {
    constexpr QLatin1StringView parts[] = {
        setting::NumGear,         setting::DefaultGearName,     setting::GearName,
        setting::GearCameraBrand, setting::GearCameraModel,     setting::GearLensBrand,
        setting::GearLensModel,   setting::GearLensDataVersion, setting::GearOfsetX,
        setting::GearOfsetY,      setting::GearRatio,           setting::HorizontalAov,
        setting::VerticalAov};
    return name.first != setting::Gear &&
           std::any_of(std::begin(parts), std::end(parts),
                       [&](QLatin1StringView part) { return name.second.startsWith(part); });
}

// The highest number of a gear of which a name is left. Gears beyond the count were deleted and
// do not come back, unless the count itself is gone.
int LastGear(const SettingsValues& values) {
    const int counted = CountedGears(values).value_or(0);
    int last = 0;
    for (const auto& [name, text] : values.InOrder()) {
        for (const QLatin1StringView part : {setting::GearName, setting::GearCameraModel}) {
            if (name.first == setting::Gear && name.second.startsWith(part)) {
                const int n = QStringView(name.second).sliced(part.size()).toInt();
                last = n <= counted || counted == 0 ? std::max(last, n) : last;
            }
        }
    }
    return std::min(last, setting::mostGears);
}

struct FileBytes {
    bool exists = false;
    QByteArray bytes;
    Reason reason;  // why it cannot be read
};

FileBytes ReadFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) {
        return {};
    }
    if (!info.isFile()) {  // reading a pipe would block
        return {true, {}, ReasonCode::NotRegular};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return {true, {}, {ReasonCode::Words, file.errorString()}};
    }
    const QByteArray bytes = file.readAll();
    const bool isWhole = file.error() == QFileDevice::NoError;
    return {true, bytes, isWhole ? Reason() : Reason(ReasonCode::Words, file.errorString())};
}

bool Holds(const QString& path, const QByteArray& bytes) {
    const FileBytes file = ReadFile(path);
    return file.exists && file.reason.isEmpty() && file.bytes == bytes;
}

// A free name, or one under which an earlier attempt has already written the bytes.
QString NameFor(const QString& path, const QByteArray& bytes, const QDateTime& now) {
    const QString dated =
        path + QStringLiteral(".damaged-") + now.toString(QStringLiteral("yyyy-MM-ddTHH-mm-ss"));
    QString name = dated;
    for (int n = 2; QFileInfo::exists(name) && !Holds(name, bytes) && n < mostNames; ++n) {
        name = dated + u'-' + QString::number(n);
    }
    return name;
}

// Writes the file's bytes under a dated name.
void SetAside(const QString& path, const QByteArray& bytes, const QDateTime& now,
              RescuedSettings& rescued) {
    const QString name = NameFor(path, bytes, now);
    if (!Holds(name, bytes)) {
        rescued.mustStay =
            QFileInfo::exists(name) ? ReasonCode::AllNamesTaken : WriteSettingsFile(name, bytes);
    }
    if (rescued.mustStay.isEmpty()) {
        rescued.aside = QFileInfo(name).fileName();
    } else {
        rescued.mustStay = {ReasonCode::NotSetAside, rescued.mustStay};
    }
}

// Removes the file if there are no bytes.
void Replace(const QString& path, const QByteArray& bytes) {
    if (bytes.isEmpty()) {
        QFile::remove(path);
    } else {
        WriteSettingsFile(path, bytes);
    }
}

Reason WhatIsUsed(bool copyIsUsable, const SettingsValues& values) {
    return copyIsUsable     ? ReasonCode::CopyIsUsed
           : values.Empty() ? ReasonCode::SettingsBeginAfresh
                            : ReasonCode::RestIsUsed;
}

}  // namespace

QString CopyOf(const QString& path) {
    return path + QStringLiteral(".copy");
}

bool HoldsGear(const SettingsValues& values) {
    const QString* const name = FindGear(values, setting::GearName, 1);
    const QString* const byDefault = values.Find(setting::Gear, setting::DefaultGearName);
    return name != nullptr && !name->isEmpty() && byDefault != nullptr && !byDefault->isEmpty();
}

Reason GearDamage(const SettingsValues& values) {
    for (const auto& [name, text] : values.InOrder()) {
        if (IsStrayGear(name)) {
            return ReasonCode::GearTitleLost;
        }
    }
    if (!CountedGears(values) && FindGear(values, setting::GearName, 2) != nullptr) {
        return ReasonCode::GearNumberMissing;
    }
    const int count = CountedGears(values).value_or(0);
    for (int n = 1; n <= count; ++n) {
        if (FindGear(values, setting::GearName, n) == nullptr) {
            return {ReasonCode::GearMissing, n, count};
        }
    }
    const QString* const byDefault = values.Find(setting::Gear, setting::DefaultGearName);
    const bool isLost = count > 0 && (byDefault == nullptr || byDefault->isEmpty());
    return isLost ? ReasonCode::DefaultGearMissing : ReasonCode::None;
}

void RepairGears(SettingsValues& values) {
    for (const auto& [name, text] : values.InOrder()) {
        if (IsStrayGear(name)) {
            values.Remove(name.first, name.second);
            values.Set(setting::Gear, name.second, text);
        }
    }
    const int last = LastGear(values);
    if (last == 0) {
        // As on a first run: no gear is left.
        values.Remove(setting::Gear, setting::NumGear);
        values.Remove(setting::Gear, setting::DefaultGearName);
        return;
    }
    values.Set(setting::Gear, setting::NumGear, QString::number(last));
    for (int n = 1; n <= last; ++n) {
        const QString* const name = FindGear(values, setting::GearName, n);
        if (name == nullptr || name->isEmpty()) {
            values.Set(setting::Gear, setting::ItemKey(setting::GearName, n),
                       QStringLiteral("Gear %1").arg(n));
        }
    }
    if (!HoldsGear(values)) {
        const QString first = *FindGear(values, setting::GearName, 1);
        values.Set(setting::Gear, setting::DefaultGearName, first);
    }
}

SettingsFile ReadSettingsFile(const QString& path) {
    SettingsFile file;
    const FileBytes copy = ReadFile(CopyOf(path));
    file.copyBytes = copy.bytes;
    const auto read = [](const QByteArray& bytes) {
        SettingsReading reading = ReadSettingsText(bytes);
        if (reading.damage.isEmpty()) {
            reading.damage = GearDamage(reading.values);
        }
        return reading;
    };
    file.copy = read(file.copyBytes);
    const FileBytes own = ReadFile(path);
    file.exists = own.exists;
    file.canBeRead = own.reason.isEmpty();
    file.reason = own.reason;
    file.bytes = own.bytes;
    if (file.exists && file.canBeRead) {
        file.reading = read(file.bytes);
        // A file of an older release, without a last line of its own, that lost its last lines.
        if (file.reading.damage.isEmpty() && file.CopyIsUsable() &&
            file.bytes.size() < file.copyBytes.size() && file.copyBytes.startsWith(file.bytes)) {
            file.reading.damage = ReasonCode::TextCutShort;
        }
    }
    return file;
}

Reason WriteSettingsFile(const QString& path, const QByteArray& bytes) {
    const bool isNew = !QFileInfo::exists(path);
    const WriteResult written = WriteWholeFile(path, bytes);
    if (written && isNew) {
        QFile::setPermissions(path, ownerOnly);
    }
    return written ? Reason() : written.reason;
}

RescuedSettings RescueSettings(const QString& path, const SettingsFile& file,
                               const SettingsValues& known, bool mayWrite, const QDateTime& now) {
    RescuedSettings rescued;
    const bool byCopy = file.CopyIsUsable();
    rescued.values = byCopy ? file.copy.values : known;
    if (!file.canBeRead) {
        rescued.mustStay = file.reason;
        rescued.message = {ReasonCode::SettingsUnreadable, path, file.reason,
                           WhatIsUsed(byCopy, rescued.values)};
        return rescued;
    }
    if (!byCopy && !HoldsGear(known)) {
        rescued.values = file.reading.values;
        RepairGears(rescued.values);
    }
    if (mayWrite) {
        SetAside(path, file.bytes, now, rescued);
    }
    const QByteArray better = byCopy                   ? file.copyBytes
                              : rescued.values.Empty() ? QByteArray()
                                                       : SettingsText(rescued.values);
    if (!rescued.aside.isEmpty()) {
        Replace(path, better);  // if that fails, so will the next save, which has a message
    }
    const Reason& damage = file.reading.damage;
    const Reason used = WhatIsUsed(byCopy, rescued.values);
    rescued.message =
        rescued.aside.isEmpty()
            ? Reason(ReasonCode::SettingsDamaged, path, damage, used)
            : Reason(ReasonCode::SettingsDamagedAndKept, path, damage, used, rescued.aside);
    return rescued;
}

}  // namespace varnel
