// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/part_file.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "files/file_operations.h"
#include "files/temp_names.h"

namespace varnel {

namespace {

// Removes what an ended run left under the name. False while a program is writing it; other things
// of that name stay, too, and creating the file fails by them.
bool RemoveLeft(const QByteArray& name, FileOperations& operations) {
    const int file = ::open(name.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file == -1) {
        return true;
    }
    struct stat found {};
    const bool isFree = ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
    if (isFree && ::fstat(file, &found) == 0 && S_ISREG(found.st_mode) && IsNamed(found, name)) {
        operations.Remove(name);
    }
    ::close(file);
    return isFree;
}

}  // namespace

PartFile::~PartFile() {
    if (!name_.isEmpty() && !kept_) {
        operations_.Remove(name_);  // while it is locked
    }
    Close();
}

void PartFile::Close() {
    for (int* const file : {&file_, &lock_}) {
        if (*file != -1) {
            ::close(std::exchange(*file, -1));
        }
    }
}

Reason PartFile::Check(qint64 result, ReasonCode doing) {
    if (result == -1) {
        error_ = {doing, SystemReason(errno)};
    }
    return error_;
}

Reason PartFile::Open(const QString& path) {
    target_ = FindWriteTarget(path);
    error_ = target_.error;
    return error_.isEmpty() ? Create() : error_;
}

Reason PartFile::Create() {
    const QByteArray name = target_.name + ".part";
    if (!RemoveLeft(name, operations_)) {
        return error_ = ReasonCode::FilmIsBeingWritten;
    }
    // What only its owner may read stays so while it is written.
    file_ = operations_.Create(name, target_.permissions ? 0600 : 0666);
    if (file_ == -1) {
        return Check(-1, ReasonCode::WhileCreating);
    }
    lock_ = operations_.Lock(file_);
    const bool isOthers = lock_ == -1 && errno == EWOULDBLOCK;
    if (isOthers || ::fstat(file_, &identity_) != 0 || !IsNamed(identity_, name)) {
        Close();
        return error_ = ReasonCode::FilmIsBeingWritten;
    }
    name_ = name;
    return {};
}

Reason PartFile::Write(QByteArrayView bytes) {
    if (!error_.isEmpty()) {
        return error_;
    }
    const qint64 written = operations_.WriteAll(file_, bytes);
    place_ += written;
    length_ = std::max(length_, place_);
    return Check(written == bytes.size() ? 0 : -1, ReasonCode::WhileWriting);
}

Reason PartFile::MoveTo(qint64 place) {
    if (error_.isEmpty() && place != place_) {
        Check(::lseek(file_, place, SEEK_SET), ReasonCode::WhileWriting);
        place_ = error_.isEmpty() ? place : place_;
    }
    return error_;
}

// File systems without permissions may refuse. Then the file is less open than the older one was,
// never more.
Reason PartFile::KeepPermissions() {
    if (!target_.permissions || (identity_.st_mode & 0777U) == *target_.permissions) {
        return {};
    }
    const int result = operations_.SetPermissions(file_, *target_.permissions);
    const bool unknown = result == -1 && (errno == EPERM || errno == ENOTSUP);
    return unknown ? Reason() : Check(result, ReasonCode::WhileSettingPermissions);
}

Reason PartFile::TakeOver() {
    int synced = -1;
    do {
        synced = operations_.Sync(file_);
    } while (synced == -1 && errno == EINTR);
    if (!Check(synced, ReasonCode::WhileSyncing).isEmpty()) {
        return error_;
    }
    // Before renaming, because network drives report some failed writes only here.
    if (operations_.Close(std::exchange(file_, -1)) == -1 && errno != EINTR) {
        return Check(-1, ReasonCode::WhileClosing);
    }
    if (!IsNamed(identity_, name_)) {  // a computer without our locks has taken the name
        name_.clear();
        errno = ENOENT;
        return Check(-1, ReasonCode::WhileRenaming);
    }
    if (operations_.Rename(name_, target_.name) == -1) {
        return Check(-1, ReasonCode::WhileRenaming);
    }
    name_.clear();
    return SyncError(FolderOf(target_.name), operations_);
}

Reason PartFile::Finish() {
    if (error_.isEmpty()) {
        KeepPermissions();
    }
    return error_.isEmpty() ? TakeOver() : error_;
}

}  // namespace varnel

#endif
