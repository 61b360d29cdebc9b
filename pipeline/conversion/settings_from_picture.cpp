// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/settings_from_picture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include "files/file_identity.h"
#include "pipeline/photos/add_images.h"
#include "remap/encode/output_format.h"
#include "state/adjustments/gear_assignment.h"
#include "state/adjustments/picture_settings.h"

namespace varnel {

namespace {

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(SettingsFromPicture)
};

bool IsSource(const QString& folder, const QString& fileName, const QString& picture) {
    const QString path = folder + u'/' + fileName;
    return QDir::isAbsolutePath(path) && QFileInfo(path).isFile() && !SameFile(path, picture);
}

void FindSource(SettingsFromPicture& likeness, const QString& picture) {
    ImageRecord& record = likeness.record;
    const QString beside = RecordFolder(QFileInfo(picture).absolutePath());
    record.Folder = SourceFolderOf(record, picture);
    if (record.FileName.isEmpty()) {
        return;
    }
    likeness.sourceFound = IsSource(record.Folder, record.FileName, picture);
    if (!likeness.sourceFound && IsSource(beside, record.FileName, picture)) {
        record.Folder = beside;
        likeness.sourceFound = true;
    }
}

// What is missing or was refused, as a gear would give it: no conversion works with 0.
void FillGaps(ImageRecord& record) {
    for (float* const effect : {&record.EffectVarnel, &record.EffectRectilinear}) {
        *effect = *effect > 0.0F ? *effect : usualEffect;
    }
    constexpr float usualFisheye = 180.0F;
    record.InputAOV = record.InputAOV > 0.0F ? record.InputAOV : usualFisheye;
    if (record.OutputAOV <= 0.0F) {
        record.OutputAOV = UsualOutputAov(record);
    }
}

// The photo may be turned in another way by now; its size is taken when it is loaded.
void TurnAsShown(ImageRecord& record, PhotoLoader& photos) {
    std::optional<PhotoSize> size;
    if (record.OfsetX != 0.0F || record.OfsetY != 0.0F) {
        size = photos.Size(SourcePath(record));
    }
    const int orientation = size ? size->orientation : 1;
    if (size) {
        TurnCentre(record, orientation);
    }
    record.Orientation = static_cast<std::int16_t>(orientation);
}

void AppendFileOrSource(RecordArray<ImageRecord>& images, const QString& path, PhotoLoader& photos,
                        const PictureSettings& settings, AddedFiles& added) {
    std::optional<SettingsFromPicture> likeness = FindSettingsFromPicture(settings, path);
    if (likeness && likeness->sourceFound) {
        TurnAsShown(likeness->record, photos);
        images.Append(likeness->record);
        added.like.insert(images.UpperBound(), path);
        for (const QString& note : likeness->notes) {
            added.notes.append(QStringLiteral("%1: %2").arg(path, note));
        }
        return;
    }
    if (likeness) {
        const QString source = likeness->record.FileName.isEmpty()
                                   ? Texts::tr("its name is not known")
                                   : ShownSource(likeness->record);
        added.missing.append(QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), source));
    }
    AppendFiles(images, {path});
}

void NoteIfBad(const QString& path, PhotoLoader& photos, AddedFiles& added) {
    if (const Reason error = photos.Error(path); !error.isEmpty()) {
        added.bad.push_back({path, error});
    }
}

}  // namespace

bool MayHoldSettings(const QString& path) {
    const std::optional<OutputType> type = OutputTypeByEnding(path);
    return type && FormatOf(*type).holds.metadata;
}

QString ShownSource(const ImageRecord& record) {
    constexpr qsizetype longest = 300;
    return Shown(SourcePath(record), longest);
}

std::optional<SettingsFromPicture> FindSettingsFromPicture(const PictureSettings& settings,
                                                           const QString& picture) {
    if (settings.isEmpty()) {
        return std::nullopt;
    }
    SettingsFromPicture likeness;
    likeness.record.Folder = QStringLiteral(".");
    likeness.record.Orientation = 0;
    likeness.notes = TakeSettings(settings, likeness.record);
    FillGaps(likeness.record);
    FindSource(likeness, picture);
    return likeness;
}

AddedFiles AppendFilesOrSources(RecordArray<ImageRecord>& images, const QStringList& paths,
                                PhotoLoader& photos) {
    AddedFiles added;
    PhotoLoader::Together together(photos);
    bool goesOn = true;
    for (const QString& path : paths) {
        const bool asks = goesOn && MayHoldSettings(path);
        if (goesOn) {
            NoteIfBad(path, photos, added);
        }
        AppendFileOrSource(images, path, photos,
                           asks ? photos.Facts(path).metadata.settings : PictureSettings(), added);
        goesOn = goesOn && !photos.GivenUp() && together.Continue();
    }
    return added;
}

}  // namespace varnel
