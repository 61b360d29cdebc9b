// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/atomic_file.h"

#ifdef Q_OS_UNIX

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <algorithm>
#include <cerrno>
#include <optional>
#include <utility>

#include "files/file_operations.h"
#include "files/temp_names.h"
#include "files/write_target.h"

namespace varnel {

namespace {

constexpr qint64 largestPiece = 16 << 20;  // bytes given to the system at a time

// The hidden file until it is renamed to the target. Removed with this object if that failed.
class TempFile {
  public:
    TempFile(const WriteTarget& target, FileOperations& operations)
        : target_(target), operations_(operations) {}
    TempFile(const TempFile&) = delete;
    TempFile& operator=(const TempFile&) = delete;
    ~TempFile() {
        if (!name_.isEmpty()) {
            operations_.Remove(name_);  // while it is locked
        }
        Drop(file_);
        Drop(lock_);
    }

    WriteResult Write(QByteArrayView bytes) {
        const bool ok = Create() && WriteAll(bytes) && Finish();
        return {ok, reason_};
    }
    // The steps of it, each false when it failed.
    bool Create() {
        const QByteArray folder = FolderOf(target_.name);
        // A photo that only its owner may read stays so while it is written.
        const unsigned permissions = target_.permissions ? 0600 : 0666;
        for (int n = 0; n <= fixedTempNames; ++n) {
            const QByteArray name = TempName(folder, n);
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
    bool WriteAll(QByteArrayView bytes) {
        while (!bytes.isEmpty()) {
            const qint64 length = std::min<qint64>(bytes.size(), largestPiece);
            const qint64 written = operations_.Write(file_, bytes.data(), length);
            if (written == -1 && errno == EINTR) {
                continue;
            }
            if (written == 0) {  // would loop for ever
                errno = EIO;
            }
            if (!Check(written > 0 ? written : -1, ReasonCode::WhileWriting)) {
                return false;
            }
            bytes = bytes.sliced(written);
        }
        return true;
    }
    // Has the system begin to write bytes to the disk, which has less to do when all are synced
    // then. A hint: it may fail.
    void BeginToStore(qint64 place, qint64 length) const {
#ifdef Q_OS_LINUX
        ::sync_file_range(file_, place, length, SYNC_FILE_RANGE_WRITE);
#endif
    }
    // What follows is written from the start on.
    bool GoToStart() {
        return Check(::lseek(file_, 0, SEEK_SET), ReasonCode::WhileWriting);
    }
    bool Finish() {
        return KeepPermissions() && Check(Sync(), ReasonCode::WhileSyncing) && Close() && Rename();
    }
    const Reason& Error() const {
        return reason_;
    }

  private:
    bool Check(qint64 result, ReasonCode doing) {
        if (result == -1) {
            reason_ = {doing, SystemReason(errno)};
        }
        return result != -1;
    }

    // False when another program removed it as a stray before it was locked. On file systems
    // without locks no program removes strays, and the file is safe without a lock.
    bool Lock(const QByteArray& name) {
        lock_ = operations_.Lock(file_);
        if (lock_ == -1 && errno == EWOULDBLOCK) {
            return false;
        }
        return ::fstat(file_, &identity_) == 0 && IsNamed(identity_, name);
    }

    // File systems without permissions may refuse. Then the file is less open than the older one
    // was, never more.
    bool KeepPermissions() {
        if (!target_.permissions || (identity_.st_mode & 0777U) == *target_.permissions) {
            return true;
        }
        const int result = operations_.SetPermissions(file_, *target_.permissions);
        const bool unknown = result == -1 && (errno == EPERM || errno == ENOTSUP);
        return unknown || Check(result, ReasonCode::WhileSettingPermissions);
    }

    int Sync() {
        int result = -1;
        do {
            result = operations_.Sync(file_);
        } while (result == -1 && errno == EINTR);
        return result;
    }

    // Before renaming, because network drives report some failed writes only here.
    bool Close() {
        const int result = operations_.Close(std::exchange(file_, -1));
        return (result == -1 && errno == EINTR) || Check(result, ReasonCode::WhileClosing);
    }

    bool Rename() {
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

    void Drop(int& file) {
        if (file != -1) {
            ::close(std::exchange(file, -1));
        }
    }

    const WriteTarget& target_;
    FileOperations& operations_;
    QByteArray name_;  // empty while there is no hidden file
    struct stat identity_ {};
    int file_ = -1;
    int lock_ = -1;
    Reason reason_;
};

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

WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes, FileOperations& operations) {
    const WriteTarget target = FindWriteTarget(path);
    if (!target.error.isEmpty()) {
        return {false, target.error};
    }
    RemoveStrays(FolderOf(target.name));
    const WriteResult written = TempFile(target, operations).Write(bytes);
    const Reason error = written ? SyncError(FolderOf(target.name), operations) : written.reason;
    return {error.isEmpty(), error};
}

WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes) {
    FileOperations operations;
    return WriteWholeFile(path, bytes, operations);
}

FileSeries::FileSeries() : FileSeries(std::make_unique<FileOperations>()) {}

FileSeries::FileSeries(std::unique_ptr<FileOperations> operations)
    : operations_(std::move(operations)) {}

FileSeries::~FileSeries() {
    Finish();
}

WriteResult FileSeries::Write(const QString& path, QByteArrayView bytes) {
    return WriteFile(path, [&](const WriteTarget& target) {
        return TempFile(target, *operations_).Write(bytes);
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
    const WriteTarget target = FindWriteTarget(path);
    if (!target.error.isEmpty()) {
        return {false, target.error};
    }
    if (const QByteArray folder = FolderOf(target.name); folder != folder_) {
        SyncFolder();
        RemoveStrays(folder);
        folder_ = folder;
    }
    WriteResult written = write(target);
    unsynced_ += written ? 1 : 0;
    if (!written || unsynced_ == mostUnsynced) {
        SyncFolder();
    }
    if (!written) {
        folder_.clear();  // a stray may be left in it
    }
    return written;
}

void FileSeries::SyncFolder() {
    const Reason error = unsynced_ > 0 ? SyncError(folder_, *operations_) : Reason();
    unsynced_ = 0;
    if (error_.isEmpty() && !error.isEmpty()) {
        error_ = {ReasonCode::Of, QFile::decodeName(folder_), error};
    }
}

WriteResult FileSeries::Finish() {
    SyncFolder();
    const Reason error = std::exchange(error_, Reason());
    return {error.isEmpty(), error};
}

}  // namespace varnel

#else

#include <QSaveFile>

namespace varnel {

WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes) {
    QSaveFile file(path);
    // Flushing is checked by itself: committing alone has let cut files pass on a full disk.
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush() || !file.commit()) {
        return {false, {ReasonCode::Words, file.errorString()}};
    }
    return {true, {}};
}

WriteResult FileSeries::Write(const QString& path, QByteArrayView bytes) {
    return WriteWholeFile(path, bytes);
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
