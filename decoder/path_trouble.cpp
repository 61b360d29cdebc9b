// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/path_trouble.h"

#include <QFileInfo>

namespace varnel {

QString PathTrouble(const QString& path) {
    const QFileInfo file(path);
    if (file.isSymLink() && !file.exists()) {
        return QStringLiteral("the link leads nowhere");
    }
    if (!file.exists()) {
        return QStringLiteral("there is no such file");
    }
    if (file.isDir()) {
        return QStringLiteral("this is a folder, not a picture");
    }
    if (!file.isFile()) {
        return QStringLiteral("this is no regular file");
    }
    if (!file.isReadable()) {
        return QStringLiteral("no permission to read it");
    }
    return file.size() == 0 ? QStringLiteral("the file is empty") : QString();
}

}  // namespace varnel
