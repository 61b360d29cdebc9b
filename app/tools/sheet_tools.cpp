// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/sheet_tools.h"
#include "app/panels/menu_entry.h"

namespace varnel {

SheetTools::SheetTools(const WindowParts& parts, WindowView& view, Workspace& workspace,
                       const WorkingState& state, QObject* parent)
    : QObject(parent),
      parts_(parts),
      view_(view),
      workspace_(workspace),
      state_(state),
      box_(new ContactSheetBox(parts.pictures)) {
    QAction* const entry =
        AddMenuEntry(parts_.viewMenu, "CmdContactSheet", tr("&Contact sheet"), {Qt::Key_F6});
    connect(entry, &QAction::triggered, this, &SheetTools::Toggle);
    connect(box_, &ContactSheetBox::Chosen, this,
            [this](const ContactTile& tile) { workspace_.adjustments.AdoptTile(tile); });
    connect(box_, &ContactSheetBox::GivenUp, this,
            [this](const QString& shortage) { view_.ShowStatus(shortage); });
    // What the tiles show would no longer hold.
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, &SheetTools::CloseSheet);
}

void SheetTools::Toggle() {
    const Bitmap* const photo = state_.bitmaps.FullSourceBitmap.get();
    if (box_->isVisible()) {
        box_->hide();
    } else if (photo != nullptr && workspace_.model.list.Current() != nullptr &&
               !workspace_.model.activity.Busy()) {
        box_->Open(workspace_.preparation.PreparedCurrent(), photo,
                   workspace_.model.controls.Antialiased());
    }
}

}  // namespace varnel
