// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "app/workspace/workspace.h"

namespace varnel {

// The hourglass for a while, put up after waiting events had their turn.
class Hourglass {
  public:
    explicit Hourglass(WorkspaceView& view) : view_(view) { view_.ShowHourglass(true); }
    ~Hourglass() { view_.ShowHourglass(false); }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

  private:
    WorkspaceView& view_;
};

}  // namespace varnel
