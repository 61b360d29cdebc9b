// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/layout/layout_tools.h"

#include <vector>

#include "app/tools/film/film_bar.h"
#include "app/tools/layout/kept_choice.h"
#include "state/settings/setting_names.h"

namespace varnel {

namespace {

void Chain(const QWidgetList& order) {
    for (qsizetype n = 1; n < order.size(); ++n) {
        QWidget::setTabOrder(order[n - 1], order[n]);
    }
}

}  // namespace

LayoutTools::LayoutTools(QMainWindow* window, const WindowParts& parts, SettingsStore& store,
                         ListPictures& pictures)
    : QObject(window), window_(window), parts_(parts), store_(store) {
    AddKeptChoice(*parts_.viewMenu,
                  {"CmdViewListLeft", tr("Image li&st in the left column"), "ListLeft"}, store_,
                  [this](bool on) {
                      PlaceList(parts_, on);
                      OrderTabs(on);
                  });
    AddKeptChoice(
        *parts_.viewMenu,
        {"CmdViewListResults", tr("Results &as pictures in the list"), "ListResults", true}, store_,
        [&pictures](bool on) { pictures.ShowResults(on); });
    KeepChoice(*window_->findChild<QAction*>(QStringLiteral("CmdViewFrame")), "Frame", true,
               store_);
    KeepFolds();
    parts_.list->List()->setFocus();
}

// As they are seen: the lines below the pictures, then the filmstrip, then the status line; the
// list of the column before what saves.
void LayoutTools::OrderTabs(bool inColumn) const {
    const QStringList below{
        QStringLiteral("CmdCircleDecline"),   QStringLiteral("CmdGearsGivenUndo"),
        QStringLiteral("CmdGearsGivenClose"), QStringLiteral("CmdDoubtGear"),
        QStringLiteral("CmdDoubtFrame"),      QStringLiteral("CmdDoubtSame")};
    QWidgetList order;
    for (const QString& name : below) {
        order.append(window_->findChild<QWidget*>(name));
    }
    if (const auto* const film = window_->findChild<FilmBar*>()) {
        order += film->Controls();
    }
    Chain({parts_.views.back(), window_->findChild<QWidget*>(QStringLiteral("CmdEmptyAdd")),
           window_->findChild<QWidget*>(QStringLiteral("CmdEmptySample"))});
    const ImageListPanel& list = *parts_.list;
    if (inColumn) {
        order.append(parts_.offer->Button());
        QWidgetList column{parts_.adjustments->PreviewButton(), list.List(), list.Add(),
                           list.Remove(), parts_.save->SaveAs()};
        Chain(column);
    } else {
        order += {list.Add(), list.Remove(), list.List(), parts_.offer->Button()};
    }
    Chain(order);
}

// What is seldom used is folded until it is opened.
void LayoutTools::KeepFolds() {
    std::vector<FoldGroup*> folds(parts_.adjustments->Folds().begin(),
                                  parts_.adjustments->Folds().end());
    folds.push_back(parts_.size);
    for (FoldGroup* const fold : folds) {
        const QString key = QStringLiteral("Folded") + fold->objectName();
        const bool rare =
            fold == parts_.size || fold->objectName() == QStringLiteral("FramePreview");
        const QString yes = QStringLiteral("1");
        const QString no = QStringLiteral("0");
        fold->SetFolded(store_.Get(setting::Window, key, rare ? yes : no) == yes);
        connect(fold, &FoldGroup::FoldedChanged, this, [this, key, yes, no](bool folded) {
            store_.Save(setting::Window, key, folded ? yes : no);
        });
    }
}

}  // namespace varnel
