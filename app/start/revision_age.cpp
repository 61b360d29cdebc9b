// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/revision_age.h"

#include <QCoreApplication>
#include <QStringList>

#include "state/settings/number_text.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

constexpr int firstAgeToShow = 7;  // months

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RevisionAge)
};

QString ReminderText(int age, const QString& address) {
    QStringList lines{
        Texts::tr("This version of Varnel is now more than %1 months old.").arg(age),
        Texts::tr("An updated revision is likely available."),
        Texts::tr("It is recommended that you upgrade the executable file."),
    };
    if (!address.isEmpty()) {
        lines << QString() << Texts::tr("Upgraded executables may be downloaded from") << address;
    }
    return lines.join(u'\n');
}

}  // namespace

Release ThisRelease() {
    return {QDate::fromString(QStringLiteral(VARNEL_RELEASE_DATE), Qt::ISODate),
            QStringLiteral(VARNEL_DOWNLOAD_ADDRESS)};
}

std::optional<QString> CheckRevisionAge(SettingsStore& store, QDate today, const Release& release) {
    const int age =
        (today.year() - release.date.year()) * 12 + (today.month() - release.date.month());
    const bool tell = age >= firstAgeToShow;
    if (tell && age <= ReadWhole(store, setting::Revision, setting::RevisionAge, 0)) {
        return std::nullopt;
    }
    store.Save(setting::Revision, setting::RevisionAge, QString::number(age));
    return tell ? std::optional(ReminderText(age, release.downloadAddress)) : std::nullopt;
}

}  // namespace varnel
