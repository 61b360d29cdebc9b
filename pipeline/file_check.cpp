// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/file_check.h"

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

QString SizeTrouble(FIBITMAP* bitmap) {
    const unsigned width = FreeImage_GetWidth(bitmap);
    const unsigned height = FreeImage_GetHeight(bitmap);
    if (width == 0 || height == 0) {
        return QStringLiteral("the picture has no pixels");
    }
    if (width > largestSide || height > largestSide) {
        return QStringLiteral("too large: %1 x %2 pixels, a side may have %3")
            .arg(width)
            .arg(height)
            .arg(largestSide);
    }
    return {};
}

}  // namespace varnel
