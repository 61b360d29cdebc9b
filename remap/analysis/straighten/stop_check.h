// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Lets a long measurement be given up between its pieces, of some hundredths of a second each.
#pragma once

#include <functional>
#include <utility>

namespace varnel {

struct MeasuringStopped {};

class StopCheck {
  public:
    StopCheck() = default;
    // Asked on the measuring thread; true gives up.
    explicit StopCheck(std::function<bool()> stopped) : stopped_(std::move(stopped)) {}
    // Throws MeasuringStopped when that is wanted.
    void operator()() const {
        if (stopped_ && stopped_()) {
            throw MeasuringStopped();
        }
    }

  private:
    std::function<bool()> stopped_;
};

}  // namespace varnel
