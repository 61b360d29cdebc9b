// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The temporary file that a run is writing, for whoever ends the run in the middle of it.
#pragma once

#include <QByteArray>
#include <mutex>

namespace varnel {

class UnfinishedFile {
  public:
    // A step that makes the file of that name, -1 when it did not.
    template <class Step>
    int Begin(const QByteArray& name, const Step& step) {
        const std::lock_guard lock(mutex_);
        const int result = step();
        name_ = result == -1 ? name_ : name;
        return result;
    }
    // A step that takes its name away, -1 when it did not.
    template <class Step>
    int End(const Step& step) {
        const std::lock_guard lock(mutex_);
        const int result = step();
        name_ = result == -1 ? name_ : QByteArray();
        return result;
    }
    // For the program's last moment: removes the file, and nobody begins or ends one after that. A
    // disk that does not answer is not waited for.
    void RemoveForEver();

  private:
    std::timed_mutex mutex_;
    QByteArray name_;  // empty while there is none
};

}  // namespace varnel
