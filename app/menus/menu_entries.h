// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What file managers show in the menu of a photo: one entry for each preset. Each file manager
// reads its own kind of file, and each has its own rules of quoting. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <vector>

#include "state/adjustments/presets.h"

namespace varnel {

struct MenuText {
    QString text;
    std::map<QString, QString> translated{};  // by the language's code, as "de"
};

struct MenuEntry {
    QString preset;  // as --preset takes it
    MenuText name;
};

struct PhotoMenu {
    QString program;  // that the entries start: a name or a path
    MenuText title;
    MenuText comment;
    std::vector<MenuEntry> entries;
};

// With the built-in presets' names translated; own presets have no other name than their own.
PhotoMenu MenuOf(const Presets& presets, const QString& program);

// The types of the photos for which the entries are shown, each followed by ";".
QString PhotoMimeTypes();

// For Dolphin and other programs of KDE, to lie in kio/servicemenus.
QByteArray ServiceMenu(const PhotoMenu& menu);

// For Nemo, one file each, to lie in nemo/actions: of the title alone, which has no preset, and of
// an entry.
QByteArray NemoAction(const PhotoMenu& menu);
QByteArray NemoAction(const PhotoMenu& menu, const MenuEntry& entry);

// The command lines of an entry, before what their files escape themselves. A desktop entry quotes
// as the desktop entry standard says, with percent signs doubled; the others as a shell.
QString DesktopCommand(const QString& program, const QString& preset);
QString ShellCommand(const QString& program, const QString& preset);

}  // namespace varnel
