// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Shows the user the messages of the settings store, and settles it by itself. Throws nothing.
#pragma once

#include <QTimer>

#include "base/notices.h"
#include "state/settings/settings_store.h"

namespace varnel {

// Settles the store and shows its messages, if any.
void TellOf(SettingsStore& store, Notices& notices);

// Wraps another store and settles it a moment after something was saved. Its messages are shown
// then, above the window that saved.
class AutosavingStore : public SettingsStore {
  public:
    AutosavingStore(SettingsStore& store, Notices& notices);
    QString Get(const QString& section, const QString& key, const QString& fallback) const override;
    void Save(const QString& section, const QString& key, const QString& value) override;
    QString Path() const override { return store_.Path(); }
    Reasons Settle() override;

  private:
    SettingsStore& store_;
    QTimer soon_;
};

}  // namespace varnel
