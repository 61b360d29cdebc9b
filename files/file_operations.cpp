// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/file_operations.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>

namespace varnel {

namespace {

constexpr qint64 largestPiece = 16 << 20;  // bytes given to the system at a time

}  // namespace

int FileOperations::Create(const QByteArray& name, unsigned permissions) {
    return ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
}

int FileOperations::Lock(int file) {
    return ::flock(file, LOCK_EX | LOCK_NB) == 0 ? ::fcntl(file, F_DUPFD_CLOEXEC, 0) : -1;
}

qint64 FileOperations::Write(int file, const char* bytes, qint64 length) {
    return ::write(file, bytes, static_cast<std::size_t>(length));
}

qint64 FileOperations::WriteAll(int file, QByteArrayView bytes) {
    qint64 done = 0;
    while (done < bytes.size()) {
        const qint64 length = std::min<qint64>(bytes.size() - done, largestPiece);
        const qint64 written = Write(file, bytes.data() + done, length);
        if (written == -1 && errno == EINTR) {
            continue;
        }
        if (written == 0) {  // would loop for ever
            errno = EIO;
        }
        if (written <= 0) {
            break;
        }
        done += written;
    }
    return done;
}

int FileOperations::SetPermissions(int file, unsigned permissions) {
    return ::fchmod(file, static_cast<mode_t>(permissions));
}

int FileOperations::Sync(int file) {
    return ::fsync(file);
}

int FileOperations::Close(int file) {
    return ::close(file);
}

int FileOperations::Rename(const QByteArray& name, const QByteArray& newName) {
    return std::rename(name.constData(), newName.constData());
}

int FileOperations::SyncFolder(const QByteArray& folder) {
    const int opened = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (opened == -1) {
        return -1;
    }
    const int result = ::fsync(opened);
    const int error = errno;
    ::close(opened);
    errno = error;
    return result;
}

int FileOperations::Remove(const QByteArray& name) {
    return ::unlink(name.constData());
}

}  // namespace varnel

#endif
