// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a file so that under its name there is always a whole one: the older or the new. Throws
// nothing; errors are returned.
//
// By hand rather than by QSaveFile: that ignores errors of syncing, does not sync the folder and
// leaves behind the temporary file of a killed run.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <functional>
#include <memory>

#include "base/reason.h"
#include "files/file_sink.h"

namespace varnel {

class FileOperations;
struct WriteTarget;

// True when the whole file is in place; otherwise with the reason, in which Reason::IsBy finds the
// system's error.
struct WriteResult {
    bool ok = false;
    Reason reason;
    explicit operator bool() const { return ok; }
};

// Writes a hidden file beside the target, syncs it to the disk and renames it. The permissions of
// an older file are kept, and so is a symbolic link that leads to it. After a failure an older file
// is as it was, unless only the folder could not be synced: then the new one is in place but may
// not outlast a power cut. Temporary files that killed runs left in the folder are removed.
WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes);

#ifdef Q_OS_UNIX
WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes, FileOperations& operations);
#endif

// Whole files one after the other, most of them in the same folder. Each is synced before it gets
// its name, but the folder is synced once for up to mostUnsynced files, which spares half of what
// small files cost: until then a power cut may undo the renaming. The files are whole all the same,
// the older ones or the new ones, and files of a killed program stay. Temporary files that killed
// runs left are removed before the first file in a folder.
class FileSeries {
  public:
#ifdef Q_OS_UNIX
    static constexpr int mostUnsynced = 16;

    FileSeries();
    explicit FileSeries(std::unique_ptr<FileOperations> operations);
    ~FileSeries();
    FileSeries(const FileSeries&) = delete;
    FileSeries& operator=(const FileSeries&) = delete;
#endif

    WriteResult Write(const QString& path, QByteArrayView bytes);
    // The same of bytes that come piece by piece: fill puts them where it is told to, from one
    // thread at a time, and returns why there is no file, or nothing when it is whole. What it
    // throws ends the file, too.
    WriteResult Write(const QString& path, const std::function<Reason(FileSink&)>& fill);
    // Syncs the folder of the last files. A reason names the first folder that could not be synced.
    WriteResult Finish();

#ifdef Q_OS_UNIX
  private:
    WriteResult WriteFile(const QString& path,
                          const std::function<WriteResult(const WriteTarget&)>& write);
    void SyncFolder();

    std::unique_ptr<FileOperations> operations_;
    QByteArray folder_;  // of the last file, without strays; empty before the first
    int unsynced_ = 0;   // files in it that were renamed since it was synced
    Reason error_;
#endif
};

}  // namespace varnel
