// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Telling the user what became of the settings.
#pragma once

#include <QTimer>

#include "base/notices.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Settles the store and tells what there is to tell.
void TellOf(SettingsStore& store, Notices& notices);

// Another store, settled a moment after something was saved. Its errors are told then, above
// whichever window saved.
class AutosavingStore : public SettingsStore {
  public:
    AutosavingStore(SettingsStore& store, Notices& notices);
    QString Get(const QString& section, const QString& key, const QString& fallback) const override;
    void Save(const QString& section, const QString& key, const QString& value) override;
    Reasons Settle() override;

  private:
    SettingsStore& store_;
    QTimer soon_;
};

}  // namespace varnel
