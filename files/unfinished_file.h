// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The temporary files that a run is writing, to be removed when the run is ended in the middle of
// it. Throws what the given operations throw.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <mutex>

namespace varnel {

class UnfinishedFile {
  public:
    // Runs the operation that creates the file of that name; it returns -1 on failure.
    template <class Operation>
    int Begin(const QByteArray& name, const Operation& operation) {
        const std::lock_guard lock(mutex_);
        const int result = operation();
        if (result != -1) {
            names_.append(name);
        }
        return result;
    }
    // Runs the operation that removes or renames it; it returns -1 on failure.
    template <class Operation>
    int End(const QByteArray& name, const Operation& operation) {
        const std::lock_guard lock(mutex_);
        const int result = operation();
        if (result != -1) {
            names_.removeOne(name);
        }
        return result;
    }
    // To be called just before the program ends: removes the files and blocks later calls of Begin
    // and End. Waits for at most 100 ms for a disk that does not answer. Throws nothing.
    void RemoveForEver();

  private:
    std::timed_mutex mutex_;
    QByteArrayList names_;
};

}  // namespace varnel
