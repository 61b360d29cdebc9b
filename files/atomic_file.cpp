// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/atomic_file.h"

#ifdef Q_OS_UNIX

#include "files/file_operations.h"
#include "files/temp_file.h"
#include "files/temp_names.h"
#include "files/write_target.h"

namespace varnel {

namespace {

WriteResult WriteNamed(const WriteTarget& target, QByteArrayView bytes,
                       FileOperations& operations) {
    TempFile file(target, operations);
    const bool ok = file.Create() && file.WriteAll(bytes) && file.Finish();
    return {ok, file.Error()};
}

}  // namespace

WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes, FileOperations& operations) {
    const WriteTarget target = FindWriteTarget(path);
    if (!target.error.isEmpty()) {
        return {false, target.error};
    }
    RemoveStrays(FolderOf(target.name));
    const WriteResult written = WriteNamed(target, bytes, operations);
    const Reason error = written ? SyncError(FolderOf(target.name), operations) : written.reason;
    return {error.isEmpty(), error};
}

WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes) {
    FileOperations operations;
    return WriteWholeFile(path, bytes, operations);
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

}  // namespace varnel

#endif
