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

#include "base/reason.h"

namespace varnel {

class FileOperations;

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

}  // namespace varnel
