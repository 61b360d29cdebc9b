// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace varnel {

// Raises a flag for a while.
class Raised {
  public:
    explicit Raised(bool& flag) : flag_(flag), before_(flag) { flag_ = true; }
    ~Raised() { flag_ = before_; }
    Raised(const Raised&) = delete;
    Raised& operator=(const Raised&) = delete;

  private:
    bool& flag_;
    bool before_;
};

}  // namespace varnel
