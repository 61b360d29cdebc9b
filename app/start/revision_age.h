// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The update reminder: once in each month that the release grows older, from its seventh on. Throws
// nothing.
#pragma once

#include <QDate>
#include <QString>
#include <optional>

#include "state/settings/settings_store.h"

namespace varnel {

struct Release {
    QDate date;               // its year and month count
    QString downloadAddress;  // of newer ones; may be empty
};

// The release of this program, as the build defines it.
Release ThisRelease();

// The text to show, if any. Keeps the age in months in the store, so that one call in each new
// month answers; a clock that was set back changes nothing. To be called once at each start.
std::optional<QString> CheckRevisionAge(SettingsStore& store, QDate today,
                                        const Release& release = ThisRelease());

}  // namespace varnel
