// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <memory>

#include "files/file_operations.h"

namespace varnel::testing {

enum class Fault { Once, Lasting, Kill };

// Step n fails, and all after it where the fault is lasting; or the process is killed before step
// n. Writes five bytes at a time. Copies count together.
class FailingSteps : public FileOperations {
  public:
    FailingSteps(int n, Fault fault) : n_(n), fault_(fault) {}
    int Count() const { return *count_; }

    int Create(const QByteArray& name, unsigned permissions) override {
        return Fails() ? -1 : FileOperations::Create(name, permissions);
    }
    int Lock(int file) override { return Fails() ? -1 : FileOperations::Lock(file); }
    qint64 Write(int file, const char* bytes, qint64 length) override {
        return Fails() ? -1 : FileOperations::Write(file, bytes, std::min<qint64>(length, 5));
    }
    int SetPermissions(int file, unsigned permissions) override {
        return Fails() ? -1 : FileOperations::SetPermissions(file, permissions);
    }
    int Sync(int file) override { return Fails() ? -1 : FileOperations::Sync(file); }
    int Close(int file) override {
        const bool fails = Fails();
        const int result = FileOperations::Close(file);  // closed in any case, as by the system
        errno = fails ? ENOSPC : errno;
        return fails ? -1 : result;
    }
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        return Fails() ? -1 : FileOperations::Rename(name, newName);
    }
    int SyncFolder(const QByteArray& folder) override {
        return Fails() ? -1 : FileOperations::SyncFolder(folder);
    }
    int Remove(const QByteArray& name) override {
        return Fails() ? -1 : FileOperations::Remove(name);
    }

  private:
    bool Fails() {
        ++*count_;
        if (fault_ == Fault::Kill && *count_ == n_) {
            std::raise(SIGKILL);
        }
        errno = ENOSPC;
        return fault_ == Fault::Lasting ? *count_ >= n_ : *count_ == n_;
    }
    const int n_;
    const Fault fault_;
    std::shared_ptr<int> count_ = std::make_shared<int>(0);
};

}  // namespace varnel::testing
