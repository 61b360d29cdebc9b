// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "pipeline/conversion/lending_steps.h"

#include <cerrno>

#include "files/file_operations.h"

namespace varnel {

#ifdef Q_OS_UNIX

namespace {

class LendingSteps : public FileOperations {
  public:
    LendingSteps(ThreadRunner& cores, UnfinishedFile& unfinished)
        : cores_(cores), unfinished_(unfinished) {}
    int Create(const QByteArray& name, unsigned permissions) override {
        return unfinished_.Begin(name, [&] { return FileOperations::Create(name, permissions); });
    }
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        return unfinished_.End([&] { return FileOperations::Rename(name, newName); });
    }
    int Remove(const QByteArray& name) override {
        return unfinished_.End([&] { return FileOperations::Remove(name); });
    }
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
    UnfinishedFile& unfinished_;
};

}  // namespace

FileSeries LendingSeries(ThreadRunner& cores, UnfinishedFile& unfinished) {
    return FileSeries(std::make_unique<LendingSteps>(cores, unfinished));
}

#else

FileSeries LendingSeries(ThreadRunner& /*cores*/, UnfinishedFile& /*unfinished*/) {
    return {};
}

#endif

}  // namespace varnel
