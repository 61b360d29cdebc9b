// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/kept_choice.h"

#include "app/panels/menu_entry.h"
#include "state/settings/setting_names.h"

namespace varnel {

void KeepChoice(QAction& entry, const char* key, bool first, SettingsStore& store) {
    const QString kept = QString::fromLatin1(key);
    const QString yes = QStringLiteral("1");
    const QString no = QStringLiteral("0");
    entry.setCheckable(true);
    entry.setChecked(store.Get(setting::Window, kept, first ? yes : no) == yes);
    QObject::connect(&entry, &QAction::toggled, &entry, [kept, yes, no, &store](bool on) {
        store.Save(setting::Window, kept, on ? yes : no);
    });
}

QAction* AddKeptChoice(QMenu& menu, const KeptChoice& choice, SettingsStore& store,
                       const std::function<void(bool)>& apply) {
    QAction* const entry = AddMenuEntry(&menu, choice.name, choice.text);
    KeepChoice(*entry, choice.key, choice.first, store);
    apply(entry->isChecked());
    QObject::connect(entry, &QAction::toggled, &menu, apply);
    return entry;
}

}  // namespace varnel
