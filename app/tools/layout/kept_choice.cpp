// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/kept_choice.h"

#include "app/panels/menu_entry.h"

namespace varnel {

namespace {

QString Section() {
    return QStringLiteral("Window");
}

}  // namespace

QAction* AddKeptChoice(QMenu& menu, const KeptChoice& choice, SettingsStore& store,
                       const std::function<void(bool)>& apply) {
    QAction* const entry = AddMenuEntry(&menu, choice.name, choice.text);
    const QString key = QString::fromLatin1(choice.key);
    const QString yes = QStringLiteral("1");
    const QString no = QStringLiteral("0");
    entry->setCheckable(true);
    entry->setChecked(store.Get(Section(), key, choice.first ? yes : no) == yes);
    apply(entry->isChecked());
    QObject::connect(entry, &QAction::toggled, &menu, [key, yes, no, &store, apply](bool on) {
        store.Save(Section(), key, on ? yes : no);
        apply(on);
    });
    return entry;
}

}  // namespace varnel
