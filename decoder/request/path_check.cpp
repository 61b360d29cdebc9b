// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/request/path_check.h"

#include <QFileInfo>

namespace varnel {

Reason PathError(const QString& path) {
    const QFileInfo file(path);
    if (file.isSymLink() && !file.exists()) {
        return ReasonCode::LinkLeadsNowhere;
    }
    if (!file.exists()) {
        return ReasonCode::NoSuchFile;
    }
    if (file.isDir()) {
        return ReasonCode::IsFolder;
    }
    if (!file.isFile()) {
        return ReasonCode::IsNoRegularFile;
    }
    if (!file.isReadable()) {
        return ReasonCode::NoPermissionToRead;
    }
    return file.size() == 0 ? ReasonCode::FileEmpty : ReasonCode::None;
}

}  // namespace varnel
