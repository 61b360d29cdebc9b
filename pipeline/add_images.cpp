// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/add_images.h"

#include <QDir>

#include "pipeline/volume.h"
#include "state/setting_names.h"

namespace varnel {

QStringList FilesIn(const QString& folder, QStringView patterns) {
    const QStringList filters =
        patterns == anyPattern ? QStringList() : patterns.toString().split(u';');
    return QDir(folder).entryList(filters, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

StartPlace ChooseStartPlace(const SettingsStore& store, const QString& programFolder) {
    const QString drive = store.Get(setting::LastUsed, setting::LastDrive, programFolder);
    const QString path = store.Get(setting::LastUsed, setting::LastPath, programFolder);
    const QString folder = QDir::cleanPath(QDir::fromNativeSeparators(path) + u'/');
    if (QDir::isAbsolutePath(folder) && !QDir(folder).isEmpty()) {
        return {drive, folder};
    }
    return {DriveName(QDir::rootPath()), QDir::rootPath()};
}

void SaveStartPlace(SettingsStore& store, const StartPlace& place) {
    store.Save(setting::LastUsed, setting::LastDrive, place.drive);
    store.Save(setting::LastUsed, setting::LastPath, QDir::toNativeSeparators(place.folder));
}

QString RecordFolder(const QString& folder) {
    QString native = QDir::toNativeSeparators(folder);
    if (native.endsWith(QDir::separator())) {
        native.chop(1);
    }
    return native;
}

void AppendImages(RecordArray<ImageRecord>& images, const QString& folder,
                  const QStringList& fileNames) {
    for (const QString& fileName : fileNames) {
        ImageRecord image;
        image.Folder = RecordFolder(folder);
        image.FileName = fileName;
        images.Append(image);
    }
}

void AppendFiles(RecordArray<ImageRecord>& images, const QStringList& paths) {
    for (const QString& path : paths) {
        const QString plain = QDir::fromNativeSeparators(path);
        const qsizetype nameStart = plain.lastIndexOf(u'/') + 1;
        if (nameStart < plain.size()) {
            AppendImages(images, plain.left(nameStart), {plain.mid(nameStart)});
        }
    }
}

}  // namespace varnel
