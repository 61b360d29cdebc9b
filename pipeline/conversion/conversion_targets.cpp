// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/conversion_targets.h"

#include <QCoreApplication>
#include <QFileInfo>

#include "base/error_text.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(Batch)
};

// Frames of a sequence share their photo.
QStringList PhotosOf(const RecordArray<ImageRecord>& queue) {
    QStringList paths;
    for (const ImageRecord& entry : queue) {
        if (const QString path = SourcePath(entry); paths.isEmpty() || path != paths.last()) {
            paths.append(path);
        }
    }
    return paths;
}

}  // namespace

BatchTargets::BatchTargets(const RecordArray<ImageRecord>& queue) : queued_(PhotosOf(queue)) {}

QString BatchTargets::Error(const ImageRecord& entry, const QString& path, const Reason& damage) {
    if (!QFileInfo::exists(path)) {
        return {};
    }
    if (SameFile(path, SourcePath(entry))) {
        return Texts::tr("%1 is the photo itself").arg(path);
    }
    if (queued_.Contains(path)) {
        return Texts::tr("%1 is one of the queued photos").arg(path);
    }
    if (!damage.isEmpty() && !halfPictures_.contains(path)) {
        return Texts::tr("the photo is damaged (%1) and does not replace the older %2")
            .arg(ErrorText(damage), path);
    }
    return {};
}

void BatchTargets::NoteWritten(const QString& path, bool damaged) {
    if (damaged) {
        halfPictures_.insert(path);
    } else {
        halfPictures_.remove(path);
    }
}

}  // namespace varnel
