// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/faces/face_bar.h"

namespace varnel {

FaceBar::FaceBar(QWidget* parent) : LineBar("BarFaces", "LabelFaces", parent) {
    Text().setToolTip(
        tr("By keyboard: Insert makes an ellipse, Space goes to the next one, arrows move it, with "
           "Shift they size it, [ and ] turn it, Delete takes it away"));
    remove_ = AddButton("CmdFacesRemove", tr("Remove"), tr("Takes the chosen ellipse away"));
    clear_ = AddButton("CmdFacesClear", tr("Remove all"), tr("Takes all ellipses away"));
    QPushButton* const done = AddButton("CmdFacesDone", tr("Done"), tr("Hides the ellipses"));
    connect(remove_, &QPushButton::clicked, this, &FaceBar::RemoveWanted);
    connect(clear_, &QPushButton::clicked, this, &FaceBar::ClearWanted);
    connect(done, &QPushButton::clicked, this, &FaceBar::LeaveWanted);
}

void FaceBar::ShowFaces(int count) {
    Text().setText(count == 0
                       ? tr("Drag an ellipse around each face on the result; it keeps its shape.")
                       : tr("Drag an ellipse to move it, its rim to size it, its knob to turn "
                            "it; a drag beside them draws another one."));
    remove_->setEnabled(count > 0);
    clear_->setEnabled(count > 0);
}

}  // namespace varnel
