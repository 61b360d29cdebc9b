// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos on their way into the image list: where to look for them, which files to show, and the
// records that they become. Inside the program folders are separated by "/". Throws std::bad_alloc
// only.
#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>
#include <functional>

#include "base/record_array.h"
#include "state/records/image_record.h"
#include "state/settings/settings_store.h"

namespace varnel {

// The endings that the dialog lists, then the others of the same types and of cameras and phones.
inline constexpr QStringView photoPatterns =
    u"*.jpg;*.tif;*.png;*.bmp;*.dng;*.jpeg;*.jpe;*.jif;*.jfif;*.tiff;*.dib;*.cr2;*.cr3;*.nef;*.arw;"
    u"*.orf;*.rw2;*.raf;*.pef;*.heic;*.heif;*.avif;*.jxl";
// Of films, for those who can read them.
inline constexpr QStringView filmPatterns =
    u"*.mp4;*.mov;*.mkv;*.avi;*.webm;*.m4v;*.mts;*.m2ts;*.mpg;*.wmv;*.insv;*.360";
inline constexpr QStringView anyPattern = u"*.*";  // every file, with a dot in its name or without

// The names of the folder's files that match one of the patterns, sorted; case never counts. Hidden
// files are left out.
QStringList FilesIn(const QString& folder, QStringView patterns);

inline constexpr int mostDropped = 10000;  // photos of folders that are added at once

struct DroppedPhotos {
    QStringList files;    // absolute
    QStringList without;  // folders in which no photo was found
    bool tooMany = false;
    bool givenUp = false;
};

// The files as they are and, for each folder, its own photos, then those of its sub-folders, in
// natural order: "2" before "10". What is hidden and links to folders are left out. Asks goesOn
// between folders whether to go on, and throws what that throws.
DroppedPhotos PhotosOf(const QStringList& dropped, const std::function<bool()>& goesOn);

struct StartPlace {
    QString drive;   // as DriveName gives it
    QString folder;  // absolute
};

// Where photos were last looked for, at first the given folder. When that folder is gone or
// empty: the system's root.
StartPlace ChooseStartPlace(const SettingsStore& store, const QString& firstFolder);
void SaveStartPlace(SettingsStore& store, const StartPlace& place);

// The folder as records keep it: the platform's separators, none at the end. The root is the empty
// text.
QString RecordFolder(const QString& folder);

// One new, otherwise empty record for each file, in the given order. A file may be in the list more
// than once.
void AppendImages(RecordArray<ImageRecord>& images, const QString& folder,
                  const QStringList& fileNames);
// The same for absolute paths: files that were dropped or given at the start. A path without a file
// name is left out.
void AppendFiles(RecordArray<ImageRecord>& images, const QStringList& paths);

}  // namespace varnel
