// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The drives that photos can come from. A volume's path is where it is mounted ("/",
// "/media/card"), or the root of its drive letter ("C:/"). Throws nothing.
#pragma once

#include <QString>
#include <vector>

namespace varnel {

enum class VolumeKind { Fixed, Removable, Network, Optical };

// "fixed", "removable", "network" or "optical".
QString ToText(VolumeKind kind);

struct Volume {
    QString path;
    QString name;  // the label given when it was formatted; often empty
    VolumeKind kind = VolumeKind::Fixed;
    bool ready = true;  // false for a drive without a medium
};

// What the system reports of a mount.
struct Mount {
    QString path;
    QString device;          // "/dev/sdb1", "server:/export", "//server/share"
    QString fileSystem;      // "ext4", "vfat", "nfs4", "fuse.sshfs"
    bool removable = false;  // the device's medium can be taken out
};

VolumeKind KindOf(const Mount& mount);

// By the number that Windows gives to a kind of drive (GetDriveType).
VolumeKind KindOfDriveType(unsigned driveType);

// False for what the system mounts for itself: memory, boot files, program images.
bool MayHoldPhotos(const Mount& mount);

// The volume as it is stored and shown: the letter and colon of a drive letter, else the path.
QString DriveName(const QString& volumePath);

// How the volume is listed: drive, label and kind.
QString VolumeLabel(const Volume& volume);

// The message for a volume that cannot be entered.
QString VolumeMissingText(const QString& volumePath);

// The index of the innermost volume that holds the folder; -1 when none does.
int VolumeHolding(const QString& folder, const std::vector<Volume>& volumes);

}  // namespace varnel
