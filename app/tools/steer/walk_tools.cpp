// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/steer/walk_tools.h"

#include <QListWidget>

#include "app/panels/menu_entry.h"

namespace varnel {

WalkTools::WalkTools(const WindowParts& parts, const WindowView& view, const Activity& activity,
                     QObject* parent)
    : QObject(parent), list_(*parts.list->List()), view_(view), activity_(activity) {
    parts.viewMenu->addSeparator();
    QAction* const before = AddMenuEntry(parts.viewMenu, "CmdViewPrevious", tr("Pre&vious photo"),
                                         {QKeySequence(Qt::Key_PageUp)});
    QAction* const next = AddMenuEntry(parts.viewMenu, "CmdViewNext", tr("N&ext photo"),
                                       {QKeySequence(Qt::Key_PageDown)});
    connect(before, &QAction::triggered, this, [this] { Walk(-1); });
    connect(next, &QAction::triggered, this, [this] { Walk(1); });
}

void WalkTools::Walk(int lines) {
    const int line = list_.currentRow() + lines;
    if (!view_.Locked() && !activity_.Busy() && line >= 0 && line < list_.count()) {
        list_.setCurrentRow(line);
    }
}

}  // namespace varnel
