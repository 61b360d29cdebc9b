// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/file_series.h"

#ifdef Q_OS_UNIX

#include <QFile>
#include <algorithm>
#include <array>
#include <chrono>
#include <new>
#include <optional>
#include <system_error>
#include <utility>

#include "files/file_operations.h"
#include "files/temp_file.h"
#include "files/temp_names.h"
#include "files/write_target.h"

namespace varnel {

namespace {

constexpr std::chrono::milliseconds longestWait(20);  // of a file for others

// A hidden file that grows.
class TempSink : public FileSink {
  public:
    TempSink(const WriteTarget& target, FileOperations& operations)
        : target_(target), operations_(operations) {}

    bool Begin() override {
        file_.reset();
        file_.emplace(target_, operations_);
        length_ = storedFrom_ = 0;
        return Noted(file_->Create());
    }
    bool Append(QByteArrayView bytes) override {
        while (!bytes.isEmpty()) {
            const qint64 length =
                std::min<qint64>(bytes.size(), storedFrom_ + bytesAtOnce - length_);
            if (!Noted(file_->WriteAll(bytes.first(length)))) {
                return false;
            }
            length_ += length;
            if (length_ == storedFrom_ + bytesAtOnce) {
                file_->BeginToStore(storedFrom_, bytesAtOnce);
                storedFrom_ = length_;
            }
            bytes = bytes.sliced(length);
        }
        return true;
    }
    bool PutAtStart(QByteArrayView bytes) override {
        return Noted(file_->GoToStart() && file_->WriteAll(bytes));
    }
    bool Finish() { return (file_ || Begin()) && Noted(file_->Finish()); }
    const Reason& Error() const override { return error_; }

  private:
    static constexpr qint64 bytesAtOnce = 8 << 20;  // of what a killed program waits for

    bool Noted(bool ok) {
        if (!ok) {
            error_ = file_->Error();
        }
        return ok;
    }

