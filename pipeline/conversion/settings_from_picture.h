// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Pictures that Varnel wrote, taken for the photo and the settings that made them. Throws
// std::bad_alloc only.
#pragma once

#include <QMap>
#include <optional>
#include <vector>

#include "base/record_array.h"
#include "pipeline/photos/photo_loader.h"

namespace varnel {

// Whether settings are written into files of that name's type.
bool MayHoldSettings(const QString& path);

struct SettingsFromPicture {
    // Leads to the source photo where that was found. Its orientation is the one that the centre
    // offsets are meant for; 0 when that is not known.
    ImageRecord record;
    bool sourceFound = false;
    QStringList notes;  // settings that were refused
};

// The path of the photo for messages: cut after 300 characters, with "?" for those that cannot be
// printed.
QString ShownSource(const ImageRecord& record);

// What made the picture; nothing when it holds no settings. The source photo is looked for where it
// was, then beside the picture.
std::optional<SettingsFromPicture> FindSettingsFromPicture(const PictureSettings& settings,
                                                           const QString& picture);

// A file that no picture can be had of.
struct BadFile {
    QString path;
    Reason reason;
};

struct AddedFiles {
    // Numbers of the records that came from a picture's settings, with that picture.
    QMap<int, QString> like;
    QStringList missing;  // pictures whose source photo is gone, each with its name
    QStringList notes;    // refused settings, each with its picture
    std::vector<BadFile> bad;
};

// As AppendFiles does, but for a picture that holds settings its source photo with these settings
// is appended, if it exists. Reads no pixels, but notes which files are no pictures; when the user
// gives up waiting, no further file is looked into.
AddedFiles AppendFilesOrSources(RecordArray<ImageRecord>& images, const QStringList& paths,
                                PhotoLoader& photos);

}  // namespace varnel
