// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/steer/divider_tools.h"

#include "app/panels/menu_entry.h"

namespace varnel {

DividerTools::DividerTools(const WindowParts& parts, QObject* parent)
    : QObject(parent), overlay_(*parts.pictures->To(), *parts.pictures->From()) {
    auto* const before = parts.viewMenu->findChild<QAction*>(QStringLiteral("CmdViewBefore"));
    const qsizetype after = parts.viewMenu->actions().indexOf(before) + 1;
    QAction* const entry =
        AddMenuEntry(parts.viewMenu, "CmdViewDivider", tr("Before an&d after, divided"), {},
                     parts.viewMenu->actions().value(after));
    entry->setCheckable(true);
    parts.pictures->To()->AddOverlay(&overlay_);
    connect(entry, &QAction::toggled, this, [this](bool on) { overlay_.Show(on); });
}

}  // namespace varnel
