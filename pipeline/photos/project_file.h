// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The image list with all settings as a text file: UTF-8, a first line with the version, the number
// of photos, then one block a photo with its fields by name, and a last line that shows that
// nothing was cut off. What a field would have anyway is not written. A film's block has lines more
// (film/keys/course_lines.h). Folders are relative to the project file's where a part of the way is
// common. Throws std::bad_alloc only; errors are returned.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include "base/record_array.h"
#include "files/atomic_file.h"
#include "state/records/image_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

inline constexpr QStringView projectEnding = u".varnel";

bool IsProjectName(const QString& path);
// With the ending, where it is missing.
QString ProjectName(const QString& path);

struct ReadProject {
    QString error;  // why the file cannot be read; then all else is empty
    RecordArray<ImageRecord> images;
    QStringList missing;  // photos that do not exist where the project says; kept in images
    QStringList notes;    // settings that were refused, each with its photo
};

// To and from the text of the file, UTF-8. The folder is the project file's own, absolute.
QByteArray ProjectText(const RecordArray<ImageRecord>& images, const QString& folder);
ReadProject ProjectFromText(const QByteArray& text, const QString& folder);

WriteResult WriteProject(const QString& path, const RecordArray<ImageRecord>& images);
ReadProject OpenProject(const QString& path);

// The project files that were opened or saved last, the latest first.
inline constexpr int mostRecentProjects = 8;
QStringList RecentProjects(const SettingsStore& store);
void NoteRecentProject(const QString& path, SettingsStore& store);

}  // namespace varnel
