// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/dir_lock.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDeadlineTimer>
#include <QFile>
#include <QThread>
#include <cerrno>

namespace varnel {

namespace {

constexpr unsigned long pause = 5;  // ms between two tries

}  // namespace

DirLock::DirLock(const QString& folder, int milliseconds)
    : folder_(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
    const QDeadlineTimer deadline(milliseconds);
    bool isBusy = false;
    do {
        if (isBusy) {
            QThread::msleep(pause);
        }
        const int result = ::flock(folder_, LOCK_EX | LOCK_NB);
        isBusy = result != 0 && (errno == EWOULDBLOCK || errno == EINTR);
    } while (isBusy && !deadline.hasExpired());
    isHeld_ = !isBusy;
}

DirLock::~DirLock() {
    if (folder_ != -1) {
        ::close(folder_);
    }
}

}  // namespace varnel

#else

namespace varnel {

DirLock::DirLock(const QString& folder, int milliseconds)
    : file_(folder + QStringLiteral("/.lock")), isHeld_(file_.tryLock(milliseconds)) {}

DirLock::~DirLock() = default;

}  // namespace varnel

#endif
