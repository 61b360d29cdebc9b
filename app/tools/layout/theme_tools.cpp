// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/theme_tools.h"

#include <QActionGroup>

#include "app/panels/menu_entry.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

QString Key() {
    return QStringLiteral("Theme");
}

}  // namespace

Theme StoredTheme(SettingsStore& store) {
    return ThemeFromText(store.Get(setting::Window, Key(), {}));
}

ThemeTools::ThemeTools(QMenu& menu, SettingsStore& store, ThemeKeeper* keeper, QObject* parent)
    : QObject(parent), store_(store), keeper_(keeper) {
    QMenu* const themes = menu.addMenu(tr("Theme"));
    themes->setObjectName(QStringLiteral("MenuTheme"));
    themes->menuAction()->setObjectName(QStringLiteral("CmdViewTheme"));
    auto* const group = new QActionGroup(themes);
    const Theme chosen = StoredTheme(store_);
    const auto add = [&](const char* name, const QString& text, Theme theme) {
        QAction* const entry = AddMenuEntry(themes, name, text);
        entry->setCheckable(true);
        entry->setChecked(theme == chosen);
        group->addAction(entry);
        connect(entry, &QAction::triggered, this, [this, theme] { Choose(theme); });
    };
    add("CmdThemeSystem", tr("As the &system"), Theme::System);
    add("CmdThemeLight", tr("&Light"), Theme::Light);
    add("CmdThemeDark", tr("&Dark"), Theme::Dark);
}

void ThemeTools::Choose(Theme theme) {
    if (keeper_ != nullptr) {
        keeper_->Choose(theme);
    }
    store_.Save(setting::Window, Key(), ToText(theme));
}

}  // namespace varnel
