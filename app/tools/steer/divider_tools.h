// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entry "Before and after": a line on the result with the photo left of it. Throws
// nothing but for want of memory.
#pragma once

#include "app/tools/steer/divider_overlay.h"
#include "app/view/window_parts.h"

namespace varnel {

class DividerTools : public QObject {
    Q_OBJECT
  public:
    DividerTools(const WindowParts& parts, QObject* parent);

  private:
    DividerOverlay overlay_;
};

}  // namespace varnel
