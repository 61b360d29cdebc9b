// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/conversion_targets.h"

#include <QFileInfo>

namespace varnel {

TargetRefusal ConversionTargets::Take(const QString& photo, const QString& target) {
    if (rules_.repeated == RepeatedName::LaterReplaces) {
        return {};
    }
    const QString first = names_.Take(target, photo);
    return first.isEmpty() ? TargetRefusal() : TargetRefusal{TargetError::IsResultOfRun, first};
}

bool ConversionTargets::IsSkipped(const QString& target) const {
    return rules_.existing == ExistingFile::Skipped && QFileInfo::exists(target);
}

TargetRefusal ConversionTargets::Check(const QString& photo, const QString& target, bool damaged) {
    const QFileInfo file(target);
    if (!file.exists()) {
        return {};
    }
    if (file.isDir()) {
        return {TargetError::IsFolder};
    }
    if (SameFile(target, photo)) {
        return {TargetError::IsThePhoto};
    }
    // One that is yet to be converted, say: "varnel *" where an earlier result exists.
    if (photos_.Contains(target)) {
        return {TargetError::IsPhotoOfRun};
    }
    if (rules_.repeated == RepeatedName::LaterFails) {
        if (const QString first = names_.WriterOf(file.canonicalFilePath()); !first.isEmpty()) {
            return {TargetError::IsResultOfRun, first};  // through a link, say
        }
    }
    if (rules_.existing != ExistingFile::Replaced) {
        return {TargetError::Exists};
    }
    return damaged && !halfPictures_.contains(target) ? TargetRefusal{TargetError::DamagedPhoto}
                                                      : TargetRefusal();
}

void ConversionTargets::NoteWritten(const QString& photo, const QString& target, bool damaged) {
    if (rules_.repeated == RepeatedName::LaterFails) {
        names_.NoteWritten(target, photo);
    }
    if (damaged) {
        halfPictures_.insert(target);
    } else {
        halfPictures_.remove(target);
    }
}

}  // namespace varnel
