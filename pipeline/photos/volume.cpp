// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/volume.h"

#include <QCoreApplication>
#include <algorithm>
#include <array>

namespace varnel {

namespace {

using Texts = std::initializer_list<QStringView>;

bool IsOneOf(QStringView text, const Texts& texts) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

bool IsWithin(QStringView path, QStringView folder) {
    return path.startsWith(folder) &&
           (path.size() == folder.size() || folder.endsWith(u'/') || path[folder.size()] == u'/');
}

bool IsNetwork(const Mount& mount) {
    return IsOneOf(mount.fileSystem,
                   {u"nfs", u"nfs4", u"cifs", u"smb3", u"smbfs", u"ncpfs", u"afs", u"9p", u"ceph",
                    u"davfs", u"fuse.sshfs", u"fuse.rclone", u"fuse.davfs2", u"fuse.gvfsd-fuse",
                    u"fuse.glusterfs", u"fuse.curlftpfs"}) ||
           mount.device.startsWith(u"//") || mount.device.contains(u":/");
}

bool IsOptical(const Mount& mount) {
    return IsOneOf(mount.fileSystem, {u"iso9660", u"udf", u"cdfs"}) ||
           mount.device.startsWith(u"/dev/sr");
}

bool HasDriveLetter(QStringView path) {
    return path.size() >= 2 && path[0].isLetter() && path[1] == u':';
}

}  // namespace

QString ToText(VolumeKind kind) {
    static constexpr std::array texts{
        QT_TRANSLATE_NOOP("Volume", "fixed"), QT_TRANSLATE_NOOP("Volume", "removable"),
        QT_TRANSLATE_NOOP("Volume", "network"), QT_TRANSLATE_NOOP("Volume", "optical")};
    return QCoreApplication::translate("Volume", texts[static_cast<std::size_t>(kind)]);
}

VolumeKind KindOf(const Mount& mount) {
    if (IsNetwork(mount)) {
        return VolumeKind::Network;
    }
    if (IsOptical(mount)) {
        return VolumeKind::Optical;
    }
    return mount.removable ? VolumeKind::Removable : VolumeKind::Fixed;
}

VolumeKind KindOfDriveType(unsigned driveType) {
    switch (driveType) {
        case 2:
            return VolumeKind::Removable;
        case 4:
            return VolumeKind::Network;
        case 5:
            return VolumeKind::Optical;
        default:
            return VolumeKind::Fixed;
    }
}

bool MayHoldPhotos(const Mount& mount) {
    if (mount.path == u"/" || HasDriveLetter(mount.path)) {
        return true;
    }
    const Texts ownPlaces{u"/boot", u"/efi", u"/snap", u"/var/snap", u"/var/lib/docker"};
    return !IsOneOf(mount.fileSystem,
                    {u"tmpfs", u"devtmpfs", u"ramfs", u"squashfs", u"overlay", u"autofs",
                     u"efivarfs", u"nsfs", u"fuse.portal", u"fuse.snapfuse", u"fuse.lxcfs"}) &&
           std::none_of(ownPlaces.begin(), ownPlaces.end(),
                        [&](QStringView place) { return IsWithin(mount.path, place); });
}

QString DriveName(const QString& volumePath) {
    return HasDriveLetter(volumePath) ? volumePath.left(2) : volumePath;
}

QString VolumeLabel(const Volume& volume) {
    const QString drive = DriveName(volume.path);
    // A card is mounted in a folder of its own name, which is shown once.
    const QString name = drive.endsWith(volume.name) ? QString() : u' ' + volume.name;
    return QStringLiteral("%1%2 (%3)").arg(drive, name, ToText(volume.kind));
}

QString VolumeMissingText(const QString& volumePath) {
    const QString place =
        HasDriveLetter(volumePath) ? DriveName(volumePath) + u'\\' : DriveName(volumePath);
    return QCoreApplication::translate("Volume", "Drive %1 is not availabe").arg(place);
}

int VolumeHolding(const QString& folder, const std::vector<Volume>& volumes) {
    int best = -1;
    qsizetype longest = -1;
    for (int n = 0; n < static_cast<int>(volumes.size()); ++n) {
        const QString& path = volumes[static_cast<std::size_t>(n)].path;
        if (path.size() > longest && IsWithin(folder, path)) {
            best = n;
            longest = path.size();
        }
    }
    return best;
}

}  // namespace varnel
