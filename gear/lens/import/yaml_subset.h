// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The part of YAML in which calibrations are written: mappings and lists by indentation or in
// brackets, numbers and texts; comments, directives and tags are passed over. Anchors, block texts
// and keys of several lines are not understood. Throws std::bad_alloc only.
#pragma once

#include <QByteArray>

#include "gear/lens/lens_file.h"

namespace varnel {

// Numbers become numbers; empty values null, other texts texts. A reason names the line. At most 20
// levels deep.
JsonReading ReadYaml(const QByteArray& bytes);

}  // namespace varnel
