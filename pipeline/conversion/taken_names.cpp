// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/taken_names.h"

#include <QFileInfo>

#include "files/file_identity.h"

namespace varnel {

QString TakenNames::Key(const QString& result) {
    const QFileInfo file(result);
    if (truePath_.isEmpty() || file.path() != folder_) {
        folder_ = file.path();
        truePath_ = QFileInfo(folder_).canonicalFilePath();
    }
    return truePath_ + u'/' + file.fileName().toCaseFolded();
}

QString TakenNames::Take(const QString& result, const QString& photo) {
    const QString key = Key(result);
    const QString name = QFileInfo(result).fileName();
    const auto [begin, end] = taken_.equal_range(key);
    for (auto taken = begin; taken != end; ++taken) {
        if (QFileInfo(taken->result).fileName() == name || SameFile(taken->result, result)) {
            return taken->photo;
        }
    }
    taken_.insert(key, {result, photo});
    return {};
}

}  // namespace varnel
