// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// File operations that note the files that are being written. Throws std::bad_alloc only.
#pragma once

#include "files/file_operations.h"
#include "files/unfinished_file.h"

namespace varnel {

#ifdef Q_OS_UNIX

class NotingOperations : public FileOperations {
  public:
    explicit NotingOperations(UnfinishedFile& unfinished) : unfinished_(unfinished) {}
    int Create(const QByteArray& name, unsigned permissions) override {
        return unfinished_.Begin(name, [&] { return FileOperations::Create(name, permissions); });
    }
    int Rename(const QByteArray& name, const QByteArray& newName) override {
        return unfinished_.End(name, [&] { return FileOperations::Rename(name, newName); });
    }
    int Remove(const QByteArray& name) override {
        return unfinished_.End(name, [&] { return FileOperations::Remove(name); });
    }

  private:
    UnfinishedFile& unfinished_;
};

#endif

}  // namespace varnel
