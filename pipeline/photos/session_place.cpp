// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/session_place.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <algorithm>

#include "pipeline/photos/project_file.h"

namespace varnel {

namespace {

constexpr int lockPatience = 500;  // ms, while another program looks which one owns the folder

QString ListIn(const QString& place) {
    return place + QStringLiteral("/list") + projectEnding.toString();
}

}  // namespace

QString UserSessionFolder() {
#ifdef Q_OS_UNIX
    QString state = qEnvironmentVariable("XDG_STATE_HOME");
    if (!QDir::isAbsolutePath(state)) {  // by the rules of the variable
        state = QDir::homePath() + QStringLiteral("/.local/state");
    }
    return state + QStringLiteral("/varnel/sessions");
#else
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation) +
           QStringLiteral("/sessions");
#endif
}

std::unique_ptr<SessionPlace> SessionPlace::Make(const QString& folder) {
    if (!QDir().mkpath(folder)) {
        return nullptr;
    }
    QTemporaryDir made(QDir(folder).filePath(QStringLiteral("window-XXXXXX")));
    made.setAutoRemove(false);
    if (!made.isValid()) {
        return nullptr;
    }
    return std::unique_ptr<SessionPlace>(new SessionPlace(made.path(), lockPatience));
}

std::vector<std::unique_ptr<SessionPlace>> SessionPlace::Abandoned(const QString& folder) {
    std::vector<std::unique_ptr<SessionPlace>> places;
    for (const QString& name :
         QDir(folder).entryList({QStringLiteral("window-*")}, QDir::Dirs | QDir::NoSymLinks)) {
        const QString path = QDir(folder).filePath(name);
        if (!QFileInfo::exists(ListIn(path))) {
            continue;  // may be about to be used
        }
        std::unique_ptr<SessionPlace> place(new SessionPlace(path, 0));
        if (place->lock_.IsHeld() && QFileInfo::exists(place->File())) {
            places.push_back(std::move(place));
        }
    }
    std::ranges::sort(places, std::ranges::greater(), &SessionPlace::Written);
    return places;
}

QString SessionPlace::File() const {
    return ListIn(folder_);
}

QDateTime SessionPlace::Written() const {
    return QFileInfo(File()).lastModified();
}

void SessionPlace::Clear() {
    QDir(folder_).removeRecursively();
}

QString SessionPlace::SetAside() {
    const QFileInfo place(folder_);
    QString path = place.dir().filePath(QStringLiteral("damaged-") + place.fileName() +
                                        projectEnding.toString());
    if (!QFile::rename(File(), path)) {
        return {};
    }
    Clear();
    return path;
}

}  // namespace varnel
