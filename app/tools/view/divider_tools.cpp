// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/view/divider_tools.h"

#include <utility>

#include "app/panels/menu_entry.h"

namespace varnel {

DividerTools::DividerTools(const WindowParts& parts, ZoomTools& zoom, QObject* parent)
    : QObject(parent),
      menu_(parts.viewMenu),
      zoom_(zoom),
      overlay_(*parts.pictures->To(), *parts.pictures->From(), [&zoom] { return zoom.Classic(); }) {
    // The second comes behind the first.
    AddEntry("CmdViewSamplings", tr("Classic and fine sampling, divided"), Division::Sampling);
    AddEntry("CmdViewDivider", tr("Before an&d after, divided"), Division::Photo);
    parts.pictures->To()->AddOverlay(&overlay_);
}

void DividerTools::AddEntry(const char* name, const QString& text, Division division) {
    auto* const before = menu_->findChild<QAction*>(QStringLiteral("CmdViewBefore"));
    const qsizetype after = menu_->actions().indexOf(before) + 1;
    QAction* const entry = AddMenuEntry(menu_, name, text, {}, menu_->actions().value(after));
    entry->setCheckable(true);
    entries_.append(entry);
    connect(entry, &QAction::toggled, this,
            [this, entry, division](bool on) { Show(*entry, on ? division : Division::None); });
}

// One line at most.
void DividerTools::Show(const QAction& entry, Division division) {
    for (QAction* const other : std::as_const(entries_)) {
        if (other != &entry && division != Division::None) {
            other->setChecked(false);
        }
    }
    zoom_.CompareSamplings(division == Division::Sampling);
    overlay_.Show(division);
}

}  // namespace varnel
