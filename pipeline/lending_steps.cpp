// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/lending_steps.h"

#include <cerrno>

#include "state/file_steps.h"

namespace varnel {

#ifdef Q_OS_UNIX

namespace {

class LendingSteps : public FileSteps {
  public:
    explicit LendingSteps(ThreadRunner& cores) : cores_(cores) {}
    int Sync(int file) override {
        return Lent([&] { return FileSteps::Sync(file); });
    }
    int SyncFolder(const QByteArray& folder) override {
        return Lent([&] { return FileSteps::SyncFolder(folder); });
    }

  private:
    template <class Step>
    int Lent(const Step& step) {
        int result = 0;
        int error = 0;
        {
            const CoreLent lent(cores_);
            result = step();
            error = errno;
        }
        errno = error;
        return result;
    }

    ThreadRunner& cores_;
};

}  // namespace

FileSeries LendingSeries(ThreadRunner& cores) {
    return FileSeries(std::make_unique<LendingSteps>(cores));
}

#else

FileSeries LendingSeries(ThreadRunner& /*cores*/) {
    return {};
}

#endif

}  // namespace varnel
