// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A file of its own, so that a test program may link another list in its place; no program that is
// shipped can have other rows than these.

#include "remap/projection/projection_info.h"

namespace varnel {

std::span<const ProjectionInfo> ProjectionRows() {
    return ShippedProjections();
}

}  // namespace varnel
