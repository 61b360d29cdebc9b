// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entries "Previous photo" and "Next photo", whose keys walk through the list
// wherever the keyboard is. Throws nothing but for want of memory.
#pragma once

#include <QObject>

#include "app/view/window_view.h"
#include "app/workspace/activity.h"

namespace varnel {

class WalkTools : public QObject {
    Q_OBJECT
  public:
    WalkTools(const WindowParts& parts, const WindowView& view, const Activity& activity,
              QObject* parent);

  private:
    void Walk(int lines);

    QListWidget& list_;
    const WindowView& view_;
    const Activity& activity_;
};

}  // namespace varnel
