// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How long the rest of a run will take. Throws std::bad_alloc only.
#pragma once

#include <QString>
#include <deque>
#include <optional>

namespace varnel {

// Times are seconds since any fixed moment.
class RunPace {
  public:
    // So many more pictures are done.
    void Done(double now, int pictures = 1);
    // For so many more at the pace of the last ones. Nothing before three pictures are done and two
    // seconds were seen.
    std::optional<double> Left(int pictures, double now) const;

  private:
    struct Moment {
        double time;
        int done;  // pictures since the start
    };
    std::deque<Moment> moments_;  // the last ones
};

// "3 min 20 s left"; the more the coarser, so that it does not flicker.
QString LeftText(double seconds);

}  // namespace varnel
