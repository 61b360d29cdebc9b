// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/steer/picture_menus.h"

#include <cmath>
#include <span>

#include "app/panels/menu_entry.h"

namespace varnel {

namespace {

// Entries of the window's menus, by their names; null for a separator. What the window does not
// have is left out.
constexpr const char* actualSize = "CmdViewActual";
constexpr const char* ofResult[]{"CmdEditResetPhoto",
                                 "CmdToolsLevel",
                                 nullptr,
                                 "CmdEditCopySettings",
                                 "CmdEditPasteSettings",
                                 nullptr,
                                 actualSize,
                                 "CmdViewFit",
                                 nullptr};
constexpr const char* ofPhoto[]{"CmdToolsLevel", "CmdViewFrame", "CmdViewCircle", nullptr,
                                actualSize,      "CmdViewFit",   nullptr};

}  // namespace

PictureMenus::PictureMenus(QMainWindow* window, const WindowParts& parts, const WindowView& view,
                           const ImageSelection& list, Dialogs& dialogs)
    : QObject(window),
      window_(window),
      result_(parts.pictures->To()),
      view_(view),
      list_(list),
      dialogs_(dialogs) {
    for (PictureBox* const box : {parts.pictures->From(), result_}) {
        box->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(box, &QWidget::customContextMenuRequested, this,
                [this, box](QPoint place) { Open(box, place); });
    }
}

void PictureMenus::Open(PictureBox* box, QPoint place) {
    if (box->Empty() || view_.Locked()) {
        return;
    }
    place_ = place;
    auto* const menu = new QMenu(box);
    menu->setObjectName(QStringLiteral("PictureMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    Fill(*menu, box);
    menu->popup(box->mapToGlobal(place));
}

void PictureMenus::Fill(QMenu& menu, PictureBox* box) {
    using Names = std::span<const char* const>;
    for (const char* const name : box == result_ ? Names(ofResult) : Names(ofPhoto)) {
        QAction* const entry =
            name == nullptr ? nullptr : window_->findChild<QAction*>(QString::fromLatin1(name));
        if (name == nullptr) {
            menu.addSeparator();
        } else if (name == actualSize) {
            QAction* const here = AddMenuEntry(&menu, "CmdPictureActual", entry->text());
            connect(here, &QAction::triggered, this, [this, box] { ShowActualSize(box, place_); });
        } else if (entry != nullptr) {
            menu.addAction(entry);
        }
    }
    QAction* const folder = AddMenuEntry(&menu, "CmdPictureFolder", tr("&Show in folder"));
    connect(folder, &QAction::triggered, this,
            [this] { dialogs_.ShowInFolder(list_.CurrentPath()); });
}

// The point under the hand stays; the window's own entry then makes it exact.
void PictureMenus::ShowActualSize(PictureBox* box, QPointF place) {
    const double scale = box->ToWidget().m11() * box->devicePixelRatioF();
    Q_EMIT box->ZoomWanted(place, -2.0 * std::log2(scale));
    window_->findChild<QAction*>(QString::fromLatin1(actualSize))->trigger();
}

}  // namespace varnel
