// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/picture_keys.h"

#include <QKeyEvent>

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
    window->installEventFilter(this);
}

// What nothing in the window wanted comes to the window itself.
bool PictureKeys::eventFilter(QObject* watched, QEvent* event) {
    QAction* const circle = tools_.front();
    if (event->type() == QEvent::KeyPress && circle->isChecked() &&
        static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        circle->setChecked(false);
        return true;
    }
    return QObject::eventFilter(watched, event);
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
