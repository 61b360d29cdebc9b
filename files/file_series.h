// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Many whole files, most of them in the same folder. Throws std::bad_alloc only; errors are
// returned.
#pragma once

#include <QByteArrayView>
#include <QString>
#include <functional>
#include <future>
#include <memory>

#include "files/atomic_file.h"
#include "files/file_sink.h"

#ifdef Q_OS_UNIX

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

namespace varnel {

class TempFile;
struct WriteTarget;

// Whole files one after the other. Each is synced before it gets its name, but the folder is synced
// once for up to mostUnsynced files, which spares half of what small files cost: until then a power
// cut may undo the renaming. The files are whole all the same, the older ones or the new ones, and
// files of a killed program stay. Temporary files that killed runs left are removed before the
// first file in a folder.
//
// For one thread, but for what the series does on its own.
class FileSeries {
  public:
    static constexpr int mostUnsynced = 16;
    static constexpr int filesTogether = 8;

    FileSeries();
    // The operations of Write, and those of Begin where they differ; the latter are called on the
    // series' thread, too.
    explicit FileSeries(std::shared_ptr<FileOperations> operations,
                        std::shared_ptr<FileOperations> later = nullptr);
    ~FileSeries();
    FileSeries(const FileSeries&) = delete;
    FileSeries& operator=(const FileSeries&) = delete;

    WriteResult Write(const QString& path, QByteArrayView bytes);
    // The same of bytes that come piece by piece: fill puts them where it is told to, from one
    // thread at a time, and returns why there is no file, or nothing when it is whole. What it
    // throws ends the file, too.
    WriteResult Write(const QString& path, const std::function<Reason(FileSink&)>& fill);
    // As Write, but returns as soon as the system has the bytes: a thread of the series syncs the
    // files and gives them their names, in the order in which they were begun. The future is ready
    // when that is done, and at once after an error. Up to filesTogether files wait for each other,
    // for 20 ms at most: synced one right after the other they cost the system half as much. For
    // another folder, and before Write and Finish, waits for all that were begun.
    std::future<WriteResult> Begin(const QString& path, QByteArrayView bytes);
    // Those that were begun do not wait for others. To be called before waiting for a future.
    void Hurry();
    // Syncs the folder of the last files. A reason names the first folder that could not be synced.
    WriteResult Finish();

  private:
    struct Begun {
        std::unique_ptr<TempFile> file;
        std::promise<WriteResult> result;
    };

    WriteResult WriteFile(const QString& path,
                          const std::function<WriteResult(const WriteTarget&)>& write);
    // Into the folder of a target, synced where another one was the last.
    void Enter(const QByteArray& folder);
    WriteResult NoteEnd(const WriteResult& written, FileOperations& operations);
    void SyncFolder(FileOperations& operations);
    bool HasThread();
    void FinishOne(Begun& begun, bool isStored);
    void FinishTogether(std::size_t count, std::unique_lock<std::mutex>& lock);
    void FinishBegun();
    void Wait();

    std::shared_ptr<FileOperations> operations_;
    std::shared_ptr<FileOperations> later_;
    QByteArray folder_;  // of the last file; changed while the other thread has nothing to do
    std::atomic<bool> mayHaveStrays_ = false;
    // The other thread's while it has something to do, then the caller's.
    int unsynced_ = 0;  // files in the folder that were renamed since it was synced
    Reason error_;

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<Begun> begun_;  // those at the front stay until they are done
    int firstName_ = 0;        // of the next one
    bool hurries_ = false;     // until all are done
    bool ending_ = false;
    std::thread thread_;  // from the first Begin on
};

}  // namespace varnel

#else

namespace varnel {

class FileSeries {
  public:
    WriteResult Write(const QString& path, QByteArrayView bytes);
    WriteResult Write(const QString& path, const std::function<Reason(FileSink&)>& fill);
    std::future<WriteResult> Begin(const QString& path, QByteArrayView bytes);
    void Hurry() {}
    WriteResult Finish();
};

}  // namespace varnel

#endif
