// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/start/start_arguments.h"

#include <algorithm>

#include "pipeline/photos/project_file.h"

namespace varnel {

namespace {

struct Sorted {
    QStringList options;
    QStringList files;
};

// After "--" everything is a file.
Sorted SortArguments(const QStringList& arguments) {
    Sorted sorted;
    bool filesOnly = false;
    for (const QString& argument : arguments.mid(1)) {
        if (filesOnly || !argument.startsWith(QStringLiteral("--"))) {
            sorted.files.append(argument);
        } else if (argument.size() == 2) {
            filesOnly = true;
        } else {
            sorted.options.append(argument);
        }
    }
    return sorted;
}

}  // namespace

std::variant<StartRequest, QString> ParseStartArguments(const QStringList& arguments) {
    if (arguments.value(1) == QStringLiteral("--beside")) {
        return StartRequest{StartMode::Beside, arguments.mid(2)};
    }
    const auto [options, files] = SortArguments(arguments);
    const QStringList known{QStringLiteral("--help"), QStringLiteral("--version"),
                            QStringLiteral("--open"), QStringLiteral("--install-menu"),
                            QStringLiteral("--remove-menu")};
    for (const QString& option : options) {
        if (!known.contains(option)) {
            return QStringLiteral("unknown option \"%1\"; see --help").arg(option);
        }
    }
    if (options.contains(known[0])) {
        return StartRequest{StartMode::Help, {}};
    }
    if (options.contains(known[1])) {
        return StartRequest{StartMode::Version, {}};
    }
    for (const auto& [option, mode] : {std::pair(known[3], StartMode::InstallMenu),
                                       std::pair(known[4], StartMode::RemoveMenu)}) {
        if (options.contains(option)) {
            return arguments.size() == 2
                       ? std::variant<StartRequest, QString>(StartRequest{mode, {}})
                       : QStringLiteral("%1 stands alone; see --help").arg(option);
        }
    }
    // A desktop entry that names no photo gives --open alone.
    if (arguments.size() <= 1 || options.contains(known[2]) ||
        std::ranges::any_of(files, IsProjectName)) {
        return StartRequest{StartMode::Window, files};
    }
    if (files.isEmpty()) {
        return QStringLiteral("no photo given; see --help");
    }
    return StartRequest{StartMode::Convert, files};
}

QString StartHelpText() {
    return QStringLiteral(
        "Usage: varnel [--open] [FILE...]\n"
        "Converts fisheye photos into other projections.\n"
        "\n"
        "  varnel                 Open the window.\n"
        "  varnel --open FILE...  Open the window with these photos in its list.\n"
        "  varnel FILE.varnel     Open the window with this project.\n"
        "  varnel FILE...         Convert each photo at full size, without a window: with the\n"
        "                         default gear into the Varnel projection, beside the photo, in\n"
        "                         the file type of the defaults. From IMG.jpg comes\n"
        "                         IMG.Varnel.TIF; an older file of that name is replaced.\n"
        "  varnel --beside [OPTIONS] PHOTO...\n"
        "                         What a file manager's menu does: convert each photo beside it\n"
        "                         under a name that no file has, with the gear that it tells;\n"
        "                         errors are shown in a box. OPTIONS as of varnel-convert,\n"
        "                         --preset NAME for one.\n"
        "  varnel --install-menu  \"Straighten with Varnel\" with all presets in the menus of\n"
        "                         Dolphin, Nemo and Thunar, for yourself; again for new presets.\n"
        "  varnel --remove-menu   Take that away again.\n"
        "\n"
        "  --help                 Show this text.\n"
        "  --version              Show the version.\n"
        "  --                     Every argument that follows is a file.\n"
        "\n"
        "For other projections, gears and settings see varnel-convert --help.\n");
}

}  // namespace varnel
