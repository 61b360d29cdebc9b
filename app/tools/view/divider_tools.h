// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

// The View menu's entries "Before and after" and "Classic and fine sampling": a line on the result,
// left of it the photo or the other sampling. Throws nothing but for want of memory.
#pragma once

#include <QAction>
#include <QList>

#include "app/tools/view/divider_overlay.h"
#include "app/tools/view/zoom_tools.h"
#include "app/view/window_parts.h"

namespace varnel {

class DividerTools : public QObject {
    Q_OBJECT
  public:
    DividerTools(const WindowParts& parts, ZoomTools& zoom, QObject* parent);

  private:
    void AddEntry(const char* name, const QString& text, Division division);
    void Show(const QAction& entry, Division division);

    QMenu* menu_;
    ZoomTools& zoom_;
    DividerOverlay overlay_;
    QList<QAction*> entries_;
};

}  // namespace varnel
