// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Writing files for a run that shares its cores out. Throws std::bad_alloc only.
#pragma once

#include "base/thread_runner.h"
#include "files/file_series.h"
#include "files/unfinished_file.h"

namespace varnel {

// A series, written by threads that have a core, whose core is lent while the disk is waited for;
// its own thread for what is only begun has none. The files that are being written are noted.
FileSeries LendingSeries(ThreadRunner& cores, UnfinishedFile& unfinished);

}  // namespace varnel
