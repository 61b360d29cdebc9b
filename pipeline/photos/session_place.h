// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Where a window keeps its image list against a crash: a folder for each window, with the list as
// a project file in it. The folder is locked as long as its owner lives, and no longer.
#pragma once

#include <QDateTime>
#include <QString>
#include <memory>
#include <vector>

#include "files/dir_lock.h"

namespace varnel {

// The folder for such places: $XDG_STATE_HOME/varnel/sessions, which is in ~/.local/state unless
// the variable says otherwise; elsewhere than on Unix where the platform keeps a program's data.
QString UserSessionFolder();

class SessionPlace {
  public:
    // A new one for this program. Null when there can be none.
    static std::unique_ptr<SessionPlace> Make(const QString& folder);
    // Those that hold a list and whose owner is gone, the one written last first. While they live
    // this program is their owner.
    static std::vector<std::unique_ptr<SessionPlace>> Abandoned(const QString& folder);

    // The project file, whether it is there or not.
    QString File() const;
    QDateTime Written() const;
    // Removes the place with its list.
    void Clear();
    // Moves the list beside the places, where nobody looks for it, and removes the place. The new
    // path; empty when it cannot be moved.
    QString SetAside();

  private:
    SessionPlace(const QString& folder, int milliseconds)
        : folder_(folder), lock_(folder, milliseconds) {}

    QString folder_;
    DirLock lock_;
};

}  // namespace varnel
