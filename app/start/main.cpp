// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// varnel, the desktop program. The command line is looked at first: a conversion needs no display.

#include <unistd.h>

#include <QFileInfo>
#include <QIcon>
#include <iostream>
#include <optional>

#include "app/dialogs/message_boxes.h"
#include "app/dialogs/reading_box.h"
#include "app/dialogs/real_dialogs.h"
#include "app/dialogs/screen_profile.h"
#include "app/films/films.h"
#include "app/start/application.h"
#include "app/start/console_start.h"
#include "app/start/focus_style.h"
#include "app/start/menu_start.h"
#include "app/start/plain_texts.h"
#include "app/start/revision_age.h"
#include "app/tools/layout/theme_tools.h"
#include "app/window/main_window.h"
#include "cli/report/console.h"
#include "state/settings/autosaving_store.h"
#include "state/settings/default_choices.h"
#include "translations/window_language.h"

namespace {

using namespace varnel;

QStringList Absolute(const QStringList& files) {
    QStringList paths;
    for (const QString& file : files) {
        paths.append(QFileInfo(file).absoluteFilePath());
    }
    return paths;
}

int RunWindow(Application& application, const QStringList& files, SettingsStore& userStore) {
    MessageBoxes notices;
    application.ShowTo(&notices);
    TellOf(userStore, notices);
    FirstGearPrompt gearPrompt;
    SaveFileDialog fileChooser;
    BeginSettings(userStore);  // before it is noted that there are some
    if (const std::optional<QString> reminder = CheckRevisionAge(userStore, QDate::currentDate())) {
        MessageBoxes::Inform(*reminder);
    }
    TellOf(userStore, notices);
    AutosavingStore store(userStore, notices);
    ThemeKeeper theme(StoredTheme(store));
    WorkingState state;
    state.settings = LoadSettings(store);
    const auto reader = NewReaderWithFilms();
    const auto films = NewFilmSource(state.pool);
    const auto filmSaver = NewFilmSaver(state.settings);
    ReadingBox wait;
    PhotoLoader photos(*reader, &wait, &state.settings);
    RealDialogs dialogs(state, store, *reader, photos, notices, fileChooser);
    gearPrompt.Use(dialogs.EditorPorts());
    MDIForm1 window(state, store,
                    {photos,
                     notices,
                     gearPrompt,
                     fileChooser,
                     dialogs,
                     [] { return NewReaderWithFilms({.secondsPerPhoto = 10}); },
                     {UserSessionFolder()},
                     &NewGearReader,
                     &theme,
                     &ScreenProfile,
                     {films.get(), filmSaver.get()}});
    dialogs.Use([&window] { return window.CurrentImage(); });
    QObject::connect(&window, &MDIForm1::QuitWanted, &application, &QApplication::quit,
                     Qt::QueuedConnection);
    window.OpenAtStart(Absolute(files));
    window.show();
    const int exitCode = QApplication::exec();
    application.ShowTo(nullptr);
    TellOf(store, notices);  // the window's layout is saved last
    return exitCode;
}

}  // namespace

int main(int argc, char* argv[]) {
    UseUtf8Locale();
    const auto store = OpenUserStore(QDateTime::currentDateTime());
    const QStringList arguments = ArgumentTexts(argc, argv);
    if (IsForMenu(arguments)) {
        return ConvertForMenu(argc, argv, *store);
    }
    const auto start =
        StartOnConsole(arguments, *store, QDate::currentDate(),
                       {std::cout, std::cerr, ::isatty(STDERR_FILENO) == 1, "varnel"});
    if (const int* const exitCode = std::get_if<int>(&start)) {
        return *exitCode;
    }
    Application application(argc, argv);
    QApplication::setStyle(new FocusStyle(QStringLiteral("Fusion")));
    QApplication::setApplicationName(QStringLiteral("varnel"));
    QApplication::setApplicationDisplayName({});
    // As the package installs both.
    QApplication::setDesktopFileName(QStringLiteral("varnel"));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("varnel")));
    PlainTexts plainTexts;
    application.installEventFilter(&plainTexts);
    const int language = LanguagePosition(LoadSettings(*store).Language);
    const WindowLanguage windowLanguage(application, languages[language].code);
    return RunWindow(application, std::get<QStringList>(start), *store);
}
