// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/temp_file.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "files/file_operations.h"
#include "files/temp_names.h"

namespace varnel {

TempFile::~TempFile() {
    if (!name_.isEmpty()) {
        operations_.Remove(name_);  // while it is locked
    }
    Drop(file_);
    Drop(lock_);
}

void TempFile::BeginToStore(qint64 place, qint64 length) const {
#ifdef Q_OS_LINUX
    ::sync_file_range(file_, place, length, SYNC_FILE_RANGE_WRITE);
#endif
}

bool TempFile::GoToStart() {
    return Check(::lseek(file_, 0, SEEK_SET), ReasonCode::WhileWriting);
}

bool TempFile::Store() {
    return KeepPermissions() && Check(Sync(), ReasonCode::WhileSyncing);
}

bool TempFile::Check(qint64 result, ReasonCode doing) {
    if (result == -1) {
        reason_ = {doing, SystemReason(errno)};
    }
    return result != -1;
}

bool TempFile::Create() {
    const QByteArray folder = FolderOf(target_.name);
    // A photo that only its owner may read stays so while it is written.
    const unsigned permissions = target_.permissions ? 0600 : 0666;
    for (int n = 0; n <= fixedTempNames; ++n) {
        const QByteArray name =
            TempName(folder, n < fixedTempNames ? (firstName_ + n) % fixedTempNames : n);
        file_ = operations_.Create(name, permissions);
        if (file_ == -1 && errno == EEXIST) {
            continue;
        }
        if (!Check(file_, ReasonCode::WhileCreating)) {
            return false;
        }
        if (Lock(name)) {
            name_ = name;
            return true;
        }
        Drop(file_);
        Drop(lock_);
    }
    errno = EEXIST;
    return Check(-1, ReasonCode::WhileCreating);
}

// False when another program removed it as a stray before it was locked. On file systems
// without locks no program removes strays, and the file is safe without a lock.
bool TempFile::Lock(const QByteArray& name) {
    lock_ = operations_.Lock(file_);
    if (lock_ == -1 && errno == EWOULDBLOCK) {
        return false;
    }
    return ::fstat(file_, &identity_) == 0 && IsNamed(identity_, name);
}

bool TempFile::WriteAll(QByteArrayView bytes) {
    const bool isWhole = operations_.WriteAll(file_, bytes) == bytes.size();
    return Check(isWhole ? 0 : -1, ReasonCode::WhileWriting);
}

// File systems without permissions may refuse. Then the file is less open than the older one
// was, never more.
bool TempFile::KeepPermissions() {
    if (!target_.permissions || (identity_.st_mode & 0777U) == *target_.permissions) {
        return true;
    }
    const int result = operations_.SetPermissions(file_, *target_.permissions);
    const bool unknown = result == -1 && (errno == EPERM || errno == ENOTSUP);
    return unknown || Check(result, ReasonCode::WhileSettingPermissions);
}

int TempFile::Sync() {
    int result = -1;
    do {
        result = operations_.Sync(file_);
    } while (result == -1 && errno == EINTR);
    return result;
}

// Before renaming, because network drives report some failed writes only here.
bool TempFile::Close() {
    const int result = operations_.Close(std::exchange(file_, -1));
    return (result == -1 && errno == EINTR) || Check(result, ReasonCode::WhileClosing);
}

bool TempFile::Rename() {
    // On network drives with locks of their own a computer may remove the file of another one
    // as a stray and use its name; that half-written file must not be renamed to the target.
    if (!IsNamed(identity_, name_)) {
        name_.clear();
        errno = ENOENT;
        return Check(-1, ReasonCode::WhileRenaming);
    }
    if (!Check(operations_.Rename(name_, target_.name), ReasonCode::WhileRenaming)) {
        return false;
    }
    name_.clear();
    return true;
}

void TempFile::Drop(int& file) {
    if (file != -1) {
        ::close(std::exchange(file, -1));
    }
}

}  // namespace varnel

#endif
