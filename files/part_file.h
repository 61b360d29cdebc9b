// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A file that is too large for memory, written piece by piece as NAME.part beside its target. Under
// the target's own name there is always a whole file: the older or the new. Throws std::bad_alloc
// only; errors are returned.
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include "base/reason.h"
#include "files/write_target.h"

#ifdef Q_OS_UNIX

#include <sys/stat.h>

namespace varnel {

class FileOperations;

class PartFile {
  public:
    explicit PartFile(FileOperations& operations) : operations_(operations) {}
    // Removes NAME.part, unless it was finished or is to be kept.
    ~PartFile();
    PartFile(const PartFile&) = delete;
    PartFile& operator=(const PartFile&) = delete;

    // Creates NAME.part, in the place of one that no program is writing: what an ended run has
    // left. Follows links and keeps the permissions of an older file, as WriteWholeFile does.
    Reason Open(const QString& path);
    // From now on NAME.part stays, whatever comes.
    void Keep() { kept_ = true; }
    // At the place, which it moves behind what was written. After an error all further calls give
    // that one.
    Reason Write(QByteArrayView bytes);
    // Bytes from the start.
    Reason MoveTo(qint64 place);
    qint64 Place() const { return place_; }
    // Bytes in the file.
    qint64 Length() const { return length_; }
    // Syncs the file, gives it the target's name and syncs the folder.
    Reason Finish();

  private:
    Reason Check(qint64 result, ReasonCode doing);
    Reason Create();
    Reason TakeOver();
    Reason KeepPermissions();
    void Close();

    FileOperations& operations_;
    WriteTarget target_;
    QByteArray name_;  // empty while there is no such file
    struct stat identity_ {};
    int file_ = -1;
    int lock_ = -1;
    qint64 place_ = 0;
    qint64 length_ = 0;
    bool kept_ = false;
    Reason error_;
};

}  // namespace varnel

#endif
