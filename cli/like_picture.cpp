// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "cli/like_picture.h"

#include "base/error_text.h"
#include "pipeline/conversion/settings_from_picture.h"
#include "remap/projection/projection_info.h"

namespace varnel {

namespace {

QString MissingSource(const SettingsFromPicture& likeness) {
    return likeness.record.FileName.isEmpty()
               ? QStringLiteral("does not say which photo it was made of")
               : QStringLiteral("the photo that it was made of is not there: ") +
                     ShownSource(likeness.record);
}

// Empty when all is well.
QString Complete(Options& options, const SettingsFromPicture& likeness) {
    options.likeRecord = likeness.record;
    if (options.files.isEmpty()) {
        if (!likeness.sourceFound) {
            return options.like + QStringLiteral(": ") + MissingSource(likeness) +
                   QStringLiteral("; name the photo on the command line");
        }
        options.files = QStringList{SourcePath(likeness.record)};
    }
    if (options.projectionGiven) {
        return {};
    }
    return UseProjection(options, ProjectionFromIndex(likeness.record.Projection))
        .value_or(QString());
}

}  // namespace

std::variant<QStringList, QString> TakeLike(Options& options) {
    if (options.like.isEmpty()) {
        return QStringList();
    }
    const auto prefixed = [&options](const QString& text) {
        return QString(options.like + QStringLiteral(": ") + text);
    };
    const auto reader = NewPictureReader();
    const PhotoFacts facts = PhotoLoader(*reader).Facts(options.like);
    if (!facts.error.isEmpty()) {
        return prefixed(ErrorText(facts.error));
    }
    const std::optional<SettingsFromPicture> likeness =
        FindSettingsFromPicture(facts.metadata.settings, options.like);
    if (!likeness) {
        return prefixed(
            QStringLiteral("holds no settings of Varnel; give a picture that Varnel wrote"));
    }
    if (QString error = Complete(options, *likeness); !error.isEmpty()) {
        return error;
    }
    QStringList notes;
    for (const QString& note : likeness->notes) {
        notes.append(prefixed(note));
    }
    return notes;
}

bool NamesGear(const Options& options) {
    return !options.gear.isEmpty() || options.camera || !options.lensFile.isEmpty();
}

}  // namespace varnel
