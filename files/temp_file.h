// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The hidden file in which a file is written before it gets its name. Throws std::bad_alloc only;
// errors are returned.
#pragma once

#include "files/atomic_file.h"

#ifdef Q_OS_UNIX

#include <sys/stat.h>

#include "files/write_target.h"

namespace varnel {

class FileOperations;

// Removed with this object unless it got its name. The operations outlive it.
class TempFile {
  public:
    // The fixed name of that number is tried first.
    TempFile(WriteTarget target, FileOperations& operations, int firstName = 0)
        : target_(std::move(target)), operations_(operations), firstName_(firstName) {}
    ~TempFile();
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;

    // The steps of writing it, each false when it failed. Beside the target; to be called once.
    bool Create();
    // Behind what was written.
    bool WriteAll(QByteArrayView bytes);
    // Has the system begin to write bytes to the disk, which has less to do when all are synced
    // then. A hint: it may fail.
    void BeginToStore(qint64 place, qint64 length) const;
    // What follows is written from the start on.
    bool GoToStart();
    // What takes the disk its time: syncs what was written and renames it to the target. May be
    // called on another thread.
    bool Finish() { return Store() && PutInPlace(); }
    // Its two halves.
    bool Store();
    bool PutInPlace() { return Close() && Rename(); }
    // Of the step that failed.
    const Reason& Error() const { return reason_; }

  private:
    bool Check(qint64 result, ReasonCode doing);
    bool Lock(const QByteArray& name);
    bool KeepPermissions();
    int Sync();
    bool Close();
    bool Rename();
    static void Drop(int& file);

    const WriteTarget target_;
    FileOperations& operations_;
    const int firstName_;
    QByteArray name_;  // empty while there is no hidden file
    struct stat identity_ {};
    int file_ = -1;
    int lock_ = -1;
    Reason reason_;
};

}  // namespace varnel

#endif
