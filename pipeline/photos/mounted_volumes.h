// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The volumes of this computer, as the system reports them. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <vector>

#include "pipeline/photos/volume.h"

namespace varnel {

// Those that may hold photos, in the order of their paths.
std::vector<Volume> MountedVolumes();

// Whether the medium of a device such as /dev/sdb1 can be taken out, as the system's folder of
// block devices, /sys/block, shows.
bool IsRemovable(const QString& device, const QString& blockDevices);

}  // namespace varnel
