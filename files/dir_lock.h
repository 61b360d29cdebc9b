// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// One process at a time among those that change the files of a folder together. Throws nothing.
//
// The kernel's lock on the folder itself, rather than QLockFile: it ends with the process, so that
// a killed one leaves no lock file that others have to judge by its age or its process number. With
// QLockFile a session whose process number was used again by another run of the program would never
// be offered, a process killed while it made its lock file keeps the others waiting for 30 s, and
// of many that wait one may come too late: it pauses longer after each try.
#pragma once

#include <QString>
#include <QtGlobal>
#ifndef Q_OS_UNIX
#include <QLockFile>
#endif

namespace varnel {

// Held until this object is destroyed.
class DirLock {
  public:
    // Waits for other processes for at most so many milliseconds; 0 tries once.
    DirLock(const QString& folder, int milliseconds);
    DirLock(const DirLock&) = delete;
    DirLock& operator=(const DirLock&) = delete;
    ~DirLock();
    // False when another process held it all the time. Where locks do not exist, on some network
    // drives, it is true for each process: the last writer wins.
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
