// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where a window keeps its image list against a crash: a folder for each window, with the list as a
// project file in it. The folder is locked as long as its owner lives, and no longer. Throws
// std::bad_alloc only.
#pragma once

#include <QDateTime>
#include <QString>
#include <memory>
#include <vector>

#include "files/dir_lock.h"

namespace varnel {

// The folder in which the folders of the windows are: $XDG_STATE_HOME/varnel/sessions, which is in
// ~/.local/state unless the variable says otherwise; elsewhere than on Unix where the platform
// keeps a program's data.
QString UserSessionFolder();

class SessionPlace {
  public:
    // A new one for this program. Null when there can be none.
    static std::unique_ptr<SessionPlace> Make(const QString& folder);
    // Those that hold a list and whose owner is gone, the one written last first. While they live
    // this program is their owner.
    static std::vector<std::unique_ptr<SessionPlace>> Abandoned(const QString& folder);

    // The full path of the project file, which need not exist.
    QString File() const;
    // When the project file was written; invalid while there is none.
    QDateTime Written() const;
    // Removes the folder with its list.
    void Clear();
    // Moves the list out of the folder, beside it, where Abandoned does not look, and removes the
    // folder. Returns the new path; empty when it cannot be moved.
    QString SetAside();

  private:
    SessionPlace(const QString& folder, int milliseconds)
        : folder_(folder), lock_(folder, milliseconds) {}

    QString folder_;
    DirLock lock_;
};

}  // namespace varnel
