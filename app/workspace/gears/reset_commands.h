// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// Back to what the photos' gears give: one value of the selected photos, or all of the current one.
// Each is one step. Throws nothing but for want of memory.
#pragma once

#include "app/workspace/workspace.h"

namespace varnel {

class ResetCommands {
  public:
    explicit ResetCommands(Workspace& workspace) : workspace_(workspace) {}

    // Of the current photo; false without one.
    bool IsUnusual(SliderId slider) const;
    // Any of the choices of its projection.
    bool HasUnusualChoice() const;
    void Reset(SliderId slider);
    void ResetPhoto();

  private:
    bool MayChange() const;
    void ShowCurrent();

    Workspace& workspace_;
};

}  // namespace varnel
