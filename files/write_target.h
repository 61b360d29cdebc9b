// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The file that a whole file replaces or creates. Throws nothing.
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "base/reason.h"

namespace varnel {

class FileOperations;

#ifdef Q_OS_UNIX

// With all links followed: renaming would replace a link itself.
struct WriteTarget {
    QByteArray name;
    std::optional<unsigned> permissions;  // of the older file, if there is one
    Reason error;
};

WriteTarget FindWriteTarget(const QString& path);

// Of a file's name; "." for one without.
QByteArray FolderOf(const QByteArray& name);

// The reason why the folder could not be synced. Some file systems cannot sync folders, and files
// can be created in a folder that cannot be read.
Reason SyncError(const QByteArray& folder, FileOperations& operations);

// A value of errno.
Reason SystemReason(int error);

#endif

}  // namespace varnel
