// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "state/settings/autosaving_store.h"
#include "base/error_text.h"

namespace varnel {

namespace {

// ms; long enough for a window that saves while it closes to end the program first: a message box
// shown in between would be closed with it, unread.
constexpr int settleDelay = 200;

}  // namespace

void TellOf(SettingsStore& store, Notices& notices) {
    for (const Reason& reason : store.Settle()) {
        notices.Tell(ErrorText(reason), {});
    }
}

AutosavingStore::AutosavingStore(SettingsStore& store, Notices& notices) : store_(store) {
    soon_.setSingleShot(true);
    QObject::connect(&soon_, &QTimer::timeout, &soon_,
                     [this, &notices] { TellOf(store_, notices); });
}

QString AutosavingStore::Get(const QString& section, const QString& key,
                             const QString& fallback) const {
    return store_.Get(section, key, fallback);
}

void AutosavingStore::Save(const QString& section, const QString& key, const QString& value) {
    store_.Save(section, key, value);
    soon_.start(settleDelay);
}

Reasons AutosavingStore::Settle() {
    return store_.Settle();
}

}  // namespace varnel
