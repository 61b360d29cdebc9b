// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/add_images.h"

#include <QCollator>
#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <vector>

#include "pipeline/photos/volume.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

void SortAsCounted(QStringList& names) {
    QCollator order{QLocale(QLocale::English)};
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::ranges::sort(names, order);
}

// Adds the folder's photos; returns its sub-folders, the last one first.
std::vector<QString> TakeFolder(const QDir& folder, DroppedPhotos& found) {
    QStringList names = FilesIn(folder.path(), photoPatterns);
    SortAsCounted(names);
    for (const QString& name : names) {
        found.tooMany = found.tooMany || found.files.size() >= mostDropped;
        if (!found.tooMany) {
            found.files.append(folder.filePath(name));
        }
    }
    QStringList inside = folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    SortAsCounted(inside);
    std::vector<QString> paths;
    for (auto name = inside.crbegin(); name != inside.crend(); ++name) {
        paths.push_back(folder.filePath(*name));
    }
    return paths;
}

}  // namespace

DroppedPhotos PhotosOf(const QStringList& dropped, const std::function<bool()>& goesOn) {
    DroppedPhotos found;
    for (const QString& path : dropped) {
        if (!QFileInfo(path).isDir()) {
            found.files.append(path);
            continue;
        }
        const qsizetype before = found.files.size();
        std::vector<QString> folders{path};
        while (!folders.empty() && !found.tooMany && !found.givenUp) {
            const QDir folder(folders.back());
            folders.pop_back();
            const std::vector<QString> inside = TakeFolder(folder, found);
            folders.insert(folders.end(), inside.begin(), inside.end());
            found.givenUp = !goesOn();
        }
        if (found.files.size() == before && !found.tooMany) {
            found.without.append(path);
        }
    }
    return found;
}

QStringList FilesIn(const QString& folder, QStringView patterns) {
    const QStringList filters =
        patterns == anyPattern ? QStringList() : patterns.toString().split(u';');
    return QDir(folder).entryList(filters, QDir::Files, QDir::Name | QDir::IgnoreCase);
}

StartPlace ChooseStartPlace(const SettingsStore& store, const QString& firstFolder) {
    const QString drive = store.Get(setting::LastUsed, setting::LastDrive, firstFolder);
    const QString path = store.Get(setting::LastUsed, setting::LastPath, firstFolder);
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
