// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/photos/volume.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <algorithm>

#include "pipeline/photos/mounted_volumes.h"
#include "tests/support/files.h"
#include "tests/support/texts.h"

namespace varnel {
namespace {

using testing::Text;

TEST(KindOf, TellsByFileSystemDeviceAndMedium) {
    const struct {
        const char* device;
        const char* fileSystem;
        bool removable;
        const char* kind;
    } cases[] = {
        {"/dev/nvme0n1p2", "ext4", false, "fixed"},
        {"/dev/mapper/vg-home", "xfs", false, "fixed"},
        {"/dev/sdb1", "vfat", true, "removable"},
        {"/dev/mmcblk0p1", "exfat", true, "removable"},
        {"/dev/sr0", "iso9660", true, "optical"},
        {"/dev/sr0", "ext4", true, "optical"},
        {"/dev/loop7", "udf", false, "optical"},
        {"nas:/export/photos", "nfs4", false, "network"},
        {"//nas/photos", "cifs", false, "network"},
        {"me@host:/photos", "fuse.sshfs", false, "network"},
        {"gvfsd-fuse", "fuse.gvfsd-fuse", false, "network"},
        {"//nas/photos", "unheard-of", true, "network"},
    };
    for (const auto& c : cases) {
        const Mount mount{Text("/x"), Text(c.device), Text(c.fileSystem), c.removable};
        EXPECT_EQ(ToText(KindOf(mount)), Text(c.kind)) << c.device << ' ' << c.fileSystem;
    }
    const VolumeKind byNumber[] = {VolumeKind::Fixed, VolumeKind::Fixed,   VolumeKind::Removable,
                                   VolumeKind::Fixed, VolumeKind::Network, VolumeKind::Optical,
                                   VolumeKind::Fixed};
    for (unsigned type = 0; type < std::size(byNumber); ++type) {
        EXPECT_EQ(KindOfDriveType(type), byNumber[type]) << type;
    }
}

TEST(MayHoldPhotos, LeavesOutWhatTheSystemMountsForItself) {
    const struct {
        const char* path;
        const char* fileSystem;
        bool may;
    } cases[] = {
        {"/", "ext4", true},           {"/", "overlay", true},
        {"/media/card", "vfat", true}, {"/boots", "ext4", true},
        {"C:/", "NTFS", true},         {"/run/user/1000/gvfs", "fuse.gvfsd-fuse", true},
        {"/run", "tmpfs", false},      {"/snap/core/1", "squashfs", false},
        {"/boot", "ext4", false},      {"/boot/efi", "vfat", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(MayHoldPhotos({Text(c.path), Text("dev"), Text(c.fileSystem)}), c.may) << c.path;
    }
}

TEST(Volume, IsListedWithItsKindAndNamedInTheMessage) {
    const struct {
        Volume volume;
        const char* label;
        const char* message;
    } cases[] = {
        {{Text("/"), {}, VolumeKind::Fixed}, "/ (fixed)", "Drive / is not availabe"},
        {{Text("/media/CARD"), Text("CARD"), VolumeKind::Removable},
         "/media/CARD (removable)",
         "Drive /media/CARD is not availabe"},
        {{Text("/mnt/a"), Text("Photos"), VolumeKind::Network},
         "/mnt/a Photos (network)",
         "Drive /mnt/a is not availabe"},
        {{Text("A:/"), {}, VolumeKind::Removable}, "A: (removable)", "Drive A:\\ is not availabe"},
        {{Text("d:/"), Text("Disc"), VolumeKind::Optical},
         "d: Disc (optical)",
         "Drive d:\\ is not availabe"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(VolumeLabel(c.volume), Text(c.label));
        EXPECT_EQ(VolumeMissingText(c.volume.path), Text(c.message));
    }
}

TEST(VolumeHolding, IsTheInnermostOne) {
    const std::vector<Volume> volumes{{Text("/"), {}}, {Text("/media/card"), {}}};
    const struct {
        const char* folder;
        int place;
    } cases[] = {
        {"/", 0}, {"/media", 0}, {"/media/card", 1}, {"/media/card/a", 1}, {"/media/card2", 0}};
    for (const auto& c : cases) {
        EXPECT_EQ(VolumeHolding(Text(c.folder), volumes), c.place) << c.folder;
    }
    EXPECT_EQ(VolumeHolding(Text("/home"), {{Text("/media/card"), {}}}), -1);
}

TEST(IsRemovable, AsksTheDiskOfAPartition) {
    const QTemporaryDir folder;
    const auto disk = [&](const char* name, const QByteArray& removable, const QByteArray& type) {
        QDir(folder.path()).mkpath(Text(name) + Text("/device"));
        testing::WriteFile(folder.filePath(Text(name) + Text("/removable")), removable);
        testing::WriteFile(folder.filePath(Text(name) + Text("/device/type")), type);
    };
    disk("sda", "0\n", "0\n");
    disk("sdb", "1\n", "0\n");
    disk("nvme0n1", "0\n", {});
    disk("mmcblk0", "0\n", "SD\n");
    disk("mmcblk1", "0\n", "MMC\n");
    const struct {
        const char* device;
        bool removable;
    } cases[] = {{"/dev/sda1", false},      {"/dev/sdb", true},        {"/dev/sdb12", true},
                 {"/dev/nvme0n1p1", false}, {"/dev/mmcblk0p1", true},  {"/dev/mmcblk1p2", false},
                 {"/dev/mapper/x", false},  {"server:/export", false}, {"", false}};
    for (const auto& c : cases) {
        EXPECT_EQ(IsRemovable(Text(c.device), folder.path()), c.removable) << c.device;
    }
}

TEST(MountedVolumes, HoldTheRootFirst) {
    const std::vector<Volume> volumes = MountedVolumes();
    ASSERT_FALSE(volumes.empty());
    EXPECT_EQ(volumes.front().path, QDir::rootPath());
    EXPECT_TRUE(volumes.front().ready);
}

}  // namespace
}  // namespace varnel
