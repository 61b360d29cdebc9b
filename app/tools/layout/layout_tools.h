// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the window is arranged: where the image list is and which groups are folded, both kept in the
// settings. Throws nothing but for want of memory.
#pragma once

#include <QObject>

#include "app/view/window_parts.h"
#include "state/settings/settings_store.h"

namespace varnel {

class LayoutTools : public QObject {
    Q_OBJECT
  public:
    LayoutTools(const WindowParts& parts, SettingsStore& store, QObject* parent);

  private:
    void KeepFolds();

    WindowParts parts_;
    SettingsStore& store_;
};

}  // namespace varnel
