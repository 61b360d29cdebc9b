// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a file so that under its name there is always a whole one: the older or the new.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <memory>

#include "base/reason.h"

namespace varnel {

class FileOperations;

// True when the whole file is in place; otherwise the reason, which IsBy knows the system's error
// of.
struct WriteResult {
    bool ok = false;
    Reason reason;
    explicit operator bool() const { return ok; }
};

// Writes a hidden file beside the target, makes it last on the disk and renames it. An older file
// keeps its permissions, and where a symbolic link leads to it the link stays. After a failure an
// older file is as it was, unless only the folder could not be synced: then the new one is in place
// but may not outlast a power cut. What killed runs left behind in the folder is removed.
WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes);

#ifdef Q_OS_UNIX
WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes, FileOperations& steps);
#endif

// Whole files one after the other, most of them in the same folder. Each is made last before it
// gets its name, but the names of up to mostUnsynced files are made last together, which spares
// half of what small files cost the system: until then a power cut may take back that they were
// renamed. The files are whole, the older ones or the new ones, all the same; what a killed program
// had written stays. What killed runs left behind is removed before the first file in a folder.
class FileSeries {
  public:
#ifdef Q_OS_UNIX
    static constexpr int mostUnsynced = 16;

    FileSeries();
    explicit FileSeries(std::unique_ptr<FileOperations> steps);
    ~FileSeries();
    FileSeries(const FileSeries&) = delete;
    FileSeries& operator=(const FileSeries&) = delete;
#endif

    WriteResult Write(const QString& path, QByteArrayView bytes);
    // Makes all names last. Otherwise the reason, led by the first folder's name that may not.
    WriteResult Finish();

#ifdef Q_OS_UNIX
  private:
    void SyncFolder();

    std::unique_ptr<FileOperations> steps_;
    QByteArray folder_;  // without strays, of the last file; empty before the first
    int unsynced_ = 0;   // files in it whose names may not last yet
    Reason error_;
#endif
};

}  // namespace varnel
