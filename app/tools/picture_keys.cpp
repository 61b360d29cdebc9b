// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/picture_keys.h"

namespace varnel {

PictureKeys::PictureKeys(QWidget* window, const WindowParts& parts)
    : QObject(window),
      tools_{window->findChild<QAction*>(QStringLiteral("CmdViewCircle")),
             window->findChild<QAction*>(QStringLiteral("CmdViewFrame"))} {
    PictureBox* const photo = parts.pictures->From();
    for (QAction* const tool : tools_) {
        connect(tool, &QAction::toggled, photo, [photo](bool on) {
            if (on && !photo->Empty()) {
                photo->setFocus();
            }
        });
    }
    for (PictureBox* const box : {photo, parts.pictures->To()}) {
        connect(box, &PictureBox::LeaveWanted, this, &PictureKeys::Leave);
    }
    // The status line is below what the tools put below the pictures.
    QWidget::setTabOrder(window->findChild<QWidget*>(QStringLiteral("CmdCircleDecline")),
                         parts.offer->Button());
}

// The one that answers the arrow keys first.
void PictureKeys::Leave() {
    for (QAction* const tool : tools_) {
        if (tool->isChecked()) {
            tool->setChecked(false);
            return;
        }
    }
}

}  // namespace varnel
