// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/temp_names.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QRandomGenerator>

namespace varnel {

namespace {

// With the lock and the name checked in this order no other process can rename or remove the file:
// both are done under the lock only.
void RemoveStray(const QByteArray& name) {
    struct stat found {};
    if (::lstat(name.constData(), &found) != 0 || !S_ISREG(found.st_mode)) {
        return;
    }
    const int file = ::open(name.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file == -1) {
        return;
    }
    if (::flock(file, LOCK_EX | LOCK_NB) == 0 && ::fstat(file, &found) == 0 &&
        S_ISREG(found.st_mode) && IsNamed(found, name)) {
        ::unlink(name.constData());
    }
    ::close(file);
}

}  // namespace

QByteArray TempName(const QByteArray& folder, int n) {
    const QByteArray ending = n < fixedTempNames
                                  ? QByteArray::number(n)
                                  : QByteArray::number(QRandomGenerator::system()->generate64(), 16)
                                        .rightJustified(16, '0');
    return folder + "/.varnel-saving-" + ending;
}

void RemoveStrays(const QByteArray& folder) {
    for (int n = 0; n < fixedTempNames; ++n) {
        RemoveStray(TempName(folder, n));
    }
}

bool IsNamed(const struct stat& file, const QByteArray& name) {
    struct stat found {};
    return ::lstat(name.constData(), &found) == 0 && found.st_dev == file.st_dev &&
           found.st_ino == file.st_ino;
}

}  // namespace varnel

#endif
