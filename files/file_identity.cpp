// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "files/file_identity.h"

#include <QFile>
#include <QFileInfo>
#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace varnel {

QString FileIdentity(const QString& path) {
#ifdef Q_OS_UNIX
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0
               ? QStringLiteral("%1 %2").arg(status.st_dev).arg(status.st_ino)
               : QString();
#else
    return QFileInfo(path).canonicalFilePath().toCaseFolded();
#endif
}

bool SameFile(const QString& a, const QString& b) {
    const QString identity = FileIdentity(a);
    return !identity.isEmpty() && identity == FileIdentity(b);
}

bool MayBeSameFile(const QString& a, const QString& b) {
    const QFileInfo first(a);
    const QFileInfo second(b);
    const auto name = [](const QFileInfo& file) {
        return file.fileName().normalized(QString::NormalizationForm_KC);
    };
    return name(first).compare(name(second), Qt::CaseInsensitive) == 0 &&
           FileIdentity(first.path()) == FileIdentity(second.path());
}

bool FileIdentities::Contains(const QString& path) {
    const QString asked = FileIdentity(path);
    if (asked.isEmpty()) {
        return false;
    }
    QStringList missing;
    for (const QString& unknown : unknown_) {
        const QString found = FileIdentity(unknown);
        if (found.isEmpty()) {
            missing.append(unknown);
        } else {
            known_.insert(found);
        }
    }
    unknown_ = missing;
    return known_.contains(asked);
}

}  // namespace varnel
