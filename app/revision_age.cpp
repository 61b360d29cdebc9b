// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/revision_age.h"

#include <QCoreApplication>
#include <QStringList>

#include "state/number_text.h"
#include "state/setting_names.h"

namespace varnel {

namespace {

constexpr int releaseYear = 2023;
constexpr int releaseMonth = 1;
constexpr int firstAgeToTell = 7;  // months

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(RevisionAge)
};

QString ReminderText(int age) {
    return QStringList{Texts::tr("This version of Varnel is now more than %1 months old.").arg(age),
                       Texts::tr("An updated revision is likely available."),
                       Texts::tr("It is recommended that you upgrade the executable file."),
                       QString(),
                       Texts::tr("Upgraded executables may be downloaded from"),
                       QStringLiteral(VARNEL_DOWNLOAD_ADDRESS)}
        .join(u'\n');
}

}  // namespace

std::optional<QString> CheckRevisionAge(SettingsStore& store, QDate today) {
    const int age = (today.year() - releaseYear) * 12 + (today.month() - releaseMonth);
    const bool tell = age >= firstAgeToTell;
    if (tell && age <= ReadWhole(store, setting::Revision, setting::RevisionAge, 0)) {
        return std::nullopt;
    }
    store.Save(setting::Revision, setting::RevisionAge, QString::number(age));
    return tell ? std::optional(ReminderText(age)) : std::nullopt;
}

}  // namespace varnel
