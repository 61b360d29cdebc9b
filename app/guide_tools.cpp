// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/guide_tools.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace varnel {

GuideTools::GuideTools(QMainWindow* window, Notices& notices)
    : QObject(window), window_(window), notices_(notices) {
    auto* const about = window->findChild<QAction*>(QStringLiteral("CmdAboutAbout"));
    auto* const entry = qobject_cast<QMenu*>(about->parent())->addAction(tr("User &guide"));
    entry->setObjectName(QStringLiteral("CmdGuide"));
    entry->setShortcut(QKeySequence::HelpContents);
    connect(entry, &QAction::triggered, this, &GuideTools::Show);
}

void GuideTools::Show() {
    const QString folder = QCoreApplication::applicationDirPath();
    const QString page = GuideStartPage(folder);
    if (page.isEmpty()) {
        notices_.Tell(tr("The user guide is not installed"),
                      tr("It belongs into the folder share/varnel/guide beside %1.").arg(folder));
        return;
    }
    if (!form_) {
        form_ = new FormGuide(page, window_);
        form_->setAttribute(Qt::WA_DeleteOnClose);
    }
    form_->show();
    form_->raise();
    form_->activateWindow();
}

}  // namespace varnel
