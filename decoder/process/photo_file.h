// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Opening a photo before any library sees it. Throws nothing; errors are returned.
#pragma once

#include <QString>

#include "base/reason.h"
#include "decoder/process/descriptor.h"

namespace varnel {

struct OpenedPhoto {
    Descriptor file;
    Reason error;  // why there is no file
};

// Opens for reading what is a regular, readable file that is not empty; never waits, as opening a
// pipe would. The file is looked at again after it was opened, so one that is replaced meanwhile
// brings no surprise.
OpenedPhoto OpenPhotoFile(const QString& path);

}  // namespace varnel
