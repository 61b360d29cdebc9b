// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// How the window is arranged: where the image list is, what it shows and which groups are folded,
// all kept in the settings. Throws nothing but for want of memory.
#pragma once

#include <QMainWindow>
#include <QObject>

#include "app/tools/column/list_pictures.h"
#include "app/view/window_parts.h"
#include "state/settings/settings_store.h"

namespace varnel {

class LayoutTools : public QObject {
    Q_OBJECT
  public:
    // After all others, whose controls it puts in the order of the Tab key.
    LayoutTools(QMainWindow* window, const WindowParts& parts, SettingsStore& store,
                ListPictures& pictures);

  private:
    void KeepFolds();
    void OrderTabs(bool inColumn) const;

    QMainWindow* window_;
    WindowParts parts_;
    SettingsStore& store_;
};

}  // namespace varnel
