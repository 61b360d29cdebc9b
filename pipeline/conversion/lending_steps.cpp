// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/lending_steps.h"

#include <cerrno>

#include "files/noting_operations.h"

namespace varnel {

#ifdef Q_OS_UNIX

namespace {

class LendingSteps : public NotingOperations {
  public:
    LendingSteps(ThreadRunner& cores, UnfinishedFile& unfinished)
        : NotingOperations(unfinished), cores_(cores) {}
    int Sync(int file) override {
        return Lent([&] { return FileOperations::Sync(file); });
    }
    int SyncFolder(const QByteArray& folder) override {
        return Lent([&] { return FileOperations::SyncFolder(folder); });
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

FileSeries LendingSeries(ThreadRunner& cores, UnfinishedFile& unfinished) {
    return FileSeries(std::make_shared<LendingSteps>(cores, unfinished),
                      std::make_shared<NotingOperations>(unfinished));
}

#else

FileSeries LendingSeries(ThreadRunner& /*cores*/, UnfinishedFile& /*unfinished*/) {
    return {};
}

#endif

}  // namespace varnel
