// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/mounted_volumes.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>
#include <algorithm>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

namespace varnel {

namespace {

QByteArray FirstLine(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

VolumeKind SystemKind(const Mount& mount) {
#ifdef Q_OS_WIN
    return KindOfDriveType(GetDriveTypeW(qUtf16Printable(QDir::toNativeSeparators(mount.path))));
#else
    return KindOf(mount);
#endif
}

}  // namespace

bool IsRemovable(const QString& device, const QString& blockDevices) {
    // A partition's device is its disk's name and more: sdb1 on sdb, mmcblk0p1 on mmcblk0.
    QString disk = device.mid(device.lastIndexOf(u'/') + 1);
    const QDir folder(blockDevices);
    while (!disk.isEmpty() && !folder.exists(disk)) {
        disk.chop(1);
    }
    if (disk.isEmpty()) {
        return false;
    }
    // Built-in card readers do not count as removable, but report that there is an SD card.
    return FirstLine(folder.filePath(disk + QStringLiteral("/removable"))) == "1" ||
           FirstLine(folder.filePath(disk + QStringLiteral("/device/type"))) == "SD";
}

std::vector<Volume> MountedVolumes() {
    std::vector<Volume> volumes;
    for (const QStorageInfo& storage : QStorageInfo::mountedVolumes()) {
        const QString device = QString::fromLocal8Bit(storage.device());
        const Mount mount{storage.rootPath(), device, QString::fromLatin1(storage.fileSystemType()),
                          IsRemovable(device, QStringLiteral("/sys/block"))};
        if (MayHoldPhotos(mount)) {
            volumes.push_back({mount.path, storage.name(), SystemKind(mount), storage.isReady()});
        }
    }
#ifndef Q_OS_WIN
    // In a container nothing may be mounted at the root, and it exists all the same.
    const auto isRoot = [](const Volume& volume) { return volume.path == QStringLiteral("/"); };
    if (std::none_of(volumes.begin(), volumes.end(), isRoot)) {
        volumes.push_back({QStringLiteral("/"), {}, VolumeKind::Fixed, true});
    }
#endif
    std::sort(volumes.begin(), volumes.end(),
              [](const Volume& a, const Volume& b) { return a.path < b.path; });
    return volumes;
}

}  // namespace varnel
