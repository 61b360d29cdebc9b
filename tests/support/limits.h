// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <sys/resource.h>

#include <csignal>

namespace varnel::testing {

// While it lives, writes beyond that many bytes of a file fail, as they do on a full disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, signalBefore_);
    }

  private:
    rlimit before_{};
    void (*signalBefore_)(int) = std::signal(SIGXFSZ, SIG_IGN);
};

}  // namespace varnel::testing
