// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One process at a time among those that change the files of a folder together.
#pragma once

#include <QString>
#include <QtGlobal>
#ifndef Q_OS_UNIX
#include <QLockFile>
#endif

namespace varnel {

// Held until this object goes. The lock is on the folder itself and ends with the process: no lock
// file is left behind by a killed one, or taken for that of a living one.
class DirLock {
  public:
    // Waits for others, but not longer than this.
    DirLock(const QString& folder, int milliseconds);
    DirLock(const DirLock&) = delete;
    DirLock& operator=(const DirLock&) = delete;
    ~DirLock();
    // False when another process held it all the time. Where there are no locks, on some network
    // drives, nobody is kept out: the last writer wins.
    bool IsHeld() const { return isHeld_; }

  private:
#ifdef Q_OS_UNIX
    int folder_ = -1;
#else
    QLockFile file_;
#endif
    bool isHeld_ = false;
};

}  // namespace varnel
