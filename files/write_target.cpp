// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/write_target.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <climits>

#include "files/file_operations.h"

namespace varnel {

namespace {

constexpr int mostLinks = 40;  // as the system itself follows

// Empty when the links form a ring.
std::optional<QByteArray> FollowLinks(QByteArray name) {
    for (int links = 0; links <= mostLinks; ++links) {
        QByteArray next(PATH_MAX, Qt::Uninitialized);
        const ssize_t length = ::readlink(name.constData(), next.data(), PATH_MAX);
        if (length < 0) {  // no link
            return name;
        }
        next.truncate(length);
        name = next.startsWith('/') ? next : FolderOf(name) + '/' + next;
    }
    return std::nullopt;
}

}  // namespace

Reason SystemReason(int error) {
    return {ReasonCode::SystemError, error};
}

QByteArray FolderOf(const QByteArray& name) {
    const qsizetype slash = name.lastIndexOf('/');
    return slash < 0 ? QByteArray(".") : name.left(std::max<qsizetype>(slash, 1));
}

WriteTarget FindWriteTarget(const QString& path) {
    const QByteArray given = QFile::encodeName(path);
    const std::optional<QByteArray> name = FollowLinks(given);
    if (given.contains('\0') || !name) {
        return {given, {}, SystemReason(name ? EINVAL : ELOOP)};
    }
    struct stat older {};
    if (::stat(name->constData(), &older) != 0) {
        return {*name, {}, errno == ENOENT ? Reason() : SystemReason(errno)};
    }
    if (!S_ISREG(older.st_mode)) {
        return {*name, {}, S_ISDIR(older.st_mode) ? SystemReason(EISDIR) : ReasonCode::NotRegular};
    }
    // Renaming needs the folder's permission only; a write-protected file must not be replaced.
    if (::faccessat(AT_FDCWD, name->constData(), W_OK, AT_EACCESS) != 0) {
        return {*name, {}, SystemReason(errno)};
    }
    return {*name, older.st_mode & 0777U, {}};
}

Reason SyncError(const QByteArray& folder, FileOperations& operations) {
    const bool failed = operations.SyncFolder(folder) == -1 && errno != EINVAL &&
                        errno != ENOTSUP && errno != EACCES;
    return failed ? Reason(ReasonCode::WhileSyncingFolder, SystemReason(errno)) : Reason();
}

}  // namespace varnel

#endif
