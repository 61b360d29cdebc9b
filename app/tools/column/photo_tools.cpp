// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/column/photo_tools.h"

#include <QGuiApplication>
#include <utility>

#include "app/panels/menu_entry.h"

namespace varnel {

PhotoTools::PhotoTools(QMainWindow* window, const WindowParts& parts, Workspace& workspace,
                       const WorkingState& state, Dialogs& dialogs)
    : QObject(window),
      window_(window),
      panel_(*parts.list),
      workspace_(workspace),
      state_(state),
      dialogs_(dialogs) {
    AddRemoveEntry(parts.editMenu);
    connect(parts.entries.openImages, &QAction::triggered, this, &PhotoTools::AddImages);
    connect(panel_.Add(), &QAbstractButton::clicked, this, &PhotoTools::AddImages);
    connect(panel_.Remove(), &QAbstractButton::clicked, this, &PhotoTools::RemoveImages);
    connect(&workspace_.model.list, &ImageSelection::Chosen, this, &PhotoTools::OnLine);
    connect(panel_.List(), &QListWidget::itemClicked, this, &PhotoTools::OnLineClicked);
    connect(parts.pictures->From(), &PictureBox::Released, this, &PhotoTools::PickPoint);
    connect(&workspace_.model.list, &ImageSelection::Refilled, this, &PhotoTools::UpdateEnabled);
    UpdateEnabled();
}

// Its key is the list's own: elsewhere it deletes what is typed.
void PhotoTools::AddRemoveEntry(QMenu* menu) {
    menu->addSeparator();
    remove_ = AddMenuEntry(menu, "CmdEditRemoveImages", panel_.Remove()->text(),
                           {QKeySequence(QKeySequence::Delete)});
    remove_->setShortcutContext(Qt::WidgetShortcut);
    panel_.List()->addAction(remove_);
    connect(remove_, &QAction::triggered, this, &PhotoTools::RemoveImages);
}

void PhotoTools::OnLine(int line) {
    changedByPress_ = QGuiApplication::mouseButtons() != Qt::NoButton;
    workspace_.photo.ShowLine(line);
}

// A click on the line that is current already loads its photo again.
void PhotoTools::OnLineClicked() {
    if (!std::exchange(changedByPress_, false)) {
        workspace_.photo.ShowLine(workspace_.model.list.CurrentLine());
    }
}

void PhotoTools::AddImages() {
    const int before = state_.Images.UpperBound();
    if (dialogs_.AddImages(window_)) {
        workspace_.adder.ImagesAdded(before);
    }
}

void PhotoTools::RemoveImages() {
    workspace_.list.RemoveSelected();
}

// Room for picking points on the photo; nothing is done with them.
void PhotoTools::PickPoint(QPoint /*position*/, Qt::MouseButton /*button*/,
                           Qt::KeyboardModifiers /*modifiers*/) {}

void PhotoTools::UpdateEnabled() {
    const bool photos = !state_.Images.Empty();
    panel_.Remove()->setEnabled(photos);
    remove_->setEnabled(photos);
}

}  // namespace varnel
