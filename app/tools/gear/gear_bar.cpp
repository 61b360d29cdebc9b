// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/gear/gear_bar.h"

namespace varnel {

namespace {

// A plain "&" would be taken for the mark of a shortcut.
QString Plain(QString text) {
    return text.replace(QStringLiteral("&"), QStringLiteral("&&"));
}

}  // namespace

void GearLine::Show(const QString& text) {
    Text().setText(text);
    setVisible(!text.isEmpty());
}

GivenBar::GivenBar(QWidget* parent) : GearLine("BarGearsGiven", "LabelGearsGiven", parent) {
    connect(AddButton("CmdGearsGivenUndo", tr("Undo"), tr("Takes these gears back")),
            &QPushButton::clicked, this, &GivenBar::UndoWanted);
    connect(AddButton("CmdGearsGivenClose", tr("Close"), tr("Hides this line")),
            &QPushButton::clicked, this, &GivenBar::Closed);
}

void GivenBar::ShowGiven(int photos) {
    Show(photos == 0   ? QString()
         : photos == 1 ? tr("1 photo got its own gear")
                       : tr("%1 photos got their own gear").arg(photos));
}

GearBar::GearBar(QWidget* parent)
    : GearLine("BarGearDoubt", "LabelGearDoubt", parent),
      choose_(
          AddButton("CmdDoubtGear", tr("Choose the gear"), tr("Gives this photo another gear"))),
      other_(AddButton("CmdDoubtFrame", {}, tr("Sees this photo in the other way"))),
      same_(AddButton("CmdDoubtSame", tr("Same for all photos like this"),
                      tr("Gives the gear of this photo to all others of the same camera, lens and "
                         "size"))),
      menu_(new QMenu(choose_)) {
    menu_->setObjectName(QStringLiteral("MenuDoubtGear"));
    choose_->setMenu(menu_);
    connect(other_, &QPushButton::clicked, this, &GearBar::OtherFrameWanted);
    connect(same_, &QPushButton::clicked, this, &GearBar::SameWanted);
}

void GearBar::ShowDoubt(const GearDoubt& doubt) {
    if (doubt == shown_) {
        return;
    }
    shown_ = doubt;
    FillMenu(doubt);
    choose_->setVisible(!menu_->isEmpty());
    other_->setText(doubt.otherFrame);
    other_->setVisible(!doubt.otherFrame.isEmpty());
    same_->setVisible(doubt.maySame);
    Show(doubt.text);
}

void GearBar::FillMenu(const GearDoubt& doubt) {
    menu_->close();  // what it offers is no longer so
    menu_->clear();
    for (int n = 0; n < doubt.gears.size(); ++n) {
        QAction* const entry = menu_->addAction(Plain(doubt.gears[n]));
        entry->setObjectName(QStringLiteral("CmdDoubtGear%1").arg(n + 1));
        connect(entry, &QAction::triggered, this, [this, n] { Q_EMIT GearChosen(n); });
    }
    if (doubt.mayDefine) {
        menu_->addSeparator();
        QAction* const define = menu_->addAction(tr("Define this gear..."));
        define->setObjectName(QStringLiteral("CmdDoubtDefine"));
        connect(define, &QAction::triggered, this, &GearBar::DefineWanted);
    }
}

}  // namespace varnel
