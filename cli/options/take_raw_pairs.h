// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Photos that are given as raw file and as JPEG. Throws std::bad_alloc only.
#pragma once

#include "cli/options/options.h"

namespace varnel {

// Leaves out the files that --raw-jpeg does not want; of pairs of which both stay the results keep
// the ending. Returns one line about what was left out, empty when that is nothing.
QString TakeRawPairs(Options& options);

}  // namespace varnel
