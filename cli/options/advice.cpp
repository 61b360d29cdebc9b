// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/options/advice.h"

#include <QFileInfo>
#include <cerrno>

namespace varnel {

QString PhotoAdvice(const QString& path) {
    const QFileInfo file(path);
    if (file.isDir()) {
        return QStringLiteral("; name the photos in it, as in %1*.jpg")
            .arg(path.endsWith(u'/') ? path : path + u'/');
    }
    if (file.exists() || file.isSymLink()) {
        return {};
    }
    if (path.contains(QChar::ReplacementCharacter)) {
        return QStringLiteral("; its name may be no UTF-8: rename it");
    }
    return path.contains(u'*') ? QStringLiteral("; nothing fits this pattern") : QString();
}

QString ResultAdvice(const QString& path, const Reason& reason) {
    if (reason.IsBy(ENOSPC)) {
        return QStringLiteral("; make room, then --skip-existing does the rest");
    }
    const QFileInfo folder(QFileInfo(path).path());
    return folder.isDir() && folder.isWritable()
               ? QString()
               : QStringLiteral("; --output-dir names another folder");
}

}  // namespace varnel
