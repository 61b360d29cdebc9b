// SPDX-FileCopyrightText: Varnel developers
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/tools/circle_bar.h"

#include <QKeyEvent>

namespace varnel {

CircleBar::CircleBar(QWidget* parent) : LineBar("BarCircle", "LabelCircle", parent) {
    Text().setToolTip(
        tr("How far the circle's middle is from the photo's, in thousandths of its width and "
           "height, and the circle's diameter in percent of the photo's longer side"));
    find_ = Add("CmdCircleFind", tr("Find circle"),
                tr("Looks for the rim of the image circle on this photo"), &CircleBar::FindWanted);
    reset_ = Add("CmdCircleReset", tr("Gear's circle"),
                 tr("Gives this photo the circle that the gear has at present"),
                 &CircleBar::ResetWanted);
    take_ = Add("CmdCircleTake", tr("Keep for the gear ..."),
                tr("Makes this circle the one of the gear"), &CircleBar::TakeWanted);
    agree_ = Add("CmdCircleAgree", tr("Change the gear"), {}, &CircleBar::Agreed);
    decline_ = Add("CmdCircleDecline", tr("Cancel"), {}, &CircleBar::Declined);
    decline_->setAccessibleName(QStringLiteral("%1: %2").arg(agree_->text(), decline_->text()));
    ShowQuestion(false);
}

QPushButton* CircleBar::Add(const char* name, const QString& text, const QString& tip,
                            void (CircleBar::*signal)()) {
    QPushButton* const button = AddButton(name, text, tip);
    connect(button, &QPushButton::clicked, this, signal);
    return button;
}

void CircleBar::ShowNumbers(const QString& text, bool mayFind, bool mayTake) {
    Text().setText(text);
    find_->setEnabled(mayFind);
    reset_->setEnabled(mayTake);
    take_->setEnabled(mayTake);
    ShowQuestion(false);
}

void CircleBar::Ask(const QString& question) {
    Text().setText(question);
    ShowQuestion(true);
    agree_->setFocus();
}

// The buttons themselves only handle the space bar.
void CircleBar::keyPressEvent(QKeyEvent* event) {
    const bool asked = agree_->isVisible();
    if (asked && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        decline_->hasFocus() ? Q_EMIT Declined() : Q_EMIT Agreed();
    } else if (asked && event->key() == Qt::Key_Escape) {
        Q_EMIT Declined();
    } else {
        QWidget::keyPressEvent(event);
    }
}

void CircleBar::ShowQuestion(bool asked) {
    const bool answered = !asked && (agree_->hasFocus() || decline_->hasFocus());
    for (QPushButton* const button : {find_, reset_, take_}) {
        button->setVisible(!asked);
    }
    for (QPushButton* const button : {agree_, decline_}) {
        button->setVisible(asked);
    }
    if (answered) {
        (take_->isEnabled() ? take_ : find_)->setFocus();
    }
}

}  // namespace varnel
