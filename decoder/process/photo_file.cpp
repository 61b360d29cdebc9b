// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "decoder/process/photo_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <QFile>
#include <cerrno>

#include "decoder/request/path_check.h"

namespace varnel {

OpenedPhoto OpenPhotoFile(const QString& path) {
    if (const Reason error = PathError(path); !error.isEmpty()) {
        return {{}, error};
    }
    Descriptor file(
        open(QFile::encodeName(path).constData(), O_RDONLY | O_CLOEXEC | O_NOCTTY | O_NONBLOCK));
    if (!file) {
        return {{}, Reason(ReasonCode::Words, qt_error_string(errno))};
    }
    struct stat status {};
    if (fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return {{}, ReasonCode::IsNoRegularFile};
    }
    if (status.st_size == 0) {
        return {{}, ReasonCode::FileEmpty};
    }
    return {std::move(file), {}};
}

}  // namespace varnel