    const WriteTarget& target_;
    FileOperations& operations_;
    std::optional<TempFile> file_;
    qint64 length_ = 0;
    qint64 storedFrom_ = 0;  // up to there the system was told to write to the disk
    Reason error_;
};

}  // namespace

FileSeries::FileSeries() : FileSeries(std::make_shared<FileOperations>()) {}

FileSeries::FileSeries(std::shared_ptr<FileOperations> operations,
                       std::shared_ptr<FileOperations> later)
    : operations_(std::move(operations)), later_(later ? std::move(later) : operations_) {}

FileSeries::~FileSeries() {
    Finish();
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    changed_.notify_all();
    if (thread_.joinable()) {
        thread_.join();
    }
}

void FileSeries::Enter(const QByteArray& folder) {
    const bool isOther = folder != folder_;
    if (isOther) {
        Wait();
        SyncFolder(*operations_);
        folder_ = folder;
    }
    if (mayHaveStrays_.exchange(false) || isOther) {
        RemoveStrays(folder);
    }
}

WriteResult FileSeries::NoteEnd(const WriteResult& written, FileOperations& operations) {
    unsynced_ += written ? 1 : 0;
    if (!written) {
        mayHaveStrays_ = true;
    }
    if (!written || unsynced_ == mostUnsynced) {
        SyncFolder(operations);
    }
    return written;
}

WriteResult FileSeries::Write(const QString& path, QByteArrayView bytes) {
    return WriteFile(path, [&](const WriteTarget& target) -> WriteResult {
        TempFile file(target, *operations_);
        const bool ok = file.Create() && file.WriteAll(bytes) && file.Finish();
        return {ok, file.Error()};
    });
}

WriteResult FileSeries::Write(const QString& path, const std::function<Reason(FileSink&)>& fill) {
    return WriteFile(path, [&](const WriteTarget& target) -> WriteResult {
        TempSink sink(target, *operations_);
        const Reason missing = fill(sink);
        if (!missing.isEmpty()) {
            return {false, missing};
        }
        return {sink.Finish(), sink.Error()};
    });
}

WriteResult FileSeries::WriteFile(const QString& path,
                                  const std::function<WriteResult(const WriteTarget&)>& write) {
    Wait();
    const WriteTarget target = FindWriteTarget(path);
    if (!target.error.isEmpty()) {
        return {false, target.error};
    }
    Enter(FolderOf(target.name));
    return NoteEnd(write(target), *operations_);
}

std::future<WriteResult> FileSeries::Begin(const QString& path, QByteArrayView bytes) {
    Begun begun;
    std::future<WriteResult> result = begun.result.get_future();
    WriteTarget target = FindWriteTarget(path);
    if (!target.error.isEmpty()) {
        begun.result.set_value({false, target.error});
        return result;
    }
    Enter(FolderOf(target.name));
    begun.file = std::make_unique<TempFile>(std::move(target), *later_, firstName_);
    firstName_ = (firstName_ + 1) % fixedTempNames;
    const bool isWritten = begun.file->Create() && begun.file->WriteAll(bytes);
    if (!isWritten || !HasThread()) {
        Wait();
        FinishOne(begun, isWritten && begun.file->Store());
        return result;
    }
    std::size_t count = 0;
    {
        const std::lock_guard lock(mutex_);
        begun_.push_back(std::move(begun));
        count = begun_.size();
    }
    if (count == 1 || count == filesTogether) {
        changed_.notify_all();
    }
    return result;
}

void FileSeries::Hurry() {
    {
        const std::lock_guard lock(mutex_);
        if (hurries_ || begun_.empty()) {
            return;
        }
        hurries_ = true;
    }
    changed_.notify_all();
}

// Where the system gives no thread, what is begun is finished at once.
bool FileSeries::HasThread() {
    try {
        if (!thread_.joinable()) {
            thread_ = std::thread([this] { FinishBegun(); });
        }
    } catch (const std::system_error&) {
        return false;
    }
    return true;
}

void FileSeries::FinishOne(Begun& begun, bool isStored) {
    try {
        const bool ok = isStored && begun.file->PutInPlace();
        const WriteResult end = NoteEnd({ok, begun.file->Error()}, *later_);
        begun.file.reset();
        begun.result.set_value(end);
    } catch (const std::bad_alloc&) {
        begun.result.set_exception(std::current_exception());
    }
}

// All are synced before the first is renamed: some file systems sync the folder with each new file.
void FileSeries::FinishTogether(std::size_t count, std::unique_lock<std::mutex>& lock) {
    std::array<Begun*, filesTogether> files{};
    for (std::size_t n = 0; n < count; ++n) {
        files[n] = &begun_[n];
    }
    lock.unlock();
    for (std::size_t n = 0; n < count; ++n) {
        files[n]->file->BeginToStore(0, 0);  // as a whole
    }
    std::array<bool, filesTogether> isStored{};
    for (std::size_t n = 0; n < count; ++n) {
        isStored[n] = files[n]->file->Store();
    }
    for (std::size_t n = 0; n < count; ++n) {
        FinishOne(*files[n], isStored[n]);
    }
    lock.lock();
    begun_.erase(begun_.begin(), begun_.begin() + static_cast<std::ptrdiff_t>(count));
}

void FileSeries::FinishBegun() {
    std::unique_lock lock(mutex_);
    while (true) {
        changed_.wait(lock, [this] { return ending_ || !begun_.empty(); });
        if (begun_.empty()) {
            return;
        }
        changed_.wait_for(lock, longestWait,
                          [this] { return ending_ || hurries_ || begun_.size() >= filesTogether; });
        FinishTogether(std::min<std::size_t>(begun_.size(), filesTogether), lock);
        if (begun_.empty()) {
            hurries_ = false;
            changed_.notify_all();
        }
    }
}

void FileSeries::Wait() {
    Hurry();
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return begun_.empty(); });
}

void FileSeries::SyncFolder(FileOperations& operations) {
    const Reason error = unsynced_ > 0 ? SyncError(folder_, operations) : Reason();
    unsynced_ = 0;
    if (error_.isEmpty() && !error.isEmpty()) {
        error_ = {ReasonCode::Of, QFile::decodeName(folder_), error};
    }
}

WriteResult FileSeries::Finish() {
    Wait();
    SyncFolder(*operations_);
    const Reason error = std::exchange(error_, Reason());
    return {error.isEmpty(), error};
}

}  // namespace varnel

#else

namespace varnel {

WriteResult FileSeries::Write(const QString& path, QByteArrayView bytes) {
    return WriteWholeFile(path, bytes);
}

std::future<WriteResult> FileSeries::Begin(const QString& path, QByteArrayView bytes) {
    std::promise<WriteResult> done;
    done.set_value(Write(path, bytes));
    return done.get_future();
}

namespace {

class MemorySink : public FileSink {
  public:
    bool Begin() override {
        bytes.clear();
        return true;
    }
    bool Append(QByteArrayView more) override {
        bytes += more;
        return true;
    }
    bool PutAtStart(QByteArrayView start) override {
        bytes.replace(0, start.size(), start.toByteArray());
        return true;
    }
    const Reason& Error() const override { return error_; }

    QByteArray bytes;

  private:
    Reason error_;
};

}  // namespace

WriteResult FileSeries::Write(const QString& path, const std::function<Reason(FileSink&)>& fill) {
    MemorySink sink;
    const Reason missing = fill(sink);
    return missing.isEmpty() ? WriteWholeFile(path, sink.bytes) : WriteResult{false, missing};
}

WriteResult FileSeries::Finish() {
    return {true, {}};
}

}  // namespace varnel

#endif
