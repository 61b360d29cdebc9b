// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// A file descriptor with an owner. Throws nothing.
#pragma once

#include <unistd.h>

#include <utility>

namespace varnel {

class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor() {
        if (number_ >= 0) {
            close(number_);
        }
    }

    int Get() const { return number_; }
    explicit operator bool() const { return number_ >= 0; }
    // Hands it to another owner, who will close it; -1 when there is none.
    int Release() { return std::exchange(number_, -1); }

  private:
    int number_ = -1;
};

}  // namespace varnel
