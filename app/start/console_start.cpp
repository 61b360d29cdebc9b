// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/console_start.h"

#include "app/menus/install_menu.h"
#include "app/start/convert_arguments.h"
#include "app/start/start_arguments.h"
#include "cli/convert.h"

namespace varnel {

QStringList ArgumentTexts(int count, const char* const* arguments) {
    QStringList texts;
    for (int n = 0; n < count; ++n) {
        texts.append(QString::fromLocal8Bit(arguments[n]));
    }
    return texts;
}

std::variant<QStringList, int> StartOnConsole(const QStringList& arguments, SettingsStore& store,
                                              QDate today, const Console& console) {
    const auto parsed = ParseStartArguments(arguments);
    if (const auto* error = std::get_if<QString>(&parsed)) {
        return Refuse(console, *error);
    }
    const StartRequest& request = std::get<StartRequest>(parsed);
    switch (request.mode) {
        case StartMode::Help:
            return Show(console, StartHelpText());
        case StartMode::Version:
            return Show(console, QStringLiteral("varnel " VARNEL_VERSION "\n"));
        case StartMode::Convert:
            return ConvertArguments(request.files, store, today, console);
        case StartMode::InstallMenu:
            return InstallMenu(store, UserMenuPlaces(), console);
        case StartMode::RemoveMenu:
            return RemoveMenu(UserMenuPlaces(), console);
        case StartMode::Beside:
            return RunConvertForMenu(QStringList{arguments[0]} + request.files, store, console);
        case StartMode::Window:
            break;
    }
    return request.files;
}

}  // namespace varnel
