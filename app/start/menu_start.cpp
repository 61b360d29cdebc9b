// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/menu_start.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDate>
#include <QFileInfo>
#include <QIcon>
#include <QRegularExpression>
#include <algorithm>
#include <iostream>
#include <limits>
#include <sstream>

#include "app/dialogs/message_boxes.h"
#include "app/start/console_start.h"
#include "app/start/plain_texts.h"
#include "app/start/start_arguments.h"
#include "files/dir_lock.h"
#include "state/settings/autosaving_store.h"
#include "state/settings/default_choices.h"
#include "translations/window_language.h"

namespace varnel {

namespace {

class Texts {
    Q_DECLARE_TR_FUNCTIONS(MenuStart)
};

struct RunEnd {
    int exitCode = 0;
    int written = 0;
    QStringList complaints{};
};

QString LanguageOf(const SettingsStore& store) {
    return languages[LanguagePosition(LoadSettings(store).Language)].code;
}

// As a desktop without notifications has no service for them, nothing is waited for.
void Notify(int written) {
    QDBusMessage message = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.Notifications"),
        QStringLiteral("/org/freedesktop/Notifications"),
        QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("Notify"));
    const QString text = Texts::tr("New pictures beside the photos: %1").arg(written);
    message.setArguments({QStringLiteral("Varnel"), 0U, QStringLiteral("varnel"), text, QString(),
                          QStringList(), QVariantMap(), -1});
    if (QDBusConnection bus = QDBusConnection::sessionBus(); bus.isConnected()) {
        bus.call(message, QDBus::NoBlock);
    }
}

RunEnd Run(int& argc, char** argv, SettingsStore& store) {
    const QStringList arguments = ArgumentTexts(argc, argv);
    const QCoreApplication application(argc, argv);
    const WindowLanguage language(*QCoreApplication::instance(), LanguageOf(store));
    std::ostringstream out;
    std::ostringstream err;
    const DirLock lock(QFileInfo(arguments.last()).absolutePath(), std::numeric_limits<int>::max());
    const auto end =
        StartOnConsole(arguments, store, QDate::currentDate(), {out, err, false, "varnel"});
    std::cout << out.str() << std::flush;
    std::cerr << err.str() << std::flush;
    RunEnd run{std::get<int>(end),
               static_cast<int>(QString::fromStdString(out.str()).count(u'\n'))};
    run.complaints = QString::fromStdString(err.str()).split(u'\n', Qt::SkipEmptyParts);
    run.complaints.replaceInStrings(QRegularExpression(QStringLiteral("^varnel: ")), QString());
    if (run.written > 0) {
        Notify(run.written);
    }
    return run;
}

bool HasDisplay() {
    return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

void ShowBox(int& argc, char** argv, const RunEnd& run, const QString& language) {
    constexpr qsizetype mostShown = 10;
    QApplication application(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Varnel"));
    QApplication::setDesktopFileName(QStringLiteral("varnel"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("varnel")));
    PlainTexts plainTexts;
    application.installEventFilter(&plainTexts);
    const WindowLanguage windowLanguage(application, language);
    QStringList shown = run.complaints.first(std::min(mostShown, run.complaints.size()));
    if (run.complaints.size() > mostShown) {
        shown.append(Texts::tr("%1 more").arg(run.complaints.size() - mostShown));
    }
    MessageBoxes().Tell(
        run.written > 0 ? Texts::tr("Not everything went well. New pictures beside the photos: %1")
                              .arg(run.written)
                        : Texts::tr("No picture was written."),
        shown.join(u'\n'));
}

}  // namespace

bool IsForMenu(const QStringList& arguments) {
    const auto parsed = ParseStartArguments(arguments);
    const auto* const request = std::get_if<StartRequest>(&parsed);
    return request != nullptr && request->mode == StartMode::Beside;
}

int ConvertForMenu(int& argc, char** argv, SettingsStore& store) {
    const QString language = LanguageOf(store);
    const RunEnd run = Run(argc, argv, store);
    if (run.exitCode != 0 && HasDisplay()) {
        ShowBox(argc, argv, run, language);
    }
    return run.exitCode;
}

}  // namespace varnel
