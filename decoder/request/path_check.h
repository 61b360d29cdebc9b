// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Whether a path may be a photo at all. Throws nothing.
#pragma once

#include <QString>

#include "base/reason.h"

namespace varnel {

// Why this path is no photo that could be read: missing, a folder, not permitted, empty, no regular
// file; empty when none of that is so. The libraries report one and the same error for all of
// these, and a pipe would make them wait for ever.
Reason PathError(const QString& path);

}  // namespace varnel
