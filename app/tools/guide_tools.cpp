// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/guide_tools.h"

#include <QCoreApplication>

#include "app/panels/menu_entry.h"
#include "state/settings/default_choices.h"

namespace varnel {

GuideTools::GuideTools(QMainWindow* window, Notices& notices, const QString& language)
    : QObject(window),
      window_(window),
      notices_(notices),
      language_(languages[LanguagePosition(language)].code) {
    auto* const about = window->findChild<QAction*>(QStringLiteral("CmdAboutAbout"));
    QAction* const entry = AddMenuEntry(qobject_cast<QMenu*>(about->parent()), "CmdGuide",
                                        tr("User &guide"), {QKeySequence::HelpContents});
    connect(entry, &QAction::triggered, this, &GuideTools::Show);
}

void GuideTools::Show() {
    const QString folder = QCoreApplication::applicationDirPath();
    const QString page = GuideStartPage(folder, language_);
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
