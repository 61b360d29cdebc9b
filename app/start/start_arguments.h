// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// What the command line of varnel requests. Throws nothing.
#pragma once

#include <QString>
#include <QStringList>
#include <variant>

namespace varnel {

enum class StartMode { Window, Convert, Beside, InstallMenu, RemoveMenu, Help, Version };

struct StartRequest {
    StartMode mode = StartMode::Window;
    QStringList files;  // to open in the window or to convert, as given; of Beside all that follows

    bool operator==(const StartRequest&) const = default;
};

// The first argument is the program's name. Without more the window opens, with --open it opens
// with the files; files alone are converted. What follows --beside, which stands first, are options
// and photos as varnel-convert takes them. The text, one line, is the message for a wrong command
// line.
std::variant<StartRequest, QString> ParseStartArguments(const QStringList& arguments);

QString StartHelpText();

}  // namespace varnel
