// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing a file so that under its name there is always a whole one: the older or the new.
#pragma once

#include <QByteArrayView>
#include <QString>

namespace varnel {

class FileSteps;

// True when the whole file is in place; otherwise the reason in the system's words.
struct WriteResult {
    bool ok = false;
    QString reason;
    explicit operator bool() const { return ok; }
};

// Writes a hidden file beside the target, makes it last on the disk and renames it. An older file
// keeps its permissions, and where a symbolic link leads to it the link stays. After a failure an
// older file is as it was, unless only the folder could not be synced: then the new one is in place
// but may not outlast a power cut. What killed runs left behind in the folder is removed.
WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes);

#ifdef Q_OS_UNIX
WriteResult WriteWholeFile(const QString& path, QByteArrayView bytes, FileSteps& steps);
#endif

}  // namespace varnel
