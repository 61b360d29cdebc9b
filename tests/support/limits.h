// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/resource.h>

#include <csignal>

namespace varnel::testing {

// Writes beyond that many bytes fail from now on, as they do on a full disk. For a process that
// ends soon.
inline void LimitFileSize(rlim_t bytes) {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    setrlimit(RLIMIT_FSIZE, &limit);
}

}  // namespace varnel::testing
